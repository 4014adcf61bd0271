#pragma once

#include "charts/ChartScale.h"
#include "charts/WindowScale.h"

#include <QColor>
#include <QPen>

class QPainter;

namespace tessara {

/// A pen for lines along the axes, one point wide and as near to it as whole pixels come: without
/// antialiasing all of its lines are equally wide, at any scale of the screen.
QPen axisPen(const QPainter& painter, const QColor& color);

/// What the frame of a chart shows.
struct ChartFrame {
    Metric metric = Metric::kSignal;
    bool leftLabels = true;
    bool rightLabels = false;
    /// Every second mark only, and in a low chart no line without a label.
    bool isSparse = false;
};

/// Paints the ground of a chart, its grid, its border and the labels of its values.
void drawChartFrame(QPainter& painter, const ChartScale& scale, const ChartFrame& frame,
                    const WindowScale& window);

/// Where lines of a chart end: lines along its edges keep their width.
QRectF chartClip(const QRectF& chart);

/// Paints the times below a chart.
/// @param origin the left end of the axis, and where the baselines of its texts lie
/// @param fontSize points
/// @param isNow whether the right edge is told as "Now"
void drawXAxisMarks(QPainter& painter, const ChartScale& scale, const QPointF& origin,
                    double fontSize, bool isNow);

} // namespace tessara
