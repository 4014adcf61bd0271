#include "charts/PaintRecording.h"

#include <utility>

namespace tessara {

namespace {

constexpr qsizetype kTextCost = 10;
constexpr qsizetype kPathCost = 10; // and one for each of its elements

/// Takes the steps of a recording, each by its kind.
struct Player {
    QPainter& painter;
    QTransform base; ///< what the painter had before

    void operator()(const PaintRecording::State& state) const
    {
        painter.setTransform(state.transform * base);
        painter.setPen(state.pen);
        painter.setBrush(state.brush);
        painter.setFont(state.font);
        painter.setOpacity(state.opacity);
        painter.setRenderHints(painter.renderHints() & ~state.hints, false);
        painter.setRenderHints(state.hints, true);
    }
    void operator()(const PaintRecording::Clip& clip) const
    {
        const QTransform transform = painter.transform();
        painter.setTransform(clip.transform * base);
        if (clip.operation == Qt::NoClip)
            painter.setClipping(false);
        else
            painter.setClipPath(clip.path, clip.operation);
        painter.setTransform(transform);
    }
    void operator()(const QPainterPath& path) const { painter.drawPath(path); }
    void operator()(const PaintRecording::Text& text) const
    {
        painter.drawText(text.origin, text.text);
    }
};

} // namespace

void PaintRecording::add(Step step, qsizetype cost)
{
    m_steps.push_back(std::move(step));
    m_cost += cost;
}

void PaintRecording::replay(QPainter& painter) const
{
    painter.save();
    const Player player{painter, painter.transform()};
    for (const Step& step : m_steps)
        std::visit(player, step);
    painter.restore();
}

// The recorder ----------------------------------------------------------------------------------

PaintRecorder::PaintRecorder(const QSize& size, int dotsPerInch)
    : m_size(size)
    , m_dotsPerInch(dotsPerInch)
    , m_engine(m_recording)
{
}

int PaintRecorder::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return m_dotsPerInch;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}

PaintRecorder::Engine::Engine(PaintRecording& recording)
    : QPaintEngine(AllFeatures)
    , m_recording(recording)
{
}

bool PaintRecorder::Engine::begin(QPaintDevice* /*device*/)
{
    return true;
}

bool PaintRecorder::Engine::end()
{
    return true;
}

/// A state counts when something is painted in it; most are replaced before that.
void PaintRecorder::Engine::updateState(const QPaintEngineState& state)
{
    m_state = {state.transform(), state.pen(),     state.brush(),
               state.font(),      state.opacity(), state.renderHints()};
    m_isStateRecorded = false;
    const DirtyFlags changes = state.state();
    if (changes.testFlag(DirtyClipRegion)) {
        QPainterPath path;
        path.addRegion(state.clipRegion());
        m_recording.add(PaintRecording::Clip{path, state.clipOperation(), state.transform()}, 1);
    }
    if (changes.testFlag(DirtyClipPath)) {
        m_recording.add(
            PaintRecording::Clip{state.clipPath(), state.clipOperation(), state.transform()}, 1);
    }
}

void PaintRecorder::Engine::drawPath(const QPainterPath& path)
{
    add(path, kPathCost + path.elementCount());
}

void PaintRecorder::Engine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode)
{
    QPainterPath path(points[0]);
    for (int i = 1; i < count; ++i)
        path.lineTo(points[i]);
    if (mode != PolylineMode) {
        path.closeSubpath();
        drawPath(path);
        return;
    }
    // A line encloses nothing.
    const QBrush brush = std::exchange(m_state.brush, Qt::NoBrush);
    m_isStateRecorded = false;
    drawPath(path);
    m_state.brush = brush;
    m_isStateRecorded = false;
}

void PaintRecorder::Engine::drawTextItem(const QPointF& origin, const QTextItem& item)
{
    add(PaintRecording::Text{origin, item.text()}, kTextCost);
}

void PaintRecorder::Engine::drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/,
                                       const QRectF& /*from*/)
{
    Q_ASSERT_X(false, "PaintRecorder", "no chart paints a pixmap");
}

void PaintRecorder::Engine::add(PaintRecording::Step step, qsizetype cost)
{
    if (!std::exchange(m_isStateRecorded, true))
        m_recording.add(m_state, 1);
    m_recording.add(std::move(step), cost);
}

} // namespace tessara
