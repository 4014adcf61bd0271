#include "shell/LevelBar.h"

#include <QPainter>

#include <cmath>

namespace tessara {

namespace {

constexpr double kTopMargin = 3;
constexpr double kMargins = 7; // above and below together
constexpr double kRightMargin = 5;
constexpr double kOutlineWidth = 0.5;
constexpr float kPeakOpacity = 0.25F;

double lengthOf(std::int64_t percent, double track)
{
    return std::trunc(static_cast<double>(percent) * track / 100 + 0.5);
}

} // namespace

LevelBarGeometry levelBarGeometry(const QRectF& cell, const LevelBar& bar)
{
    const double track = cell.width() - (bar.indent + kRightMargin);
    const double height = cell.height() - kMargins;
    if (bar.level < 0 || track <= 0 || height <= 0)
        return {};
    const QPointF start(cell.x() + bar.indent, cell.y() + kTopMargin);
    const double length = lengthOf(bar.level, track);
    LevelBarGeometry geometry{
        .bar = {start, QSizeF(length, height)},
        .peak = {},
        .outline = {start.x() - kOutlineWidth / 2, start.y() - kOutlineWidth / 2,
                    track + kOutlineWidth, height + kOutlineWidth},
    };
    if (bar.levelMax > bar.level)
        geometry.peak = {start.x() + length, start.y(), lengthOf(bar.levelMax, track) - length,
                         height};
    return geometry;
}

void paintLevelBar(QPainter& painter, const QRectF& cell, const LevelBar& bar)
{
    const LevelBarGeometry geometry = levelBarGeometry(cell, bar);
    if (geometry.outline.isEmpty())
        return;
    QColor pale = bar.color;
    pale.setAlphaF(kPeakOpacity);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(geometry.bar, bar.color);
    painter.fillRect(geometry.peak, pale);
    painter.setPen(QPen(bar.color, kOutlineWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(geometry.outline);
    painter.restore();
}

} // namespace tessara
