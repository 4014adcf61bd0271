#pragma once

#include "charts/CoCharts.h"
#include "charts/TSSignalStrengthView.h"

namespace tessara {

/// What the details chart shows of its network, in the order of the setting `Metric`.
enum class DetailsMetric { kSignal, kSignalAndNoise, kSNR };

/// The chart of the history of one network. What lies below the best value that the network ever
/// had is veiled. Beside it stand the networks of the same name and on the same channel.
class TSNetworkDetailsView final : public TSSignalStrengthView {
    Q_OBJECT

public:
    /// @param clock as for the base
    explicit TSNetworkDetailsView(const Clock& clock, QWidget* parent = nullptr);

    const NetworkPtr& network() const { return m_network; }
    /// @param network none for an empty chart
    void setNetwork(NetworkPtr network);
    /// The networks of the table.
    void setNetworks(const NetworkList& networks) override;
    void setDisplayOnlyLastSeen(bool display) override;

    DetailsMetric detailsMetric() const { return m_metric; }
    void setMetric(DetailsMetric metric);
    bool willDrawSignal() const { return m_metric != DetailsMetric::kSNR; }
    bool willDrawNoise() const { return m_metric == DetailsMetric::kSignalAndNoise; }

Q_SIGNALS:
    /// The user has clicked the bar of another network.
    void userDidPickNetwork(const QString& bssid);

protected:
    QRectF rectForChart(const QRectF& view) const override;
    double topMargin(const QRectF& view) const override;
    void drawRect(QPainter& painter, const QRectF& view) override;
    void drawChart(QPainter& painter, const ChartScale& scale) override;
    void drawDataPoints(QPainter& painter, const ChartScale& scale) override;
    void drawHover(QPainter& painter, const QRectF& view) override;
    void mouseMoved(const QPointF& mouse) override;
    void mouseExited() override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    /// Of the line, the scale and the hovered value; noise has but an area.
    Metric lineMetric() const { return willDrawSignal() ? Metric::kSignal : Metric::kSNR; }
    void configureCoCharts();
    void drawFrame(QPainter& painter, const QRectF& chart, bool leftLabels, bool rightLabels);
    void drawNoise(QPainter& painter, const ChartScale& scale) const;
    void drawLine(QPainter& painter, const ChartScale& scale) const;

    NetworkPtr m_network;
    CoCharts m_coCharts;
    DetailsMetric m_metric = DetailsMetric::kSignal;
};

} // namespace tessara
