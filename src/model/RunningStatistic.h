#pragma once

#include <algorithm>
#include <cstdint>

namespace tessara {

/// Average, lowest and highest of the values added so far.
struct RunningStatistic {
    std::int64_t min; ///< starts above every value that can be added
    std::int64_t max; ///< starts below
    std::int64_t count = 0;
    std::int64_t acc = 0; ///< the sum
    std::int64_t avg = 0; ///< acc / count, truncated towards zero

    void add(std::int64_t value)
    {
        ++count;
        acc += value;
        avg = static_cast<std::int64_t>(static_cast<double>(acc) / static_cast<double>(count));
        min = std::min(min, value);
        max = std::max(max, value);
    }
};

} // namespace tessara
