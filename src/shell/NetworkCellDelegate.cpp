#include "shell/NetworkCellDelegate.h"

#include "charts/TSLevelIndicatorCell.h"
#include "charts/TSThemeHelper.h"
#include "model/ColumnRegistry.h"
#include "model/SignalPercentage.h"
#include "model/TSNetwork.h"
#include "shell/GlyphIcon.h"
#include "shell/LegibleColor.h"
#include "shell/NetworksTableModel.h"
#include "shell/ToolTipText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

constexpr int kRowPadding = 5;  // above and below the text together
constexpr int kCellPadding = 3; // at the left and the right, beside the style's own
constexpr int kPadlockRoom = 5; // beside the padlock's own
constexpr int kPadlockGap = 2;  // between text and padlock
constexpr double kPadlockAlpha = 0.6;

/// What a level column shows of a network, in per cent, and how.
struct LevelColumn {
    QStringView identifier;
    std::int64_t (*level)(const TSNetwork&);
    std::int64_t (*levelMax)(const TSNetwork&);
    QColor (*color)();
    double alpha;
    // Where the track begins at the least, in points of the smallest font, and the longest text
    // that it is to leave room for.
    double indent;
    double indentInDBm;
    const char* longestText;
};

const LevelColumn kLevelColumns[] = {
    {u"RSSI", [](const TSNetwork& n) { return signalPercentage(n.rssiLast()); },
     [](const TSNetwork& n) { return signalPercentage(n.rssiStatistic().max); },
     TSThemeHelper::barColorForRSSI, 0.7, 32, 26, "100%"},
    {u"NOISE", [](const TSNetwork& n) { return signalPercentage(n.noiseLast()); },
     [](const TSNetwork& n) { return signalPercentage(n.noiseStatistic().max); },
     TSThemeHelper::barColorForNoise, 0.5, 32, 26, "100%"},
    {u"SNR", [](const TSNetwork& n) { return n.snrPerc(); },
     [](const TSNetwork& n) { return n.snrPercStatistic().max; }, TSThemeHelper::barColorForSNR,
     0.5, 40, 40, "-60 dB"},
    {u"CHANNEL_UTILIZATION",
     [](const TSNetwork& n) { return std::max<std::int64_t>(n.channelUtilization(), -1); },
     [](const TSNetwork& n) {
         return std::max<std::int64_t>(n.attributes().channelUtilizationMax, -1);
     },
     TSThemeHelper::barColorForChUtilization, 0.6, 28, 28, "100%"},
};

/// Where the track of a column's bar begins, in pixels: the same in all rows, bold or not.
double indentOf(const LevelColumn& column, bool dBm, const QFont& font)
{
    constexpr double kSmallestFont = 9; // points
    constexpr double kGap = 6;          // pixels between text and bar
    const QFontInfo info(font);
    const double points = std::trunc(2 * (info.pointSizeF() - kSmallestFont) +
                                     (dBm ? column.indentInDBm : column.indent));
    QFont bold = font;
    bold.setBold(true);
    const double text =
        QFontMetricsF(bold).horizontalAdvance(QLatin1String(column.longestText)) + kGap;
    return std::max(points * info.pixelSize() / info.pointSizeF(), text);
}

/// The table has the keyboard, so that its selection stands out.
bool hasFocus(const QStyleOptionViewItem& option)
{
    return option.widget && option.widget->hasFocus() &&
           option.state.testFlag(QStyle::State_Active);
}

/// On light and dark palettes.
QColor filteredCellColor(const QPalette& palette)
{
    return isDark(palette) ? withAlpha(Qt::blue, 0.2)
                           : TSThemeHelper::backgroundColorForFilteredCell();
}

RowHighlight highlightOf(const QStyleOptionViewItem& option)
{
    if (!option.state.testFlag(QStyle::State_Selected))
        return RowHighlight::kNone;
    return hasFocus(option) ? RowHighlight::kActive : RowHighlight::kInactive;
}

int textMargin(const QStyleOptionViewItem& option)
{
    return option.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option,
                                               option.widget) +
           1;
}

bool hasPadlock(const Column& column, const TSNetwork& network)
{
    return column.cell == CellKind::kTextAndImage && !network.isOpen();
}

int padlockSide(const QFontMetrics& metrics)
{
    return metrics.ascent();
}

const Column& columnOf(const QModelIndex& index)
{
    return columnRegistry()[static_cast<std::size_t>(index.column())];
}

} // namespace

NetworkCellDelegate::NetworkCellDelegate(const NetworksTableModel& model, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
{
}

int NetworkCellDelegate::rowHeight(const QFontMetrics& metrics)
{
    return metrics.height() + kRowPadding;
}

void NetworkCellDelegate::initStyleOption(QStyleOptionViewItem* option,
                                          const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const TSNetwork& network = m_model.networkAt(index);
    option->font.setBold(network.isAssociated());
    option->font.setItalic(columnOf(index).identifier == QLatin1String("SSID") &&
                           network.isHidden());
    option->fontMetrics = QFontMetrics(option->font);
    if (m_model.isMissing(network))
        option->palette.setColor(
            QPalette::Text, legible(TSThemeHelper::textColorForNetworkNotFound(), option->palette));
}

QString NetworkCellDelegate::displayText(const QVariant& value, const QLocale&) const
{
    constexpr QStringView kLineBreaks = u"\n\v\f\r\u0085\u2028\u2029";
    QString text = value.toString();
    std::ranges::replace_if(
        text, [&](QChar c) { return kLineBreaks.contains(c); }, u' ');
    return text;
}

void NetworkCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const
{
    const Column& column = columnOf(index);
    const TSNetwork& network = m_model.networkAt(index);
    if (column.cell == CellKind::kMarker) {
        painter->fillRect(option.rect, network.color());
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle& style = *cell.widget->style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    if (m_filteredColumns.contains(column.identifier))
        painter->fillRect(cell.rect, filteredCellColor(cell.palette));
    if (column.cell == CellKind::kLevel)
        paintLevel(*painter, cell, column, network);

    if (hasPadlock(column, network))
        paintPadlock(*painter, cell);

    // The text alone, over what is there.
    if (cell.state.testFlag(QStyle::State_Selected))
        cell.palette.setBrush(QPalette::Text, cell.palette.brush(QPalette::HighlightedText));
    cell.state &= ~(QStyle::State_Selected | QStyle::State_MouseOver | QStyle::State_HasFocus);
    cell.backgroundBrush = Qt::NoBrush;
    cell.rect.adjust(kCellPadding, 0, -kCellPadding, 0);
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
}

void NetworkCellDelegate::paintLevel(QPainter& painter, const QStyleOptionViewItem& cell,
                                     const Column& column, const TSNetwork& network) const
{
    const auto* level =
        std::ranges::find(kLevelColumns, column.identifier, &LevelColumn::identifier);
    if (level == std::end(kLevelColumns))
        return;
    const TSLevelIndicatorCell bar{.barLevel = level->level(network),
                                   .barLevelMax = level->levelMax(network),
                                   .barColor = level->color(),
                                   .barAlpha = level->alpha,
                                   .barIndent = kCellPadding +
                                                indentOf(*level, m_model.context().dBm, cell.font),
                                   .isGrayedOut = m_model.isMissing(network)};
    bar.drawWithFrame(painter, cell.rect, highlightOf(cell));
}

/// At the right end of the cell, which gets so much narrower.
void NetworkCellDelegate::paintPadlock(QPainter& painter, QStyleOptionViewItem& cell)
{
    const int side = padlockSide(cell.fontMetrics);
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    const QColor color = isSelected ? cell.palette.color(QPalette::HighlightedText)
                                    : withAlpha(cell.palette.color(QPalette::Text), kPadlockAlpha);
    cell.rect.setRight(cell.rect.right() - side - kPadlockRoom);
    const QPointF place(cell.rect.right() + kPadlockGap,
                        cell.rect.top() + (cell.rect.height() - side) / 2.0);
    painter.drawPixmap(
        place, glyphPixmap(Glyph::kPadlock, color, side, painter.device()->devicePixelRatioF()));
}

QSize NetworkCellDelegate::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    QStyleOptionViewItem styled = option;
    initStyleOption(&styled, index);
    QSize text(styled.fontMetrics.horizontalAdvance(styled.text) + 2 * kCellPadding,
               rowHeight(QFontMetrics(option.font)));
    if (hasPadlock(columnOf(index), m_model.networkAt(index)))
        text.rwidth() += padlockSide(styled.fontMetrics) + kPadlockRoom;
    if (columnOf(index).cell != CellKind::kLevel)
        return text;
    return TSLevelIndicatorCell::cellSizeForBounds(text, option.rect.size()).toSize();
}

void NetworkCellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                               const QModelIndex&) const
{
    constexpr int kOwnMargin = 2; // pixels, of a line edit beside its text
    editor->setGeometry(
        option.rect.adjusted(kCellPadding + textMargin(option) - kOwnMargin, 0, 0, 0));
}

bool NetworkCellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                    const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QStyleOptionViewItem styled = option;
    initStyleOption(&styled, index);
    int room = option.rect.width() - 2 * (kCellPadding + textMargin(styled));
    if (hasPadlock(columnOf(index), m_model.networkAt(index)))
        room -= padlockSide(styled.fontMetrics) + kPadlockRoom;
    const bool isCut = styled.fontMetrics.horizontalAdvance(styled.text) > room;
    QToolTip::showText(event->globalPos(), isCut ? toolTipOf(styled.text) : QString(), view,
                       option.rect);
    return true;
}

} // namespace tessara
