#pragma once

#include <QLineF>
#include <QPainterPath>
#include <QRectF>

#include <optional>

namespace tessara {

// Cuts shapes at the edges of a chart. A painter's own clip will not do alone: pictures of vectors
// may be written without it.

/// The part of a line within a rectangle, its direction kept; none of a line that only touches it.
std::optional<QLineF> clippedLine(const QLineF& line, const QRectF& rect);

/// What of a path's lines lies within a rectangle; a path that lies within it as it is.
QPainterPath clippedOutline(const QPainterPath& path, const QRectF& rect);

/// What of the areas of a path, each closed, lies within a rectangle.
QPainterPath clippedArea(const QPainterPath& path, const QRectF& rect);

} // namespace tessara
