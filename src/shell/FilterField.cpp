#include "shell/FilterField.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "shell/GlyphIcon.h"
#include "shell/LegibleColor.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>

namespace tessara {

namespace {

constexpr int kRecentFilters = 10;
constexpr int kWidth = 32; // characters

/// A line of text as an item of a menu, which takes "&" for something else.
QString itemText(QString line)
{
    return line.replace(u'&', QStringLiteral("&&"));
}

} // namespace

FilterField::FilterField(QWidget* parent)
    : QLineEdit(parent)
    , m_recentFilters(new QMenu(this))
{
    setPlaceholderText(localized("Filter"));
    paletteDidChange();
    setAccessibleName(localized("Filter"));
    setClearButtonEnabled(true);
    setToolTip(
        localized("home: networks with \"home\" in their name, in a note or in their maker's name\n"
                  "\"Home\": networks of exactly this name\n"
                  "5GHz, 80MHz, 36, ac, wpa2, DE: band, width, channel, mode, security, country\n"
                  ">-70, >=50%: the last signal; !home: all but these\n"
                  "a, b & c: networks that are a or b, and c"));
    QAction* menu = addAction(glyphIcon(Glyph::kSearch), LeadingPosition);
    menu->setText(localized("Recent filters"));
    connect(menu, &QAction::triggered, this, &FilterField::showMenu);
    connect(this, &QLineEdit::returnPressed, this, &FilterField::remember);
}

QSize FilterField::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * kWidth, QLineEdit::sizeHint().height()};
}

void FilterField::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paletteDidChange();
}

void FilterField::paletteDidChange()
{
    QPalette hint; // what is not set here follows the desktop
    hint.setColor(QPalette::PlaceholderText, dimmed(palette()));
    if (hint.placeholderText() != palette().placeholderText())
        setPalette(hint);
}

void FilterField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down) {
        showMenu();
        return;
    }
    if (event->key() != Qt::Key_Escape) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    // First the line goes, then the field is left.
    if (text().isEmpty())
        Q_EMIT didLeave();
    else
        clear();
}

void FilterField::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() != Qt::PopupFocusReason) // a menu comes back here
        remember();
    QLineEdit::focusOutEvent(event);
}

void FilterField::remember()
{
    const QString line = text().trimmed();
    if (line.isEmpty())
        return;
    Defaults& defaults = Defaults::standard();
    QStringList lines = defaults.value(DefaultKey::RecentFilters).toStringList();
    lines.removeAll(line);
    lines.prepend(line);
    defaults.setValue(DefaultKey::RecentFilters, QStringList(lines.mid(0, kRecentFilters)));
}

void FilterField::showMenu()
{
    fillMenu();
    m_recentFilters->popup(mapToGlobal(rect().bottomLeft()));
}

void FilterField::fillMenu()
{
    m_recentFilters->clear();
    const QStringList lines = Defaults::standard().value(DefaultKey::RecentFilters).toStringList();
    if (lines.isEmpty()) {
        m_recentFilters->addAction(localized("No Recent Filters"))->setEnabled(false);
        return;
    }
    m_recentFilters->addSection(localized("Recent Filters"));
    for (const QString& line : lines) {
        connect(m_recentFilters->addAction(itemText(line)), &QAction::triggered, this,
                [this, line] { setText(line); });
    }
    m_recentFilters->addSeparator();
    connect(m_recentFilters->addAction(localized("Clear Recent Filters")), &QAction::triggered,
            this, [] { Defaults::standard().remove(DefaultKey::RecentFilters); });
}

} // namespace tessara
