#include "model/NetworkColors.h"

#include <algorithm>
#include <array>
#include <random>

namespace tessara {

std::span<const QColor> NetworkColors::named()
{
    static const std::array colors = {
        QColor::fromRgbF(0.0F, 0.0F, 1.0F), // blue
        QColor::fromRgbF(0.6F, 0.4F, 0.2F), // brown
        QColor::fromRgbF(0.0F, 1.0F, 1.0F), // cyan
        QColor::fromRgbF(0.0F, 1.0F, 0.0F), // green
        QColor::fromRgbF(1.0F, 0.0F, 1.0F), // magenta
        QColor::fromRgbF(1.0F, 0.5F, 0.0F), // orange
        QColor::fromRgbF(0.5F, 0.0F, 0.5F), // purple
        QColor::fromRgbF(1.0F, 0.0F, 0.0F), // red
        QColor::fromRgbF(1.0F, 1.0F, 0.0F), // yellow
    };
    return colors;
}

NetworkColors::NetworkColors(std::function<double()> random)
    : m_random(std::move(random))
{
}

QColor NetworkColors::next()
{
    const auto colors = named();
    const std::size_t index = m_counter++;
    const QColor base = colors[index % colors.size()];
    if (index < colors.size())
        return base;

    const double turned = base.hsvHueF() + m_random();
    const int thousandths = static_cast<int>(turned * 1000) % 1000;
    const double saturation = std::min(m_random() + 0.3, 1.0);
    const double brightness = std::min(m_random() + 0.6, 1.0);
    return QColor::fromHsvF(static_cast<float>(thousandths / 1000.0),
                            static_cast<float>(saturation), static_cast<float>(brightness))
        .toRgb();
}

QColor randomColor()
{
    static NetworkColors colors([engine = std::mt19937(std::random_device{}()),
                                 range = std::uniform_real_distribution<double>(
                                     0.0, 1.0)]() mutable { return range(engine); });
    return colors.next();
}

} // namespace tessara
