#pragma once

#include <QLineF>
#include <QPainterPath>
#include <QRectF>

#include <cstddef>
#include <optional>

namespace tessara {

/// Where the bars of a chart of networks stand.
class NetworkBars {
public:
    /// @param chart points, y growing upward
    /// @param count of the bars, at least 1
    NetworkBars(const QRectF& chart, std::size_t count);

    const QRectF& chart() const { return m_chart; }
    std::size_t count() const { return m_count; }
    double width() const { return m_width; }         ///< of a bar
    double halfPitch() const { return m_halfPitch; } ///< of the way from one bar to the next

    /// The bar of a network, from the left.
    /// @param y of its value; at the floor or below it nothing of the bar shows
    QRectF bar(std::size_t index, double y) const;
    /// The bar at an x: each takes all of its pitch, at any height.
    std::optional<std::size_t> barAt(double x) const;
    /// A bracket over a bar, with a stem that leads above the chart.
    QPainterPath bracket(const QRectF& bar) const;

private:
    QRectF m_chart;
    std::size_t m_count;
    float m_width;
    float m_halfPitch;
};

/// The strips above a chart of bars that tell how many of its networks are on each band; one that
/// is not there is empty.
struct BandStrips {
    QRectF same;  ///< the band of the first bar
    QRectF other; ///< the other band
};

/// @param same how many bars are of the first one's band
/// @param other how many of the other band; bars on neither count for none
BandStrips bandStrips(const NetworkBars& bars, std::size_t same, std::size_t other);

} // namespace tessara
