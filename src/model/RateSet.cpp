#include "model/RateSet.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>

namespace tessara {

namespace {

// Rates are kept in thousandths of Mbit/s: whole numbers, so that three times 28.9 is 86.7.
using Rate = std::uint32_t;

constexpr Rate thousandths(double megabits)
{
    // std::lround is no constant expression; all values are above 0 and far below the limit.
    return static_cast<Rate>(megabits * 1000 + 0.5); // NOLINT(bugprone-incorrect-roundings)
}

// The tables -----------------------------------------------------------------------------------

constexpr std::size_t kHTIndexes = 8; ///< for each number of streams
constexpr std::size_t kMaxStreams = 4;
using HTRows = double[kMaxStreams][kHTIndexes];

// HT, IEEE Std 802.11-2020, tables 19-27 to 19-34. The 130.3 of two streams at index 6 is meant.
constexpr HTRows kHT20Long = {
    {6.5, 13, 19.5, 26, 39, 52, 58.5, 65},
    {13, 26, 39, 52, 78, 104, 117, 130},
    {19.5, 39, 58.5, 78, 117, 156, 175.5, 195},
    {26, 52, 78, 104, 156, 208, 234, 260},
};
constexpr HTRows kHT20Short = {
    {7.2, 14.4, 21.7, 28.9, 43.3, 57.8, 65, 72.2},
    {14.4, 28.9, 43.3, 57.8, 86.7, 115.6, 130.3, 144.4},
    {21.7, 43.3, 65, 86.7, 130, 173.3, 195, 216.7},
    {28.9, 57.8, 86.7, 115.6, 173.3, 231.1, 260, 288.9},
};
constexpr HTRows kHT40Long = {
    {13.5, 27, 40.5, 54, 81, 108, 121.5, 135},
    {27, 54, 81, 108, 162, 216, 243, 270},
    {40.5, 81, 121.5, 162, 243, 324, 364.5, 405},
    {54, 108, 162, 216, 324, 432, 486, 540},
};
constexpr HTRows kHT40Short = {
    {15, 30, 45, 60, 90, 120, 135, 150},
    {30, 60, 90, 120, 180, 240, 270, 300},
    {45, 90, 135, 180, 270, 360, 405, 450},
    {60, 120, 180, 240, 360, 480, 540, 600},
};

constexpr std::size_t kVHTIndexes = 10;
constexpr std::size_t kVHTWidths = 4;

// VHT, for one stream, IEEE Std 802.11-2020, tables 21-29 to 21-60: 20, 40, 80 and 160 MHz.
constexpr double kVHTLong[kVHTWidths][kVHTIndexes] = {
    {6.5, 13, 19.5, 26, 39, 52, 58.5, 65, 78, 86.7},
    {13.5, 27, 40.5, 54, 81, 108, 121.5, 135, 162, 180},
    {29.3, 58.5, 87.8, 117, 175.5, 234, 263.3, 292.5, 351, 390},
    {58.5, 117, 175.5, 234, 351, 468, 526.5, 585, 702, 780},
};
constexpr double kVHTShort[kVHTWidths][kVHTIndexes] = {
    {7.2, 14.4, 21.7, 28.9, 43.3, 57.8, 65, 72.2, 86.7, 96.3},
    {15, 30, 45, 60, 90, 120, 135, 150, 180, 200},
    {32.5, 65, 97.5, 130, 195, 260, 292.5, 325, 390, 433.334},
    {65, 130, 195, 260, 390, 520, 585, 650, 780, 866.7},
};

/// Combinations of VHT width, streams and index that are not valid: there the stream's rates end
/// (skip is false), or go on behind the one index.
struct InvalidVHT {
    ChannelWidth width;
    std::size_t streams;
    std::size_t index;
    bool skip;
};
constexpr InvalidVHT kInvalidVHT[] = {
    {ChannelWidth::k20MHz, 1, 9, false},
    {ChannelWidth::k20MHz, 2, 9, false},
    {ChannelWidth::k80MHz, 3, 6, true},
    {ChannelWidth::k160MHz, 3, 9, false},
};

// Ranks ----------------------------------------------------------------------------------------

constexpr const HTRows* kHTTables[] = {&kHT20Long, &kHT20Short, &kHT40Long, &kHT40Short};
constexpr std::size_t kAllRates =
    std::size(kHTTables) * kMaxStreams * kHTIndexes + 2 * kVHTWidths * kMaxStreams * kVHTIndexes;

struct DistinctRates {
    std::array<Rate, kAllRates> values{};
    std::size_t count = 0;
};

/// Every rate of the tables once, in ascending order.
constexpr DistinctRates distinctRates()
{
    DistinctRates all;
    for (const HTRows* table : kHTTables) {
        for (const auto& row : *table) {
            for (const double rate : row)
                all.values[all.count++] = thousandths(rate);
        }
    }
    for (const auto& table : {std::span(kVHTLong), std::span(kVHTShort)}) {
        for (const auto& row : table) {
            for (const double rate : row) {
                for (Rate streams = 1; streams <= kMaxStreams; ++streams)
                    all.values[all.count++] = streams * thousandths(rate);
            }
        }
    }
    std::ranges::sort(all.values);
    all.count = static_cast<std::size_t>(std::unique(all.values.begin(), all.values.end()) -
                                         all.values.begin());
    return all;
}

constexpr DistinctRates kRates = distinctRates();
static_assert(kRates.count <= RateSet::kMaxMCSRates);

constexpr std::span<const Rate> kSortedRates(kRates.values.data(), kRates.count);
constexpr std::uint16_t kNoRank = 0xffff;

constexpr std::uint16_t rankOf(Rate rate)
{
    const auto found = std::ranges::lower_bound(kSortedRates, rate);
    return found == kSortedRates.end() || *found != rate
               ? kNoRank
               : static_cast<std::uint16_t>(found - kSortedRates.begin());
}

constexpr auto kHTRanks = [] {
    std::array<std::array<std::uint16_t, kMaxStreams * kHTIndexes>, std::size(kHTTables)> ranks{};
    for (std::size_t table = 0; table < std::size(kHTTables); ++table) {
        for (std::size_t i = 0; i < kMaxStreams * kHTIndexes; ++i)
            ranks[table][i] =
                rankOf(thousandths((*kHTTables[table])[i / kHTIndexes][i % kHTIndexes]));
    }
    return ranks;
}();

constexpr auto kVHTRanks = [] {
    std::array<
        std::array<std::array<std::array<std::uint16_t, kVHTIndexes>, kMaxStreams>, kVHTWidths>, 2>
        ranks{};
    for (std::size_t isShort = 0; isShort < 2; ++isShort) {
        for (std::size_t width = 0; width < kVHTWidths; ++width) {
            for (std::size_t stream = 0; stream < kMaxStreams; ++stream) {
                for (std::size_t i = 0; i < kVHTIndexes; ++i) {
                    const double rate = (isShort ? kVHTShort : kVHTLong)[width][i];
                    ranks[isShort][width][stream][i] =
                        rankOf(static_cast<Rate>(stream + 1) * thousandths(rate));
                }
            }
        }
    }
    return ranks;
}();

constexpr auto kLegacyRanks = [] {
    std::array<std::uint16_t, 128> ranks{};
    for (std::size_t halves = 0; halves < ranks.size(); ++halves)
        ranks[halves] = rankOf(static_cast<Rate>(halves * 500));
    return ranks;
}();

} // namespace

void RateSet::addHT(std::size_t index, bool fortyMegahertz, bool shortGuardInterval)
{
    m_mcs.set(kHTRanks[(fortyMegahertz ? 2 : 0) + (shortGuardInterval ? 1 : 0)][index]);
}

void RateSet::addVHT(std::size_t streams, std::size_t topIndex, ChannelWidth width,
                     bool shortGuardInterval)
{
    if (width < ChannelWidth::k20MHz || width > ChannelWidth::k160MHz)
        return;
    const std::size_t row = static_cast<std::size_t>(width) - 1;
    for (std::size_t index = 0; index <= topIndex; ++index) {
        const auto* invalid = std::ranges::find_if(kInvalidVHT, [&](const InvalidVHT& rule) {
            return rule.width == width && rule.streams == streams && rule.index == index;
        });
        if (invalid == std::end(kInvalidVHT))
            m_mcs.set(kVHTRanks[shortGuardInterval ? 1 : 0][row][streams - 1][index]);
        else if (!invalid->skip)
            return;
    }
}

void RateSet::addLegacy(std::uint8_t octet)
{
    constexpr std::uint8_t kBasic = 0x80;
    const std::size_t halves = octet & ~kBasic & 0xff;
    if (const std::uint16_t rank = kLegacyRanks[halves]; rank != kNoRank)
        m_mcs.reset(rank);
    LegacyRate& rate = m_legacy[halves];
    rate.plain = !(octet & kBasic);
    if (octet & kBasic)
        ++rate.basic;
}

std::vector<double> RateSet::sorted() const
{
    std::vector<double> rates;
    rates.reserve(m_mcs.count() + 16);
    std::size_t halves = 0;
    const auto addLegacyBelow = [&](Rate limit) {
        for (; halves < kLegacyRates && halves * 500 < limit; ++halves) {
            const double rate = static_cast<double>(halves) / 2;
            rates.insert(rates.end(), m_legacy[halves].basic, -rate);
            if (m_legacy[halves].plain)
                rates.push_back(rate);
        }
    };
    for (std::size_t rank = m_mcs._Find_first(); rank < m_mcs.size();
         rank = m_mcs._Find_next(rank)) {
        addLegacyBelow(kSortedRates[rank]);
        rates.push_back(kSortedRates[rank] / 1000.0);
    }
    addLegacyBelow(std::numeric_limits<Rate>::max());
    return rates;
}

} // namespace tessara
