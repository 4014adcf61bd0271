#include "charts/SignalLine.h"

#include <optional>

namespace tessara {

namespace {

constexpr double kLongestGap = 60; // seconds between samples that are joined
constexpr double kStubLength = 3;  // of the line of a single sample
constexpr double kOverlap = 0.075; // of neighbouring stretches

/// Collects a line, newest sample first.
class LineBuilder {
public:
    LineBuilder(const ChartScale& scale, const LineShape& shape)
        : m_floor(scale.rect.y())
        , m_shape(shape)
    {
    }

    void addStub(const QPointF& rightEnd)
    {
        m_line.moveTo(rightEnd.x() - kStubLength, rightEnd.y());
        m_line.lineTo(rightEnd);
    }

    void beginPiece(const QPointF& point)
    {
        if (m_shape.hasArea && m_areaStart)
            endStretch(m_last);
        m_line.moveTo(point);
        if (!m_areaStart)
            m_areaStart = point;
        m_last = point;
    }

    void addPoint(const QPointF& point)
    {
        m_line.lineTo(point);
        m_last = point;
        if (m_line.elementCount() > m_shape.maxElements) {
            endStretch(point);
            m_line.moveTo(point.x() + kOverlap, point.y());
            m_areaStart = point;
        }
    }

    std::vector<LineStretch> finish()
    {
        if (m_areaStart) {
            m_areaStart->rx() += kOverlap;
            endStretch(m_last);
        }
        return std::move(m_stretches);
    }

private:
    void endStretch(const QPointF& last)
    {
        LineStretch stretch{std::move(m_line), {}};
        m_line = {};
        if (m_shape.hasArea) {
            stretch.area = stretch.line;
            stretch.area.lineTo(last.x(), m_floor);
            stretch.area.lineTo(m_areaStart->x(), m_floor);
            stretch.area.lineTo(*m_areaStart);
            stretch.area.closeSubpath();
        }
        m_stretches.push_back(std::move(stretch));
        m_areaStart.reset();
    }

    double m_floor;
    LineShape m_shape;
    QPainterPath m_line;
    std::optional<QPointF> m_areaStart; ///< the newest point of the area
    QPointF m_last;
    std::vector<LineStretch> m_stretches;
};

} // namespace

std::vector<LineStretch> sampleLine(const std::deque<TSDataPoint>& history, const ChartScale& scale,
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

} // namespace tessara
