#include "model/ChannelWidth.h"

#include <algorithm>
#include <iterator>

namespace tessara {

namespace {

struct WidthInfo {
    ChannelWidth width;
    int megahertz;
};

constexpr WidthInfo kWidths[] = {
    {ChannelWidth::k20MHz, 20},
    {ChannelWidth::k40MHz, 40},
    {ChannelWidth::k80MHz, 80},
    {ChannelWidth::k160MHz, 160},
};

} // namespace

std::optional<int> megahertz(ChannelWidth width)
{
    const auto* info = std::ranges::find(kWidths, width, &WidthInfo::width);
    return info == std::end(kWidths) ? std::nullopt : std::optional(info->megahertz);
}

} // namespace tessara
