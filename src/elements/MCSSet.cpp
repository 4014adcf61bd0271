#include "elements/MCSSet.h"

#include <algorithm>

namespace tessara {

namespace {

/// How many spatial streams a set offers, less one; or that it offers nothing.
using Tier = std::uint32_t;
constexpr Tier kHighestTier = 3;
constexpr Tier kNoTier = 8;

constexpr std::uint32_t kTxSetNotDefined = 4;
constexpr ValueText kStreams[] = {
    {0, "1 spatial stream"},
    {1, "2 spatial streams"},
    {2, "3 spatial streams"},
    {3, "4 spatial streams"},
    {kTxSetNotDefined, "Tx MCS set not defined"},
};

constexpr std::string_view kStreamsCapitalized[] = {"1 Spatial Stream", "2 Spatial Streams",
                                                    "3 Spatial Streams", "4 Spatial Streams"};

// Tables 19-27 to 19-30, without the streams.
constexpr std::string_view kModulations[] = {"(BPSK 1/2)",   "(QPSK 1/2)",   "(QPSK 3/4)",
                                             "(16-QAM 1/2)", "(16-QAM 3/4)", "(64-QAM 2/3)",
                                             "(64-QAM 3/4)", "(64-QAM 5/6)"};
constexpr std::size_t kIndicesOfStream = std::size(kModulations);

constexpr std::string_view kIndices[] = {
    "MCS Index 0",  "MCS Index 1",  "MCS Index 2",  "MCS Index 3",  "MCS Index 4",  "MCS Index 5",
    "MCS Index 6",  "MCS Index 7",  "MCS Index 8",  "MCS Index 9",  "MCS Index 10", "MCS Index 11",
    "MCS Index 12", "MCS Index 13", "MCS Index 14", "MCS Index 15", "MCS Index 16", "MCS Index 17",
    "MCS Index 18", "MCS Index 19", "MCS Index 20", "MCS Index 21", "MCS Index 22", "MCS Index 23",
    "MCS Index 24", "MCS Index 25", "MCS Index 26", "MCS Index 27", "MCS Index 28", "MCS Index 29",
    "MCS Index 30", "MCS Index 31"};

constexpr std::string_view kStreamGroups[] = {"One Spatial Stream", "Two Spatial Streams",
                                              "Three Spatial Streams", "Four Spatial Streams"};
constexpr std::string_view kStreamBits[] = {"Rx MCS Bitmask Bits 0-7", "Rx MCS Bitmask Bits 8-15",
                                            "Rx MCS Bitmask Bits 16-23",
                                            "Rx MCS Bitmask Bits 24-31"};

/// By the size of the number, not by its single bytes: a set with a hole counts as if it had none.
Tier tierOf(std::uint32_t indices)
{
    if (indices == 0)
        return kNoTier;
    if (indices < 0x100)
        return 0;
    if (indices < 0x10000)
        return 1;
    return indices <= 0xffffff ? 2 : 3;
}

/// The indices of one stream.
/// @param indices all of MCS 0 to 31
Field streamGroup(ElementDecoder& e, std::size_t stream, std::uint32_t indices)
{
    const std::span<Field> rows = e.allocateFields(kIndicesOfStream);
    const std::size_t first = stream * kIndicesOfStream;
    for (std::size_t i = 0; i < kIndicesOfStream; ++i) {
        const bool isSupported = (indices >> (first + i) & 1) != 0;
        rows[i] = entryWithName(kIndices[first + i], isSupported ? "Supported" : "Not supported",
                                kModulations[i]);
    }
    return entryWithName(kStreamGroups[stream], e.hex(indices & 0xffU << first, 8), {}, rows);
}

Field bitsRow(ElementDecoder& e, std::uint32_t mask, std::string_view name, std::uint32_t value)
{
    return e.bitItem().bitsItemWithBitMask(BitWidth::k32, mask, name, value);
}

/// The rows of the Rx MCS bitmask; raises the tier by the indices above 31, which have unequal
/// modulation.
std::span<const Field> rxRows(ElementDecoder& e, std::size_t offset, Tier& tier)
{
    FieldList& rows = e.list(9);

    const std::uint32_t equal = e.u32(offset);
    tier = tierOf(equal);
    for (std::size_t stream = 0; stream < std::size(kStreamGroups); ++stream) {
        if (tier <= kHighestTier && stream <= tier)
            rows.push_back(streamGroup(e, stream, equal));
        else
            rows.push_back(
                bitsRow(e, 0xffU << stream * kIndicesOfStream, kStreamBits[stream], equal));
    }

    const std::uint32_t unequal = e.u32(offset + 4);
    if ((unequal & 0x001fff80) != 0 && tier <= 2)
        tier = 2;
    else if ((unequal & 0x0000007e) != 0 && tier <= 1)
        tier = 1;
    rows.push_back(bitsRow(e, 0x00000001, "Rx MCS Bitmask Bit 32", unequal));
    rows.push_back(bitsRow(e, 0x0000007e, "Rx MCS Bitmask Bits 33-38", unequal));
    rows.push_back(bitsRow(e, 0x001fff80, "Rx MCS Bitmask Bits 39-52", unequal));

    // Two bytes on, the numbers overlap.
    const std::uint32_t unequalOfFour = e.u32(offset + 6);
    if ((unequalOfFour & 0x1fffffe0) != 0 && tier <= kHighestTier)
        tier = kHighestTier;
    rows.push_back(bitsRow(e, 0x1fffffe0, "Rx MCS Bitmask Bits 53-76", unequalOfFour));

    rows.push_back(e.bitItem().decimalItemWithBitMask(
        BitWidth::k16, 0x03ff, "Rx Highest Supported Data Rate", e.u16(offset + 10)));
    return rows;
}

/// What the flags say of the number of streams. The two bits under it are not looked at, and it
/// is meant so.
std::optional<std::string_view> txStreams(std::uint8_t flags, Tier tier)
{
    switch (flags & 0x03) {
    case 0:
        return textFor(kStreams, kTxSetNotDefined);
    case 1:
        return textFor(kStreams, tier);
    default:
        return std::nullopt;
    }
}

} // namespace

std::size_t parseMCSSetIntoArray(ElementDecoder& e, std::size_t offset, bool basic,
                                 FieldList& array, JoinedText& summaryItems)
{
    Tier tier = kNoTier;
    const std::span<const Field> rx = rxRows(e, offset, tier);
    const std::uint8_t flags = e.u8(offset + 12);
    const auto flag = [&](std::uint32_t mask, std::string_view name, std::string_view whenSet,
                          std::string_view whenClear) {
        return e.bitItem().boolItemWithBitMask(BitWidth::k16, mask, name, flags, whenSet,
                                               whenClear);
    };
    const std::span<const Field> rows = e.fields({
        entryWithName(basic ? "Rx Basic MCS Set" : "Rx MCS Set", {}, {}, rx),
        flag(0x0001, "Tx MCS Set Defined", "Defined", "Not defined"),
        flag(0x0002, "Tx Rx MCS Not Equal", "Not Equal", "Equal"),
        e.bitItem().bitsItemWithBitMask(BitWidth::k16, 0x000c,
                                        "Tx Maximum Number of Spatial Streams Supported", flags,
                                        txStreams(flags, tier)),
        // The texts are the wrong way round, and it is meant so.
        flag(0x0010, "Tx Unequal Modulation Supported", "Not supported", "Supported"),
    });

    std::string_view value = basic ? "Basic MCS Set" : "MCS Set";
    if (tier != kNoTier) {
        summaryItems.add(kStreamsCapitalized[tier]);
        value = e.concatenated({value, " (", kStreamsCapitalized[tier], ")"});
    }
    array.push_back(entryWithName("Rx Supported MCS Set", value, {}, rows));
    return kMCSSetSize;
}

} // namespace tessara
