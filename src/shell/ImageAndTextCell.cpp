#include "shell/ImageAndTextCell.h"

#include "charts/TSThemeHelper.h"
#include "shell/GlyphIcon.h"
#include "shell/LegibleColor.h"
#include "shell/SideViewModel.h"

#include <QPainter>
#include <QWidget>

#include <cmath>

namespace tessara {

namespace {

constexpr int kRowPadding = 5; // above and below the text together
constexpr int kGap = 4;        // between image and text
constexpr double kItemMargin = 12;
constexpr double kDetailMargin = 12;

struct Look {
    double leftMargin = 0;
    double rightMargin = 0;
    QColor textColor = {};
    std::optional<Glyph> image = std::nullopt;
    QColor imageColor = {};
};

Look lookOf(const TSSideViewItem& item, int column, const QPalette& palette)
{
    using Theme = TSThemeHelper;
    const bool isDetail = column == SideViewModel::kDetailColumn;
    if (item.identifier == QLatin1String("group"))
        return {.textColor = dimmed(palette)};
    if (item.identifier == QLatin1String("category")) {
        const QColor color = legible(Theme::textColorForCategory(), palette);
        if (isDetail)
            return {.rightMargin = kDetailMargin, .textColor = color};
        return {.textColor = color, .image = Glyph::kCategory, .imageColor = color};
    }
    Look look{.textColor = legible(Theme::textColorForItem(), palette)};
    if (isDetail)
        return look;
    look.leftMargin = kItemMargin;
    look.image = Glyph::kDot;
    look.imageColor =
        isDark(palette) ? QColor::fromRgbF(1, 0.5F, 0) : QColor::fromRgbF(0.98F, 0.76F, 0.1F);
    return look;
}

} // namespace

void ImageAndTextCell::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    const bool isHighlighted = cell.state.testFlag(QStyle::State_Selected);
    const QColor highlight = cell.palette.color(QPalette::HighlightedText);
    const TSSideViewItem& item = static_cast<const SideViewModel*>(index.model())->itemAt(index);
    const Look look = lookOf(item, index.column(), cell.palette);

    painter->save();
    QRectF room = cell.rect;
    room.adjust(look.leftMargin, 0, -look.rightMargin, 0);
    if (look.image) {
        const int side = cell.fontMetrics.ascent();
        painter->drawPixmap(QPointF(room.left(), room.center().y() - side / 2.0),
                            glyphPixmap(*look.image, isHighlighted ? highlight : look.imageColor,
                                        side, painter->device()->devicePixelRatioF()));
        room.setLeft(room.left() + side + kGap);
    }
    painter->setFont(cell.font);
    painter->setPen(isHighlighted ? highlight : look.textColor);
    painter->drawText(
        room, static_cast<int>(cell.displayAlignment),
        cell.fontMetrics.elidedText(cell.text, Qt::ElideRight, static_cast<int>(room.width())));
    painter->restore();
}

QSize ImageAndTextCell::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const TSSideViewItem& item = static_cast<const SideViewModel*>(index.model())->itemAt(index);
    const Look look = lookOf(item, index.column(), cell.palette);
    // Rounded down, the text would be cut.
    double width = look.leftMargin + look.rightMargin +
                   std::ceil(QFontMetricsF(cell.font).horizontalAdvance(cell.text));
    if (look.image)
        width += cell.fontMetrics.ascent() + kGap;
    return QSizeF(width, cell.fontMetrics.height() + kRowPadding).toSize();
}

} // namespace tessara
