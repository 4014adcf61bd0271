#pragma once

#include "foundation/Localized.h"
#include "model/ChannelWidth.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace tessara {

/// Where a network sits: its primary channel, its width, and on which side its second 20 MHz lie.
struct ChannelPlace {
    std::int64_t channel = 0;
    ChannelWidth width = ChannelWidth::kUnknown;
    int secondaryChannelOffset = 0; ///< 0 none, 1 above, 3 below
};

/// The number of the channel at the centre of what the network occupies; the primary channel
/// where there is no such block (IEEE Std 802.11-2020, annex E).
std::int64_t channelCenter(const ChannelPlace& place);

/// The 20 MHz channels that the network occupies, ascending; a single 0 where its width fits no
/// block of the band.
std::vector<std::int64_t> occupiedChannels(const ChannelPlace& place);

/// "36,+1" at 20 and 40 MHz, the bare channel at any other width.
QString humanReadableChannel(const ChannelPlace& place);

/// The occupied channels as text, and which part of it is to be underlined as the primary one.
struct ChannelRangeText {
    QString text;
    qsizetype underlineStart = 0;
    qsizetype underlineLength = 0; ///< 0 for no underline
};
ChannelRangeText humanReadableChannelRange(const ChannelPlace& place);

/// "5 GHz UNII-1".
EnglishText humanReadableChannelBand(std::int64_t channel);

} // namespace tessara
