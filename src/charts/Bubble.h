#pragma once

#include "charts/ChartScale.h"
#include "charts/WindowScale.h"

#include <QColor>
#include <QLineF>
#include <QPainterPath>
#include <QString>

class QPainter;

namespace tessara {

/// The parts of a bubble that tells a value of a chart.
struct BubbleGeometry {
    QLineF guide; ///< upright through the point
    QPainterPath outline;
    QRectF dot;         ///< a circle on the point
    QPointF textOrigin; ///< where the text is centred
    QPointF markOrigin; ///< where the text above the chart is centred
};

/// The size of a bubble's text, in points.
double bubbleFontSize(const WindowScale& window);

/// A bubble that hangs to the left of a point and above it, and on the other side where it would
/// leave the chart there.
BubbleGeometry bubbleGeometry(const QRectF& chart, const QPointF& point, const QSizeF& text,
                              const WindowScale& window);

/// Paints a bubble at a point of a chart.
/// @param text in the bubble
/// @param mark above the chart
void drawBubble(QPainter& painter, const QRectF& chart, const QString& text, const QString& mark,
                const QPointF& point, const QColor& color, const WindowScale& window);

} // namespace tessara
