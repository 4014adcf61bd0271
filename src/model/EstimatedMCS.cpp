#include "model/EstimatedMCS.h"

#include "model/PhyMode.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace tessara {

namespace {

// The lowest ratio in dB for the indexes 0, 1, 2 and onwards.
constexpr int kAC20[] = {2, 5, 9, 11, 15, 18, 20, 25, 29, 31};
constexpr int kAC40[] = {5, 8, 12, 14, 18, 21, 23, 28, 32, 34};
constexpr int kAC80[] = {8, 11, 15, 17, 21, 24, 26, 31, 35, 37};
constexpr int kAC160[] = {11, 14, 18, 20, 24, 27, 29, 34, 38, 40};
constexpr int kN20[] = {2, 5, 9, 11, 15, 18, 20, 25};
constexpr int kN40[] = {5, 8, 12, 14, 18, 21, 23, 28};
constexpr int kAG[] = {2, 4, 5, 9, 11, 15, 18, 20};
constexpr int kB[] = {4, 7, 11, 16};

std::span<const int> thresholds(std::int64_t modes, ChannelWidth width)
{
    struct Table {
        PhyMode mode;
        ChannelWidth width;
        std::span<const int> thresholds;
    };
    static constexpr Table kByWidth[] = {
        {kPhyModeAC, ChannelWidth::k20MHz, kAC20}, {kPhyModeAC, ChannelWidth::k40MHz, kAC40},
        {kPhyModeAC, ChannelWidth::k80MHz, kAC80}, {kPhyModeAC, ChannelWidth::k160MHz, kAC160},
        {kPhyModeN, ChannelWidth::k20MHz, kN20},   {kPhyModeN, ChannelWidth::k40MHz, kN40},
    };
    for (const PhyMode mode : {kPhyModeAC, kPhyModeN}) {
        if (!(modes & mode))
            continue;
        const auto* table = std::ranges::find_if(kByWidth, [&](const Table& candidate) {
            return candidate.mode == mode && candidate.width == width;
        });
        return table == std::end(kByWidth) ? std::span<const int>() : table->thresholds;
    }
    if (modes & (kPhyModeA | kPhyModeG))
        return kAG;
    return modes == kPhyModeB ? std::span<const int>(kB) : std::span<const int>();
}

} // namespace

int estimatedMCS(std::int64_t snr, std::int64_t phyModes, ChannelWidth width)
{
    const auto table = thresholds(phyModes, width);
    const auto above = std::ranges::upper_bound(table, snr);
    return static_cast<int>(above - table.begin()) - 1;
}

} // namespace tessara
