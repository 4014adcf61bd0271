#include "charts/TSLevelIndicatorCell.h"

#include "charts/TSThemeHelper.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

constexpr double kTopMargin = 3;
constexpr double kMargins = 7; // above and below together
constexpr double kRightMargin = 5;
constexpr double kOutlineWidth = 0.5;
constexpr double kPeakOpacity = 0.25;
constexpr double kRoomForBar = 60; // beside the text

double lengthOf(std::int64_t percent, double track)
{
    return std::trunc(static_cast<double>(percent) * track / 100 + 0.5);
}

} // namespace

QColor TSLevelIndicatorCell::color(RowHighlight highlight) const
{
    switch (highlight) {
    case RowHighlight::kActive:
        return isGrayedOut ? withAlpha(Qt::white, 0.3) : withAlpha(Qt::cyan, 0.7);
    case RowHighlight::kInactive:
        return withAlpha(darkGray(), isGrayedOut ? 0.3 : 0.5);
    case RowHighlight::kNone:
        break;
    }
    return isGrayedOut ? withAlpha(lightGray(), 0.5)
                       : withAlpha(barColor, barAlpha == 0 ? 1 : barAlpha);
}

LevelBarGeometry TSLevelIndicatorCell::geometry(const QRectF& frame) const
{
    const double track = frame.width() - (barIndent + kRightMargin);
    const double height = frame.height() - kMargins;
    if (barLevel < 0 || track <= 0 || height <= 0)
        return {};
    const QPointF start(frame.x() + barIndent, frame.y() + kTopMargin);
    const double length = lengthOf(barLevel, track);
    LevelBarGeometry geometry{
        .bar = {start, QSizeF(length, height)},
        .peak = {},
        .outline = {start.x() - kOutlineWidth / 2, start.y() - kOutlineWidth / 2,
                    track + kOutlineWidth, height + kOutlineWidth},
    };
    if (barLevelMax > barLevel)
        geometry.peak = {start.x() + length, start.y(), lengthOf(barLevelMax, track) - length,
                         height};
    return geometry;
}

void TSLevelIndicatorCell::drawWithFrame(QPainter& painter, const QRectF& frame,
                                         RowHighlight highlight) const
{
    const LevelBarGeometry parts = geometry(frame);
    if (parts.outline.isEmpty())
        return;
    const QColor ink = color(highlight);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(parts.bar, ink);
    painter.fillRect(parts.peak, withAlpha(ink, kPeakOpacity));
    painter.setPen(QPen(ink, kOutlineWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(parts.outline);
    painter.restore();
}

QSizeF TSLevelIndicatorCell::cellSizeForBounds(const QSizeF& text, const QSizeF& bounds)
{
    return {std::min(text.width() + kRoomForBar, bounds.width()), text.height()};
}

} // namespace tessara
