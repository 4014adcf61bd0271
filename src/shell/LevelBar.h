#pragma once

#include <QColor>
#include <QRectF>

#include <cstdint>

class QPainter;

namespace tessara {

/// What a level bar shows: how far a level reaches along a track, and, paler, how far it once
/// reached.
struct LevelBar {
    std::int64_t level = -1;    ///< per cent of the track; negative for no bar at all
    std::int64_t levelMax = -1; ///< per cent of the track
    QColor color;
    double indent = 0; ///< of the track from the left edge of the cell
};

/// Where the parts of a level bar lie in its cell. Rectangles may be empty.
struct LevelBarGeometry {
    QRectF bar;
    QRectF peak; ///< from the end of the bar to the highest level
    QRectF outline;
};

/// The parts of a bar in a cell, all in the units of `cell`.
LevelBarGeometry levelBarGeometry(const QRectF& cell, const LevelBar& bar);

/// Paints a bar into its cell: the level in the bar's colour, the peak and the track in paler ones.
void paintLevelBar(QPainter& painter, const QRectF& cell, const LevelBar& bar);

} // namespace tessara
