#pragma once

#include <QColor>
#include <QRectF>

#include <cstdint>

class QPainter;

namespace tessara {

/// How the row of a cell stands out.
enum class RowHighlight {
    kNone,
    kInactive, ///< selected, and the keyboard is elsewhere
    kActive,   ///< selected, in the table that has the keyboard
};

/// Where the parts of a level bar lie in its cell. Rectangles may be empty.
struct LevelBarGeometry {
    QRectF bar;
    QRectF peak; ///< from the end of the bar to the highest level
    QRectF outline;
};

/// A cell of a table that shows a level as a small bar along a track, and, paler, how far it once
/// reached. The text over it is the table's to paint.
struct TSLevelIndicatorCell {
    std::int64_t barLevel = -1;    ///< per cent of the track; negative for no bar at all
    std::int64_t barLevelMax = -1; ///< per cent of the track
    QColor barColor;
    double barAlpha = 0;  ///< of `barColor`; 0 stands for 1
    double barIndent = 0; ///< of the track from the left edge of the cell
    bool isGrayedOut = false;

    /// The colour of the bar in a row.
    QColor color(RowHighlight highlight) const;
    /// The parts of the bar, all in the units of the frame, y growing downward.
    LevelBarGeometry geometry(const QRectF& frame) const;
    /// Paints the bar into its cell.
    void drawWithFrame(QPainter& painter, const QRectF& frame, RowHighlight highlight) const;
    /// The size for a text and the bar beside it, not wider than the bounds.
    static QSizeF cellSizeForBounds(const QSizeF& text, const QSizeF& bounds);
};

} // namespace tessara
