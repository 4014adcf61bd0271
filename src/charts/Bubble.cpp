#include "charts/Bubble.h"

#include "charts/ChartFrame.h"
#include "charts/ChartText.h"
#include "charts/RoundedCorner.h"
#include "charts/TSThemeHelper.h"

#include <QPainter>

#include <algorithm>

namespace tessara {

namespace {

constexpr double kLargestScale = 1.2;
constexpr double kAboveChart = 9;
constexpr double kGuideAboveChart = 5;

/// The measures of a bubble in a window.
struct Measures {
    double sx, sy;
    double beside, above; ///< distances from the point
    double textPadding, lineHeightPadding;
    double radius;
    double dot;
};

Measures measuresOf(const WindowScale& window)
{
    const double sx = std::min(kLargestScale, window.horizontal);
    const double sy = std::min(kLargestScale, window.vertical);
    return {.sx = sx,
            .sy = sy,
            .beside = 10 * sx * sy,
            .above = 6 * sx * sy,
            .textPadding = std::min(18.0, 18 * sx),
            .lineHeightPadding = std::min(4.0, 4 * sy),
            .radius = 5 * sx * sy,
            .dot = 6 * sy};
}

/// A soft shadow down to the right: paler the farther out.
void drawShadow(QPainter& painter, const QPainterPath& outline)
{
    constexpr QPointF kOffset(3, -3);
    constexpr int kBlur = 3;
    constexpr double kOpacity = 0.3;
    const QColor color = withAlpha(Qt::black, kOpacity / (kBlur + 1));
    const QPainterPath shadow = outline.translated(kOffset);
    painter.fillPath(shadow, color);
    for (int width = 1; width <= kBlur; ++width) {
        QPainterPathStroker stroker(
            QPen(Qt::black, 2 * width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.fillPath(stroker.createStroke(shadow).united(shadow), color);
    }
}

} // namespace

double bubbleFontSize(const WindowScale& window)
{
    constexpr double kSmallestFont = 9;
    return std::max(measuresOf(window).beside, kSmallestFont);
}

BubbleGeometry bubbleGeometry(const QRectF& chart, const QPointF& point, const QSizeF& text,
                              const WindowScale& window)
{
    const Measures m = measuresOf(window);
    const double width = text.width() * m.sx + m.textPadding;
    const double height = text.height() * m.sy + m.lineHeightPadding;
    const bool isRight = chart.x() >= point.x() - m.beside - width;
    const bool isBelow = point.y() + m.above + height >= chart.y() + chart.height();
    // A place of the shape, by its distances from the point: sideways and up or down.
    const auto at = [&](double away, double up) {
        return point + QPointF(isRight ? away : -away, isBelow ? -up : up);
    };

    BubbleGeometry bubble;
    const double top = chart.y() + chart.height();
    bubble.guide = {{point.x(), chart.y()}, {point.x(), top + kGuideAboveChart}};
    const double far = m.beside + width;
    const double high = m.above + height;
    QPainterPath& path = bubble.outline;
    path.moveTo(point);
    path.lineTo(at(2 * m.beside, m.above));
    path.lineTo(at(far - m.radius, m.above));
    addCorner(path, at(far, m.above), at(far, m.above + m.radius));
    path.lineTo(at(far, high - m.radius));
    addCorner(path, at(far, high), at(far - m.radius, high));
    path.lineTo(at(m.beside + m.radius, high));
    addCorner(path, at(m.beside, high), at(m.beside, high - m.radius));
    path.lineTo(at(m.beside, 2 * m.above));
    path.closeSubpath();

    bubble.dot = {point.x() - m.dot / 2, point.y() - m.dot / 2, m.dot, m.dot};
    const double x = isRight ? point.x() + width + 2 * m.beside : point.x();
    const double y = isBelow ? point.y() - height - 2 * m.above : point.y();
    bubble.textOrigin = {x - width / 2 - m.beside, y + height / 2 + 3 * m.sx};
    // On the right the mark stands beside the guide, and it is meant so.
    bubble.markOrigin = {x, top + kAboveChart};
    return bubble;
}

void drawBubble(QPainter& painter, const QRectF& chart, const QString& text, const QString& mark,
                const QPointF& point, const QColor& color, const WindowScale& window)
{
    constexpr double kLargestMark = 12;
    const double fontSize = bubbleFontSize(window);
    const TextAttributes attributes{fontSize, Qt::white};
    const BubbleGeometry bubble =
        bubbleGeometry(chart, point, sizeOfText(text, attributes, *painter.device()), window);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(axisPen(painter, withAlpha(color, 0.5)));
    painter.drawLine(bubble.guide);

    painter.setRenderHint(QPainter::Antialiasing, true);
    drawShadow(painter, bubble.outline);
    const QColor ink = withAlpha(Qt::black, 0.5);
    painter.setPen(QPen(ink, 1));
    painter.setBrush(QColor::fromRgbF(0.5F, 0.5F, 0.5F, 0.7F));
    painter.drawPath(bubble.outline);
    painter.setPen(QPen(ink, 0.5));
    painter.setBrush(color);
    painter.drawEllipse(bubble.dot);
    painter.restore();
    centerTextInContextAtOrigin(painter, bubble.textOrigin, text, attributes);
    centerTextInContextAtOrigin(painter, bubble.markOrigin, mark,
                                {std::min(fontSize, kLargestMark), Qt::white});
}

} // namespace tessara
