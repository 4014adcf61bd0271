#pragma once

#include <QPainterPath>
#include <QRectF>

namespace tessara {

// Cuts shapes at the edges of a chart. A painter's own clip will not do alone: pictures of vectors
// may be written without it.

/// What of a path's lines lies within a rectangle; a path that lies within it as it is.
QPainterPath clippedOutline(const QPainterPath& path, const QRectF& rect);

/// What of the areas of a path, each closed, lies within a rectangle.
QPainterPath clippedArea(const QPainterPath& path, const QRectF& rect);

} // namespace tessara
