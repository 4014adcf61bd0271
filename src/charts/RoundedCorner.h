#pragma once

#include <QPainterPath>

namespace tessara {

/// Adds a quarter of a circle from the current position, which lies a radius before a corner.
inline void addCorner(QPainterPath& path, const QPointF& corner, const QPointF& end)
{
    constexpr double kCircle = 0.5522847498; // of the way to the corner
    const QPointF start = path.currentPosition();
    path.cubicTo(start + kCircle * (corner - start), end + kCircle * (corner - end), end);
}

} // namespace tessara
