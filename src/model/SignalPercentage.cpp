#include "model/SignalPercentage.h"

#include <algorithm>

namespace tessara {

std::int64_t signalPercentage(std::int64_t dBm)
{
    if (dBm > -20)
        return 100;
    // The step from 1 at -96 to 0 at -97 is meant: -96 also stands in for a missing noise.
    if (dBm < -96)
        return 0;
    const std::int64_t x = -20 - dBm;
    const std::int64_t q = (422500 - x * (65 * x + 975)) / 4225;
    return q < 0 ? 1 : std::min<std::int64_t>(q, 100);
}

} // namespace tessara
