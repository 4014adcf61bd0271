#pragma once

#include "foundation/Localized.h"

#include <cstdint>
#include <optional>
#include <span>

namespace tessara {

/// Frequency bands, by the code that the Wi-Fi service gives them.
enum class Band : std::uint8_t { k2Dot4GHz = 1, k5GHz = 2 };

/// What there is to know of a band.
struct BandInfo {
    Band band;
    EnglishText shortName;
    int firstChannel; ///< the lowest and the highest channel whose frequency is known
    int lastChannel;
    int startMHz; ///< channel n is centred at startMHz + 5 n (IEEE Std 802.11-2020, 17.3.8.4.2)
};

/// All bands, lowest frequency first.
std::span<const BandInfo> bands();
const BandInfo& bandInfo(Band band);

/// The band a channel number counts in: below 36 is 2.4 GHz, anything else 5 GHz.
Band channelBandForChannel(std::int64_t channel);

/// Whether the channel is one of the band's own: 1 to 14, or 36 to 165.
bool isChannelOfBand(std::int64_t channel, Band band);

/// The centre of a 20 MHz channel in MHz; 0 for a channel of no band.
std::int64_t centerFrequencyOfChannel(std::int64_t channel);

/// The channel centred at a frequency in MHz; none for a frequency outside the bands.
std::optional<int> channelOfFrequency(std::int64_t mhz);

} // namespace tessara
