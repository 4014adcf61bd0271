#pragma once

#include <cstdint>

namespace tessara {

/// A signal or a noise in dBm as per cent: 100 at -20 dBm and above, 20 at -85, 1 from -93 to
/// -96, 0 below and for -120, which stands for no data.
std::int64_t signalPercentage(std::int64_t dBm);

} // namespace tessara
