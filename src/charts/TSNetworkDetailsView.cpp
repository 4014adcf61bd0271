#include "charts/TSNetworkDetailsView.h"

#include "charts/ChartFrame.h"
#include "charts/DetailsLayout.h"
#include "charts/SignalLine.h"
#include "charts/TSThemeHelper.h"

#include <QPainter>

namespace tessara {

namespace {

constexpr std::int64_t kMaxTimescale = 28'800; // seconds
constexpr double kTopMargin = 10;
constexpr double kBelowChart = 18;
constexpr double kLineWidth = 2;
constexpr int kShortStretch = 24; // elements; several times faster, and opaque lines show no seams
constexpr double kAreaOpacity = 0.2;
constexpr double kVeilOpacity = 0.1;
constexpr double kNoiseLineWidth = 1;
constexpr double kNoiseLineOpacity = 0.75;
constexpr double kNoiseOpacity = 0.4;

} // namespace

TSNetworkDetailsView::TSNetworkDetailsView(const Clock& clock, QWidget* parent)
    : TSSignalStrengthView(clock, parent)
{
    setMaxTimescale(kMaxTimescale);
}

void TSNetworkDetailsView::setNetwork(NetworkPtr network)
{
    if (!network || !m_network || !network->bssidAndBandCompare(m_network->network()))
        clearHoverPoint();
    m_network = std::move(network);
    setHighlightedNetworks(m_network ? NetworkList{m_network} : NetworkList());
    configureCoCharts();
    setNeedsDisplay();
}

void TSNetworkDetailsView::setNetworks(const NetworkList& networks)
{
    TSSignalStrengthView::setNetworks(networks);
    // Hovering searches the network that is shown, whichever are selected.
    setHighlightedNetworks(m_network ? NetworkList{m_network} : NetworkList());
    configureCoCharts();
}

void TSNetworkDetailsView::setDisplayOnlyLastSeen(bool display)
{
    TSSignalStrengthView::setDisplayOnlyLastSeen(display);
    configureCoCharts();
}

void TSNetworkDetailsView::configureCoCharts()
{
    m_coCharts.setNetworks(networks(), m_network, displayOnlyLastSeen());
}

void TSNetworkDetailsView::setMetric(DetailsMetric metric)
{
    m_metric = metric;
    setNeedsDisplay();
}

QRectF TSNetworkDetailsView::rectForChart(const QRectF& view) const
{
    return m_coCharts.layout(view).chart;
}

double TSNetworkDetailsView::topMargin(const QRectF& /*view*/) const
{
    return kTopMargin;
}

void TSNetworkDetailsView::drawRect(QPainter& painter, const QRectF& view)
{
    TSSignalStrengthView::drawRect(painter, view);
    // The charts share one scale, which is labelled at both ends of the row.
    const CoChartsLayout layout = m_coCharts.layout(view);
    if (m_coCharts.willDrawCoSSID())
        drawFrame(painter, layout.coSSID, false, !m_coCharts.willDrawCoChannel());
    if (m_coCharts.willDrawCoChannel())
        drawFrame(painter, layout.coChannel, false, true);
}

void TSNetworkDetailsView::drawChart(QPainter& painter, const ChartScale& scale)
{
    const bool isAlone = !m_coCharts.willDrawCoSSID() && !m_coCharts.willDrawCoChannel();
    drawFrame(painter, scale.rect, true, isAlone);
}

void TSNetworkDetailsView::drawFrame(QPainter& painter, const QRectF& chart, bool leftLabels,
                                     bool rightLabels)
{
    ChartScale scale = chartScale(viewRect());
    scale.rect = chart;
    drawChartFrame(painter, scale,
                   {.metric = lineMetric(),
                    .leftLabels = leftLabels,
                    .rightLabels = rightLabels,
                    .isSparse = true},
                   windowScale());
}

void TSNetworkDetailsView::drawDataPoints(QPainter& painter, const ChartScale& scale)
{
    if (!m_network)
        return;
    drawXAxisMarks(painter, scale, {scale.rect.x(), scale.rect.y() - kBelowChart},
                   windowScale().fontSize(10, 9, 12), hasRecentScan());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setClipRect(chartClip(scale.rect), Qt::IntersectClip);
    if (willDrawNoise())
        drawNoise(painter, scale);
    drawLine(painter, scale);
    if (willDrawSignal() || !m_network->history().empty())
        painter.fillRect(qualityArea(*m_network, scale, lineMetric()),
                         withAlpha(Qt::white, kVeilOpacity));
    painter.restore();
}

void TSNetworkDetailsView::drawNoise(QPainter& painter, const ChartScale& scale) const
{
    const SampleLine noise =
        sampleLine(m_network->history(), scale, {.metric = Metric::kNoise, .hasArea = true});
    if (m_network->history().size() == 1) { // whose area is too thin to see
        const QPen pen =
            linePen(*m_network, withAlpha(Qt::white, kNoiseLineOpacity), kNoiseLineWidth);
        for (const QPainterPath& stretch : noise.stretches)
            painter.strokePath(stretch, pen);
    }
    for (const QPainterPath& area : noise.areas)
        painter.fillPath(area, withAlpha(Qt::white, kNoiseOpacity));
}

void TSNetworkDetailsView::drawLine(QPainter& painter, const ChartScale& scale) const
{
    LineShape shape{.metric = lineMetric(), .hasArea = true};
    if (!m_network->isAdHoc()) // whose dashes would begin anew
        shape.maxElements = kShortStretch;
    const SampleLine line = sampleLine(m_network->history(), scale, shape);
    const QPen pen = linePen(*m_network, withAlpha(m_network->color(), 1), kLineWidth);
    for (const QPainterPath& stretch : line.stretches)
        painter.strokePath(stretch, pen);
    for (const QPainterPath& area : line.areas)
        painter.fillPath(area, withAlpha(m_network->color(), kAreaOpacity));
}

void TSNetworkDetailsView::drawHover(QPainter& painter, const QRectF& view)
{
    const CoChartsLayout layout = m_coCharts.layout(view);
    const CoChartsLook look{.scale = chartScale(view),
                            .metric = lineMetric(),
                            .window = windowScale(),
                            .hasHoverPoint = hoverPoint().has_value()};
    if (m_coCharts.willDrawCoSSID())
        m_coCharts.drawCoSSIDNetworksChart(painter, layout.coSSID, look);
    if (m_coCharts.willDrawCoChannel())
        m_coCharts.drawCoChannelNetworksChart(painter, layout.coChannel, look);
    if (!m_network || !hoverPoint())
        return;
    // The search goes by the signal also where the bubble tells something else.
    if (willDrawNoise() && isAlternate())
        drawSampleBubble(painter, chartScale(view), Metric::kNoise, Qt::white);
    else
        drawSampleBubble(painter, chartScale(view), lineMetric(), hoverPoint()->color);
}

// The mouse -------------------------------------------------------------------------------------

void TSNetworkDetailsView::mouseMoved(const QPointF& mouse)
{
    TSSignalStrengthView::mouseMoved(mouse);
    if (m_coCharts.mouseMoved(mouse, viewRect()))
        setHoverNeedsDisplay();
}

void TSNetworkDetailsView::mouseExited()
{
    TSSignalStrengthView::mouseExited();
    if (m_coCharts.mouseExited())
        setHoverNeedsDisplay();
}

void TSNetworkDetailsView::mousePressEvent(QMouseEvent* event)
{
    TSSignalStrengthView::mousePressEvent(event);
    for (const QString& bssid : m_coCharts.pickedBssids())
        Q_EMIT userDidPickNetwork(bssid);
}

} // namespace tessara
