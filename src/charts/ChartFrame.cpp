#include "charts/ChartFrame.h"

#include "charts/ChartText.h"
#include "charts/TSThemeHelper.h"
#include "charts/TimeAxis.h"
#include "charts/ValueAxis.h"
#include "foundation/Localized.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

constexpr double kGridOpacity = 0.2;
constexpr double kBorderOpacity = 0.3;
constexpr double kTickLength = 5;

QPainterPath gridLines(const ChartScale& scale, const ChartFrame& frame)
{
    const int marks = valueMarks(frame.metric, scale.units);
    QPainterPath lines;
    for (int mark = 1; mark <= marks; ++mark) {
        if (frame.isSparse && (mark % 2 == 0 || !isMarkKept(mark, frame.metric, scale)))
            continue;
        const double y = scale.rect.y() + mark * scale.plotHeight() / marks;
        lines.moveTo(scale.rect.x(), y);
        lines.lineTo(scale.rect.x() + scale.rect.width(), y);
    }
    return lines;
}

void drawYAxisMarks(QPainter& painter, const ChartScale& scale, const ChartFrame& frame,
                    LabelSide side, double fontSize)
{
    for (const ValueLabel& label : valueLabels(scale, frame.metric, frame.isSparse ? 2 : 1, side))
        centerTextInContextAtOrigin(painter, label.origin, label.text, {fontSize, label.color});
}

} // namespace

QPen axisPen(const QPainter& painter, const QColor& color)
{
    const double pixelsPerPoint = std::abs(painter.deviceTransform().m11());
    const double pixels = std::max(std::round(pixelsPerPoint), 1.0);
    return {color, pixels / pixelsPerPoint, Qt::SolidLine, Qt::FlatCap};
}

void drawChartFrame(QPainter& painter, const ChartScale& scale, const ChartFrame& frame,
                    const WindowScale& window)
{
    constexpr double kSmallestFont = 10;
    constexpr double kLargestFont = 12;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(scale.rect, TSThemeHelper::backgroundColorForChart());
    QPen grid = axisPen(painter, withAlpha(Qt::white, kGridOpacity));
    grid.setDashPattern({1, 1});
    painter.strokePath(gridLines(scale, frame), grid);
    QPen border = axisPen(painter, withAlpha(Qt::white, kBorderOpacity));
    border.setJoinStyle(Qt::MiterJoin);
    painter.setPen(border);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(scale.rect);
    const double fontSize = window.fontSize(kLargestFont, kSmallestFont, kLargestFont);
    if (frame.leftLabels)
        drawYAxisMarks(painter, scale, frame, LabelSide::kLeft, fontSize);
    if (frame.rightLabels)
        drawYAxisMarks(painter, scale, frame, LabelSide::kRight, fontSize);
    painter.restore();
}

QRectF chartClip(const QRectF& chart)
{
    return chart.adjusted(0, -1, 0, 1);
}

void drawXAxisMarks(QPainter& painter, const ChartScale& scale, const QPointF& origin,
                    double fontSize, bool isNow)
{
    const TextAttributes attributes{fontSize, Qt::white};
    if (isNow) {
        centerTextInContextAtOrigin(painter, {origin.x() + scale.rect.width(), origin.y()},
                                    localized("Now"), attributes);
    }
    const TimeTicks axis = timeTicks(scale);
    QPainterPath lines;
    for (const TimeTick& tick : axis.ticks) {
        centerTextInContextAtOrigin(
            painter, {tick.x, origin.y()},
            timeStringWithFormat(static_cast<double>(tick.time), axis.format), attributes);
        if (tick.hasLine) {
            lines.moveTo(tick.x, scale.rect.y() - kTickLength);
            lines.lineTo(tick.x, scale.rect.y());
        }
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.strokePath(lines, axisPen(painter, Qt::white));
    painter.restore();
}

} // namespace tessara
