#pragma once

#include "model/ChannelWidth.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessara {

/// The data rates that a network announces, each one once: those that follow from MCS indexes and
/// the legacy ones. Adding costs no memory, and they come out in order.
class RateSet {
public:
    /// Adds the rates of an HT MCS index, 0 to 31 (IEEE Std 802.11-2020, 19.5).
    void addHT(std::size_t index, bool fortyMegahertz, bool shortGuardInterval);

    /// Adds the rates of a number of spatial streams, 1 to 4, up to an MCS index, 7 to 9, without
    /// the combinations that the standard rules out (IEEE Std 802.11-2020, 21.5). A width without
    /// a table adds nothing.
    void addVHT(std::size_t streams, std::size_t topIndex, ChannelWidth width,
                bool shortGuardInterval);

    /// Adds a byte of a (extended) supported rates element: half megabits, the top bit set for a
    /// basic rate (IEEE Std 802.11-2020, 9.4.2.3). Takes the place of an equal rate.
    void addLegacy(std::uint8_t octet);

    /// In Mbit/s, by magnitude; a basic rate is negative.
    std::vector<double> sorted() const;

    /// How many rates there can be from MCS indexes: the number of distinct values in the tables.
    static constexpr std::size_t kMaxMCSRates = 320;

private:
    struct LegacyRate {
        std::uint16_t basic = 0; ///< how often it stands as a basic rate
        bool plain = false;
    };
    static constexpr std::size_t kLegacyRates = 128;

    std::bitset<kMaxMCSRates> m_mcs;        ///< by the rank of the rate among all distinct values
    LegacyRate m_legacy[kLegacyRates] = {}; ///< by half megabits
};

} // namespace tessara
