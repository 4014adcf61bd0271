#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace tessara {

/// Channel widths, by the code that records and the Wi-Fi service use.
enum class ChannelWidth : std::uint8_t {
    kUnknown = 0,
    k20MHz = 1,
    k40MHz = 2,
    k80MHz = 3,
    k160MHz = 4,
    k80Plus80MHz = 5,
};

/// What there is to know of a width.
struct ChannelWidthInfo {
    ChannelWidth width;
    int megahertz;
};

/// All widths of one number of MHz, the narrowest first.
std::span<const ChannelWidthInfo> channelWidths();

/// The width in MHz; none for an unknown width and for 80+80 MHz, which is no single number.
std::optional<int> megahertz(ChannelWidth width);

} // namespace tessara
