#pragma once

#include "scanning/nl80211/NetlinkAttributes.h"

#include <cstdint>
#include <vector>

namespace tessara {

/// The centres in MHz of the channels, of the bands that the program knows, that a radio may use.
/// To scan these alone halves the time of a scan for a radio that has the 6 GHz band as well.
std::vector<std::uint32_t> readScannableFrequencies(unsigned radio);

/// Adds the channels that a message of NL80211_CMD_GET_WIPHY lists.
void addScannableFrequencies(const NetlinkAttributes& message,
                             std::vector<std::uint32_t>& frequencies);

} // namespace tessara
