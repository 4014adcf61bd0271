#include "model/ChannelWidth.h"

#include <algorithm>
#include <iterator>

namespace tessara {

namespace {

constexpr ChannelWidthInfo kWidths[] = {
    {ChannelWidth::k20MHz, 20},
    {ChannelWidth::k40MHz, 40},
    {ChannelWidth::k80MHz, 80},
    {ChannelWidth::k160MHz, 160},
};

} // namespace

std::span<const ChannelWidthInfo> channelWidths()
{
    return kWidths;
}

std::optional<int> megahertz(ChannelWidth width)
{
    const auto* info = std::ranges::find(kWidths, width, &ChannelWidthInfo::width);
    return info == std::end(kWidths) ? std::nullopt : std::optional(info->megahertz);
}

} // namespace tessara
