#include "shell/InfoElementDelegate.h"

#include "charts/TSThemeHelper.h"
#include "shell/LegibleColor.h"
#include "shell/ToolTipText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace tessara {

namespace {

constexpr int kRowPadding = 6;  // above and below the text together
constexpr int kCellPadding = 4; // at the left and the right
constexpr int kBitsIndent = 5;  // pixels, between the bits of a field and the end of their column

bool isBits(PieceStyle style)
{
    return style == PieceStyle::kBits || style == PieceStyle::kBitsName ||
           style == PieceStyle::kBitsNotes;
}

QFont fontOf(PieceStyle style, const QFont& font)
{
    QFont result = font;
    if (isBits(style)) {
        result.setFamilies({QStringLiteral("Menlo"), QStringLiteral("DejaVu Sans Mono")});
        result.setStyleHint(QFont::Monospace);
    }
    if (isBits(style) || style == PieceStyle::kNotes)
        result.setPointSizeF(font.pointSizeF() - 1);
    result.setItalic(style == PieceStyle::kSummary);
    return result;
}

QColor colorOf(PieceStyle style, const QPalette& palette)
{
    using Theme = TSThemeHelper;
    switch (style) {
    case PieceStyle::kName:
        return legible(Theme::textColorForInfoElementName(), palette);
    case PieceStyle::kSummary:
    case PieceStyle::kLength:
        return legible(Theme::textColorForInfoElementSummary(), palette);
    case PieceStyle::kEntryName:
        return legible(Theme::textColorForInfoElementFieldName(), palette);
    case PieceStyle::kBits:
        return legible(Theme::textColorForInfoElementSubfieldName(), palette);
    case PieceStyle::kBitsNotes:
        return legible(Theme::textColorForInfoElementFieldValueNotes(), palette);
    case PieceStyle::kNotes:
        return dimmed(palette);
    case PieceStyle::kPlain:
    case PieceStyle::kBitsName:
        break;
    }
    return palette.color(QPalette::Text);
}

/// The colour of everything in a selected row.
QColor highlightColor(const QStyleOptionViewItem& option)
{
    const bool hasKeyboard = option.widget && option.widget->hasFocus();
    return hasKeyboard ? option.palette.color(QPalette::HighlightedText)
                       : withAlpha(option.palette.color(QPalette::Text), 0.7);
}

double widthOf(const std::vector<TextPiece>& pieces, const QFont& font)
{
    double width = 0;
    for (const TextPiece& piece : pieces)
        width += QFontMetricsF(fontOf(piece.style, font)).horizontalAdvance(piece.text);
    return width;
}

bool isRightAligned(const QModelIndex& index)
{
    return index.column() < InfoElementsModel::kElementColumn ||
           (index.column() == InfoElementsModel::kElementColumn &&
            InfoElementsModel::rowAt(index).kind == InfoElementRow::Kind::kSubEntry);
}

} // namespace

void InfoElementDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle& style = *cell.widget->style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);

    painter->save();
    QRectF room = cell.rect.adjusted(kCellPadding, 0, -kCellPadding, 0);
    if (!cell.icon.isNull()) {
        const QRect place = style.subElementRect(QStyle::SE_ItemViewItemDecoration, &cell);
        cell.icon.paint(painter, place, Qt::AlignCenter,
                        isSelected && cell.widget->hasFocus() ? QIcon::Selected : QIcon::Normal);
        room.setLeft(place.right() + kCellPadding);
    }
    const auto pieces = InfoElementsModel::textPieces(index);
    if (isRightAligned(index)) {
        room.setRight(room.right() -
                      (index.column() == InfoElementsModel::kElementColumn ? kBitsIndent : 0));
        room.setLeft(std::max(room.left(), room.right() - widthOf(pieces, cell.font)));
    }
    // All pieces stand on the line of the row's own font.
    const QFontMetricsF row(cell.font);
    const double baseline = room.center().y() + (row.ascent() - row.descent()) / 2;
    for (const TextPiece& piece : pieces) {
        const QFont font = fontOf(piece.style, cell.font);
        const QFontMetricsF metrics(font);
        const QString text = metrics.elidedText(piece.text, Qt::ElideRight, room.width());
        painter->setFont(font);
        painter->setPen(isSelected ? highlightColor(cell) : colorOf(piece.style, cell.palette));
        painter->drawText(QPointF(room.left(), baseline), text);
        if (text != piece.text)
            break;
        room.setLeft(room.left() + metrics.horizontalAdvance(text));
    }
    painter->restore();
}

QSize InfoElementDelegate::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    double width = widthOf(InfoElementsModel::textPieces(index), cell.font) + 2 * kCellPadding;
    if (index.column() == InfoElementsModel::kElementColumn)
        width += kBitsIndent + (cell.icon.isNull() ? 0 : cell.decorationSize.width());
    return QSizeF(width, QFontMetricsF(cell.font).height() + kRowPadding).toSize();
}

bool InfoElementDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                    const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const bool isCut = sizeHint(option, index).width() > option.rect.width();
    QToolTip::showText(event->globalPos(), isCut ? toolTipOf(index.data().toString()) : QString(),
                       view, option.rect);
    return true;
}

} // namespace tessara
