#include "scanning/nl80211/BootTime.h"

#include <ctime>

namespace tessara {

BootTime bootTimeNow()
{
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return BootTime{now.tv_sec} * 1'000'000'000 + now.tv_nsec;
}

} // namespace tessara
