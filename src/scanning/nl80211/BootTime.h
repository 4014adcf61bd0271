#pragma once

#include <cstdint>

namespace tessara {

/// Nanoseconds of CLOCK_BOOTTIME, the clock by which the kernel dates what it has heard.
using BootTime = std::int64_t;

BootTime bootTimeNow();

} // namespace tessara
