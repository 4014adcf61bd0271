#include "model/Band.h"

#include <algorithm>

namespace tessara {

namespace {

constexpr BandInfo kBands[] = {
    {Band::k2Dot4GHz, "2.4 GHz"_en, 1, 14, 2407},
    {Band::k5GHz, "5 GHz"_en, 36, 165, 5000},
};

// Channel 14 stands apart from the grid of the others.
constexpr int kJapaneseChannel = 14;
constexpr int kJapaneseChannelMHz = 2484;

} // namespace

std::span<const BandInfo> bands()
{
    return kBands;
}

const BandInfo& bandInfo(Band band)
{
    return *std::ranges::find(kBands, band, &BandInfo::band);
}

Band channelBandForChannel(std::int64_t channel)
{
    return channel < bandInfo(Band::k5GHz).firstChannel ? Band::k2Dot4GHz : Band::k5GHz;
}

bool isChannelOfBand(std::int64_t channel, Band band)
{
    const BandInfo& info = bandInfo(band);
    return channel >= info.firstChannel && channel <= info.lastChannel;
}

std::int64_t centerFrequencyOfChannel(std::int64_t channel)
{
    if (channel == kJapaneseChannel)
        return kJapaneseChannelMHz;
    if (channel >= 0 && channel < kJapaneseChannel)
        return bandInfo(Band::k2Dot4GHz).startMHz + 5 * channel;
    if (isChannelOfBand(channel, Band::k5GHz))
        return bandInfo(Band::k5GHz).startMHz + 5 * channel;
    return 0;
}

std::optional<int> channelOfFrequency(std::int64_t mhz)
{
    for (const BandInfo& info : kBands) {
        for (int channel = info.firstChannel; channel <= info.lastChannel; ++channel) {
            if (centerFrequencyOfChannel(channel) == mhz)
                return channel;
        }
    }
    return std::nullopt;
}

} // namespace tessara
