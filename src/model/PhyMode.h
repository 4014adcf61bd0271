#pragma once

#include <QString>

#include <cstdint>

namespace tessara {

/// PHY modes, as bits of a set.
enum PhyMode : std::int64_t {
    kPhyModeA = 1,
    kPhyModeB = 2,
    kPhyModeG = 4,
    kPhyModeN = 8,
    kPhyModeAC = 16,
};

/// "b/g/n"; empty for none.
QString phyModeText(std::int64_t modes);

} // namespace tessara
