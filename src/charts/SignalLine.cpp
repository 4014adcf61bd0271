#include "charts/SignalLine.h"

#include "charts/ChartFrame.h"
#include "charts/Clipping.h"

#include <utility>

namespace tessara {

namespace {

constexpr double kLongestGap = 60; // seconds between samples that are joined
constexpr double kStubLength = 3;  // of the line of a single sample
constexpr double kSliver = 0.075;  // by which an area reaches beyond its newest sample

/// Collects a line, newest sample first.
class LineBuilder {
public:
    LineBuilder(const ChartScale& scale, const LineShape& shape)
        : m_clip(chartClip(scale.rect))
        , m_floor(scale.rect.y())
        , m_shape(shape)
    {
    }

    void addStub(const QPointF& rightEnd)
    {
        m_stretch.moveTo(rightEnd.x() - kStubLength, rightEnd.y());
        m_stretch.lineTo(rightEnd);
    }

    void beginPiece(const QPointF& point)
    {
        if (m_shape.hasArea && m_area.elementCount() > 0)
            endPiece(m_area.elementAt(0).x);
        m_stretch.moveTo(point);
        if (m_shape.hasArea)
            m_area.moveTo(point);
    }

    void addPoint(const QPointF& point)
    {
        m_stretch.lineTo(point);
        if (m_shape.hasArea)
            m_area.lineTo(point);
        if (m_stretch.elementCount() > m_shape.maxElements) {
            endStretch();
            m_stretch.moveTo(point.x() + kSliver, point.y());
        }
    }

    SampleLine finish()
    {
        if (m_shape.hasArea && m_area.elementCount() > 0)
            endPiece(m_area.elementAt(0).x + kSliver);
        else if (!m_stretch.isEmpty())
            endStretch();
        return std::move(m_result);
    }

private:
    void endStretch()
    {
        m_result.stretches.push_back(clippedOutline(std::exchange(m_stretch, {}), m_clip));
    }

    /// @param newest the x where the area ends on its floor
    void endPiece(double newest)
    {
        endStretch();
        const QPointF start = m_area.elementAt(0);
        m_area.lineTo(m_area.currentPosition().x(), m_floor);
        m_area.lineTo(newest, m_floor);
        m_area.lineTo(newest, start.y());
        m_area.closeSubpath();
        m_result.areas.push_back(clippedArea(std::exchange(m_area, {}), m_clip));
    }

    QRectF m_clip;
    double m_floor;
    LineShape m_shape;
    QPainterPath m_stretch;
    QPainterPath m_area;
    SampleLine m_result;
};

} // namespace

SampleLine sampleLine(const std::deque<TSDataPoint>& history, const ChartScale& scale,
                      const LineShape& shape)
{
    LineBuilder line(scale, shape);
    const TSDataPoint* previous = nullptr;
    for (auto sample = history.rbegin(); sample != history.rend(); ++sample) {
        const QPointF point = scale.makePointInRect(*sample, shape.metric);
        if (history.size() == 1)
            line.addStub({scale.rect.x() + scale.rect.width(), point.y()});
        if (previous && previous->timestamp() - sample->timestamp() <= kLongestGap)
            line.addPoint(point);
        else
            line.beginPiece(point);
        if (scale.referenceTime - sample->timestamp() > static_cast<double>(scale.timescale))
            break; // this one leads the line out of the chart
        previous = &*sample;
    }
    return line.finish();
}

QPen linePen(const TSNetwork& network, const QColor& color, double width)
{
    QPen pen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin);
    if (network.isAdHoc())
        pen.setDashPattern({5 / width, 3 / width});
    return pen;
}

} // namespace tessara
