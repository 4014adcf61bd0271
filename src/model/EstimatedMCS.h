#pragma once

#include "model/ChannelWidth.h"

#include <cstdint>

namespace tessara {

/// The highest MCS index (for b, a and g: the highest rate, counted from 0) that a ratio of signal
/// to noise in dB allows; -1 if it allows none, or nothing is known of that mode and width.
/// @param phyModes a set of PhyMode: ac rules over n, and n over the others
int estimatedMCS(std::int64_t snr, std::int64_t phyModes, ChannelWidth width);

} // namespace tessara
