#include "shell/HelpPage.h"

#include "shell/Translations.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QTextDocument>

namespace tessara {

namespace {

/// The widest line that is still easy to read, in characters.
constexpr int kLineLength = 104;

/// Markdown as it is written, with more room around than a document has of itself.
constexpr QLatin1String kStyle("table { margin: 8px 0; } td, th { padding: 3px 8px; }");

} // namespace

HelpPage::HelpPage(const QString& name, const QString& title, QWidget* parent)
    : QTextBrowser(parent)
{
    setWindowFlag(Qt::Window);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    setOpenExternalLinks(true);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(20);

    QTextDocument text;
    text.setMarkdown(QString::fromUtf8(translatedPage(name + QLatin1String(".md"))));
    document()->setDefaultStyleSheet(kStyle);
    setHtml(text.toHtml());
    const QFontMetrics metrics(font());
    resize(metrics.averageCharWidth() * kLineLength, metrics.height() * 38);
}

void HelpPage::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QTextBrowser::keyPressEvent(event);
}

} // namespace tessara
