#include "shell/AboutPanels.h"

#include "foundation/Localized.h"
#include "shell/HelpPage.h"
#include "shell/LegibleColor.h"
#include "shell/RichTextReader.h"
#include "shell/Translations.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QIcon>
#include <QLabel>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace tessara {

namespace {

constexpr int kMargin = 18;     // pixels
constexpr int kIconSide = 96;   // pixels
constexpr int kAboutWidth = 52; // characters
constexpr QSize kAcknowledgments(560, 440);

QByteArray resource(const char* path)
{
    QFile file{QLatin1String(path)};
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QLabel* makeLabel(const QString& text)
{
    auto* label = new QLabel(text);
    label->setAlignment(Qt::AlignHCenter);
    label->setWordWrap(true);
    label->setOpenExternalLinks(true);
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    return label;
}

/// A sheet with one button, which goes when it is closed.
void show(QDialog* sheet, QVBoxLayout& layout, QDialogButtonBox::StandardButton button)
{
    auto* buttons = new QDialogButtonBox(button);
    QObject::connect(buttons, &QDialogButtonBox::accepted, sheet, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, sheet, &QDialog::reject);
    layout.addWidget(buttons);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

} // namespace

void showAbout(QWidget& window)
{
    auto* panel = new QDialog(&window);
    panel->setWindowTitle(localized("About Tessara"));
    auto* icon = new QLabel;
    icon->setAlignment(Qt::AlignHCenter);
    icon->setPixmap(QIcon(QStringLiteral(":/icons/tessara.svg"))
                        .pixmap(QSize(kIconSide, kIconSide), window.devicePixelRatioF()));
    QLabel* name = makeLabel(QStringLiteral("Tessara"));
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    name->setFont(large);

    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(2 * kMargin, kMargin, 2 * kMargin, kMargin);
    layout->addWidget(icon);
    layout->addWidget(name);
    layout->addWidget(makeLabel(localized("Version %1").arg(QLatin1String(TESSARA_VERSION))));
    QLabel* credits = makeLabel(withLegibleLinks(
        QString::fromUtf8(translatedPage(QStringLiteral("Credits.html"))), panel->palette()));
    credits->setFixedWidth(kAboutWidth * credits->fontMetrics().averageCharWidth());
    layout->addWidget(credits);
    layout->setSizeConstraint(QLayout::SetFixedSize); // else a low screen cuts the text
    show(panel, *layout, QDialogButtonBox::Close);
}

void showAcknowledgments(QWidget& window)
{
    auto* panel = new QDialog(&window);
    panel->setWindowTitle(localized("Acknowledgments"));
    auto* text = new QTextBrowser;
    text->setHtml(htmlOfRichText(resource(":/Acknowledgments.rtf")));
    text->setAccessibleName(localized("Acknowledgments"));
    auto* layout = new QVBoxLayout(panel);
    layout->addWidget(text);
    panel->resize(kAcknowledgments);
    show(panel, *layout, QDialogButtonBox::Ok);
}

void showFilterHelp(QWidget& window)
{
    auto* page = window.findChild<HelpPage*>();
    if (!page)
        page = new HelpPage(QStringLiteral("filter"), localized("Filter Language"), &window);
    page->show();
    page->raise();
    page->activateWindow();
}

} // namespace tessara
