#include "charts/NetworkBars.h"

namespace tessara {

NetworkBars::NetworkBars(const QRectF& chart, std::size_t count)
    : m_chart(chart)
    , m_count(count)
{
    const float room = static_cast<float>(chart.width() - 10);
    m_width = room / static_cast<float>(2 * count + 2);
    m_halfPitch = room / static_cast<float>(2 * count);
}

QRectF NetworkBars::bar(std::size_t index, double y) const
{
    const double pitch = 2.0 * m_halfPitch;
    const double floor = m_chart.y() + 0.5; // on the line
    return {m_chart.x() + m_width + static_cast<double>(index) * pitch + 5, floor, m_width,
            y - floor};
}

std::optional<std::size_t> NetworkBars::barAt(double x) const
{
    const double pitch = 2.0 * m_halfPitch;
    double start = m_chart.x() + m_width;
    for (std::size_t index = 0; index < m_count; ++index, start += pitch) {
        if (start <= x && x <= start + pitch)
            return index;
    }
    return std::nullopt;
}

QPainterPath NetworkBars::bracket(const QRectF& bar) const
{
    const double top = bar.y() + bar.height();
    const double left = bar.x() - 3;
    const double right = bar.x() + bar.width() + 3;
    QPainterPath path({left, top - 2});
    path.lineTo(left, top + 3);
    path.lineTo(right, top + 3);
    path.lineTo(right, top - 2);
    path.moveTo(bar.center().x(), top + 3);
    path.lineTo(bar.center().x(), m_chart.y() + m_chart.height() + 4);
    return path;
}

BandStrips bandStrips(const NetworkBars& bars, std::size_t same, std::size_t other)
{
    constexpr double kHeight = 2;
    const QRectF& chart = bars.chart();
    const double y = chart.y() + chart.height() + 3;
    const double pitch = 2 * bars.halfPitch();
    BandStrips strips;
    if (same > 0) {
        const double width = other > 0 ? static_cast<double>(same) * pitch + 6 : chart.width();
        strips.same = {chart.x(), y, width, kHeight};
    }
    if (other > 0) {
        const double reach = static_cast<double>(other) * pitch;
        strips.other = {chart.x() + chart.width() - reach - 1, y,
                        same > 0 ? reach + 2 : chart.width(), kHeight};
    }
    return strips;
}

} // namespace tessara
