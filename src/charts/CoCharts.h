#pragma once

#include "charts/ChartScale.h"
#include "charts/CoNetworks.h"
#include "charts/NetworkBars.h"
#include "charts/WindowScale.h"

#include <QStringList>

#include <vector>

class QPainter;

namespace tessara {

/// Where the charts of a view lie that shows one network; one that is not shown is empty.
struct CoChartsLayout {
    QRectF chart; ///< of the network itself
    QRectF coSSID;
    QRectF coChannel;
};

/// What the charts of bars share with the chart that they stand beside.
struct CoChartsLook {
    ChartScale scale; ///< its rectangle does not count
    Metric metric;
    WindowScale window;
    bool hasHoverPoint; ///< a bubble is shown over that chart, and room made for it
};

/// The two charts beside that of a network: a bar for each network of the same name, and one for
/// each on the same channel, as high as their last values. A bar under the mouse is told, and a
/// click asks for its network.
class CoCharts {
public:
    /// @param networks in painting order
    /// @param selected none for no charts
    /// @param onlyLastSeen a network that the last scan did not see gets no bar
    void setNetworks(const NetworkList& networks, const NetworkPtr& selected, bool onlyLastSeen);

    bool willDrawCoSSID() const { return m_coSSID.willDraw(); }
    bool willDrawCoChannel() const { return m_coChannel.willDraw(); }
    CoChartsLayout layout(const QRectF& view) const;

    /// @param mouse in points of the view, y growing upward
    /// @return whether another bar is under the mouse than before
    bool mouseMoved(const QPointF& mouse, const QRectF& view);
    bool mouseExited();
    /// The BSSIDs of the bars under the mouse.
    QStringList pickedBssids() const;

    // Painting of bars and texts into the frames of the charts.
    void drawCoSSIDNetworksChart(QPainter& painter, const QRectF& chart,
                                 const CoChartsLook& look) const;
    void drawCoChannelNetworksChart(QPainter& painter, const QRectF& chart,
                                    const CoChartsLook& look) const;

private:
    /// One chart of bars.
    struct Chart {
        CoNetworks networks;
        std::vector<TSDataPoint> samples; ///< of each network, the one that its bar shows
        std::optional<std::size_t> hovered;

        bool willDraw() const { return networks.willDraw(); }
        void setNetworks(CoNetworks networks, bool onlyLastSeen);
        std::vector<QRectF> bars(const NetworkBars& places, const CoChartsLook& look) const;
    };

    bool hover(std::optional<std::size_t> coSSID, std::optional<std::size_t> coChannel);

    NetworkPtr m_selected;
    Chart m_coSSID;
    Chart m_coChannel;
};

} // namespace tessara
