#pragma once

#include <QString>

#include <cstdint>
#include <span>

namespace tessara {

/// PHY modes, as bits of a set.
enum PhyMode : std::int64_t {
    kPhyModeA = 1,
    kPhyModeB = 2,
    kPhyModeG = 4,
    kPhyModeN = 8,
    kPhyModeAC = 16,
};

/// What there is to know of a PHY mode.
struct PhyModeInfo {
    PhyMode mode;
    const char* letters; ///< of its amendment to IEEE Std 802.11, in lower case
};

/// All modes in the order in which they are told.
std::span<const PhyModeInfo> phyModes();

/// "b/g/n"; empty for none.
QString phyModeText(std::int64_t modes);

} // namespace tessara
