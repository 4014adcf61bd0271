#include "charts/CoCharts.h"

#include "charts/ChartFrame.h"
#include "charts/ChartText.h"
#include "charts/TSThemeHelper.h"
#include "foundation/Localized.h"

#include <QPainter>

#include <algorithm>
#include <functional>
#include <utility>

namespace tessara {

namespace {

constexpr double kLabelsAboveChart = 9;
constexpr double kCaptionBelowChart = 18;

const TSDataPoint& sampleOfBar(const TSNetwork& network, bool onlyLastSeen)
{
    static const TSDataPoint kNone(TSDataPoint::kNoData, TSDataPoint::kNoData, -1, -1, 0);
    const auto& history = network.history();
    if (history.empty())
        return kNone;
    if (onlyLastSeen)
        return history.back();
    const auto newest =
        std::find_if(history.rbegin(), history.rend(), std::mem_fn(&TSDataPoint::hasData));
    return newest == history.rend() ? history.back() : *newest;
}

double labelSize(const WindowScale& window)
{
    constexpr double kLargestScale = 1.2;
    return std::clamp(std::min(kLargestScale, window.horizontal) *
                          std::min(kLargestScale, window.vertical) * 10,
                      9.0, 12.0);
}

QString nameOf(const TSNetwork& network)
{
    return network.isHidden() ? network.deviceid() : network.ssid();
}

void drawCaption(QPainter& painter, const QRectF& chart, const CoNetworks& networks, QString text,
                 const QColor& color, const WindowScale& window)
{
    if (networks.networks.size() < networks.total)
        text += QStringLiteral(" [%1/%2]").arg(networks.networks.size()).arg(networks.total);
    centerTextInContextAtOrigin(painter, {chart.center().x(), chart.y() - kCaptionBelowChart}, text,
                                {window.fontSize(10, 9, 12), color});
}

void fillBar(QPainter& painter, const QRectF& bar, const QColor& color)
{
    if (bar.height() > 0)
        painter.fillRect(bar, color);
}

/// Tells a bar above the chart.
void drawLabel(QPainter& painter, const NetworkBars& bars, const QRectF& bar, const QString& text,
               const QColor& color, const WindowScale& window)
{
    painter.strokePath(bars.bracket(bar), axisPen(painter, color));
    const double y = bars.chart().y() + bars.chart().height() + kLabelsAboveChart;
    centerTextInContextAtOrigin(painter, {bar.center().x(), y}, text,
                                {labelSize(window), Qt::white});
}

/// Clears the ground of a label that runs over what lies to the left of the chart.
void drawLabelGround(QPainter& painter, const NetworkBars& bars, const QRectF& bar,
                     const QString& text, const WindowScale& window)
{
    constexpr double kOverhang = 5;
    constexpr double kWidth = 400;
    const QRectF& chart = bars.chart();
    const double center = bar.center().x();
    const QSizeF size = sizeOfText(text, {labelSize(window), Qt::white}, *painter.device());
    if (center - size.width() / 2 < chart.x() - kOverhang) {
        painter.fillRect(
            QRectF(center - kWidth, chart.y() + chart.height() + 6, kWidth, size.height() + 2),
            TSThemeHelper::backgroundColorForChartView());
    }
}

void drawBandStrips(QPainter& painter, const NetworkBars& bars, const NetworkList& networks,
                    bool hasTitles, const WindowScale& window)
{
    constexpr double kTitleAboveStrip = 6;
    const auto count = [&](Band band) {
        return static_cast<std::size_t>(
            std::ranges::count_if(networks, [band](const NetworkPtr& network) {
                return isChannelOfBand(network->channel(), band);
            }));
    };
    const bool isLow = networks.front()->is2Dot4GHz();
    const Band same = isLow ? Band::k2Dot4GHz : Band::k5GHz;
    const Band other = isLow ? Band::k5GHz : Band::k2Dot4GHz;
    const BandStrips strips = bandStrips(bars, count(same), count(other));
    for (const auto& [band, strip] : {std::pair(same, strips.same), {other, strips.other}}) {
        if (strip.isEmpty())
            continue;
        painter.fillRect(strip, band == Band::k2Dot4GHz ? TSThemeHelper::colorFor2Dot4GHzBand()
                                                        : TSThemeHelper::colorFor5GHzBand());
        if (hasTitles) {
            textInContextAtOrigin(painter, {strip.x() + 1, strip.y() + kTitleAboveStrip},
                                  localized(bandInfo(band).shortName),
                                  {labelSize(window), Qt::white});
        }
    }
}

} // namespace

// What is shown ---------------------------------------------------------------------------------

void CoCharts::Chart::setNetworks(CoNetworks newNetworks, bool onlyLastSeen)
{
    networks = std::move(newNetworks);
    samples.clear();
    for (const NetworkPtr& network : networks.networks)
        samples.push_back(sampleOfBar(*network, onlyLastSeen));
    if (!willDraw() || hovered >= networks.networks.size())
        hovered.reset();
}

std::vector<QRectF> CoCharts::Chart::bars(const NetworkBars& places, const CoChartsLook& look) const
{
    ChartScale scale = look.scale;
    scale.rect = places.chart();
    std::vector<QRectF> bars;
    for (const TSDataPoint& sample : samples)
        bars.push_back(places.bar(bars.size(), scale.yFor(sample, look.metric)));
    return bars;
}

void CoCharts::setNetworks(const NetworkList& networks, const NetworkPtr& selected,
                           bool onlyLastSeen)
{
    m_selected = selected;
    m_coSSID.setNetworks(selected ? coSSIDNetworks(networks, selected) : CoNetworks(),
                         onlyLastSeen);
    m_coChannel.setNetworks(selected ? coChannelNetworks(networks, selected) : CoNetworks(),
                            onlyLastSeen);
}

CoChartsLayout CoCharts::layout(const QRectF& view) const
{
    constexpr double kDistance = 7;
    const double quarter = view.width() / 4;
    CoChartsLayout layout;
    layout.chart = {view.x() + 45, view.y() + 30, view.width() - 95, view.height() - 55};
    for (const Chart* chart : {&m_coSSID, &m_coChannel}) {
        if (chart->willDraw())
            layout.chart.setWidth(layout.chart.width() - quarter);
    }
    const auto beside = [&](const QRectF& left) {
        return QRectF(left.x() + left.width() + kDistance, left.y(), quarter - kDistance,
                      left.height());
    };
    if (willDrawCoSSID())
        layout.coSSID = beside(layout.chart);
    if (willDrawCoChannel())
        layout.coChannel = beside(willDrawCoSSID() ? layout.coSSID : layout.chart);
    return layout;
}

// The mouse -------------------------------------------------------------------------------------

bool CoCharts::hover(std::optional<std::size_t> coSSID, std::optional<std::size_t> coChannel)
{
    const bool isOtherCoSSID = std::exchange(m_coSSID.hovered, coSSID) != coSSID;
    const bool isOtherCoChannel = std::exchange(m_coChannel.hovered, coChannel) != coChannel;
    return isOtherCoSSID || isOtherCoChannel;
}

bool CoCharts::mouseMoved(const QPointF& mouse, const QRectF& view)
{
    const CoChartsLayout layout = this->layout(view);
    const auto barAt = [&](const Chart& chart, const QRectF& rect) -> std::optional<std::size_t> {
        if (!chart.willDraw() || !rect.contains(mouse))
            return std::nullopt;
        return NetworkBars(rect, chart.networks.networks.size()).barAt(mouse.x());
    };
    return hover(barAt(m_coSSID, layout.coSSID), barAt(m_coChannel, layout.coChannel));
}

bool CoCharts::mouseExited()
{
    return hover(std::nullopt, std::nullopt);
}

QStringList CoCharts::pickedBssids() const
{
    QStringList bssids;
    for (const Chart* chart : {&m_coSSID, &m_coChannel}) {
        if (chart->hovered)
            bssids.append(chart->networks.networks[*chart->hovered]->bssid());
    }
    return bssids;
}

// Painting --------------------------------------------------------------------------------------

void CoCharts::drawCoSSIDNetworksChart(QPainter& painter, const QRectF& chart,
                                       const CoChartsLook& look) const
{
    const NetworkList& networks = m_coSSID.networks.networks;
    const NetworkBars places(chart, networks.size());
    const std::vector<QRectF> bars = m_coSSID.bars(places, look);
    const std::optional<std::size_t> hovered = m_coSSID.hovered;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (std::size_t i = 0; i < bars.size(); ++i)
        fillBar(painter, bars[i], networks[i]->color());
    drawBandStrips(painter, places, networks, !look.hasHoverPoint && !hovered, look.window);
    if (hovered) {
        const TSNetwork& network = *networks[*hovered];
        drawLabel(painter, places, bars[*hovered],
                  network.hasDeviceName() ? network.deviceName() : network.deviceid(),
                  network.color(), look.window);
    }
    drawCaption(painter, chart, m_coSSID.networks, nameOf(*m_selected), Qt::cyan, look.window);
    painter.restore();
}

void CoCharts::drawCoChannelNetworksChart(QPainter& painter, const QRectF& chart,
                                          const CoChartsLook& look) const
{
    const QColor others = QColor::fromRgbF(1 / 3.0F, 1 / 3.0F, 1 / 3.0F, 0.9F);
    const NetworkList& networks = m_coChannel.networks.networks;
    const NetworkBars places(chart, networks.size());
    const std::vector<QRectF> bars = m_coChannel.bars(places, look);
    // With no bar under the mouse, the selected network's own is told, if it is there.
    const std::size_t told = m_coChannel.hovered.value_or(
        static_cast<std::size_t>(std::ranges::find(networks, m_selected) - networks.begin()));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (std::size_t i = 0; i < bars.size(); ++i)
        fillBar(painter, bars[i], i == told ? networks[i]->color() : others);
    if (told < bars.size() && !look.hasHoverPoint && !m_coSSID.hovered) {
        const TSNetwork& network = *networks[told];
        drawLabelGround(painter, places, bars[told], nameOf(network), look.window);
        drawLabel(painter, places, bars[told], nameOf(network), network.color(), look.window);
    }
    drawCaption(painter, chart, m_coChannel.networks,
                QStringLiteral("%1 %2").arg(localized("Channel")).arg(m_selected->channel()),
                withAlpha(Qt::yellow, 0.8), look.window);
    painter.restore();
}

} // namespace tessara
