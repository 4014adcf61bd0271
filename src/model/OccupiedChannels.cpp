#include "model/OccupiedChannels.h"

#include <algorithm>
#include <optional>

namespace tessara {

namespace {

constexpr std::int64_t kStep = 4; ///< channel numbers from one 20 MHz channel to the next
constexpr int kSecondaryAbove = 1;
constexpr int kSecondaryBelow = 3;

/// A run of 20 MHz channels that one wide channel is made of.
struct ChannelBlock {
    ChannelWidth width;
    std::int64_t low;
    std::int64_t high;

    std::int64_t center() const { return (low + high) / 2; }
};

// IEEE Std 802.11-2020, table E-4, operating classes 128 and 129.
constexpr ChannelBlock kBlocks[] = {
    {ChannelWidth::k80MHz, 36, 48},   {ChannelWidth::k80MHz, 52, 64},
    {ChannelWidth::k80MHz, 100, 112}, {ChannelWidth::k80MHz, 116, 128},
    {ChannelWidth::k80MHz, 132, 144}, {ChannelWidth::k80MHz, 149, 161},
    {ChannelWidth::k160MHz, 36, 64},  {ChannelWidth::k160MHz, 100, 128},
};

std::optional<ChannelBlock> blockOf(const ChannelPlace& place)
{
    if (place.width == ChannelWidth::k40MHz) {
        if (place.secondaryChannelOffset == kSecondaryAbove)
            return ChannelBlock{place.width, place.channel, place.channel + kStep};
        if (place.secondaryChannelOffset == kSecondaryBelow)
            return ChannelBlock{place.width, place.channel - kStep, place.channel};
        return std::nullopt;
    }
    const auto* block = std::ranges::find_if(kBlocks, [&](const ChannelBlock& candidate) {
        return candidate.width == place.width && candidate.low <= place.channel &&
               place.channel <= candidate.high;
    });
    return block == std::end(kBlocks) ? std::nullopt : std::optional(*block);
}

bool isNarrow(ChannelWidth width)
{
    return width == ChannelWidth::kUnknown || width == ChannelWidth::k20MHz;
}

} // namespace

std::int64_t channelCenter(const ChannelPlace& place)
{
    const auto block = blockOf(place);
    return block ? block->center() : place.channel;
}

std::vector<std::int64_t> occupiedChannels(const ChannelPlace& place)
{
    if (isNarrow(place.width))
        return {place.channel};
    const auto block = blockOf(place);
    if (!block)
        return {0};
    std::vector<std::int64_t> channels;
    for (std::int64_t channel = block->low; channel <= block->high; channel += kStep)
        channels.push_back(channel);
    return channels;
}

QString humanReadableChannel(const ChannelPlace& place)
{
    QString channel = QString::number(place.channel);
    const bool showsOffset =
        place.width == ChannelWidth::k20MHz || place.width == ChannelWidth::k40MHz;
    if (!showsOffset || place.secondaryChannelOffset == 0)
        return channel;
    return channel + (place.secondaryChannelOffset == kSecondaryAbove ? QStringLiteral(",+1")
                                                                      : QStringLiteral(",-1"));
}

ChannelRangeText humanReadableChannelRange(const ChannelPlace& place)
{
    ChannelRangeText range;
    for (const std::int64_t channel : occupiedChannels(place)) {
        if (!range.text.isEmpty())
            range.text += u' ';
        const QString number = QString::number(channel);
        if (channel == place.channel && !isNarrow(place.width)) {
            range.underlineStart = range.text.size();
            range.underlineLength = number.size();
        }
        range.text += number;
    }
    return range;
}

EnglishText humanReadableChannelBand(std::int64_t channel)
{
    struct BandPart {
        std::int64_t firstChannel;
        EnglishText name;
    };
    constexpr BandPart kParts[] = {
        {149, "5 GHz UNII-3"_en},
        {100, "5 GHz UNII-2 Extended"_en},
        {49, "5 GHz UNII-2"_en},
        {36, "5 GHz UNII-1"_en},
    };
    const auto* part = std::ranges::find_if(
        kParts, [channel](const BandPart& candidate) { return channel >= candidate.firstChannel; });
    return part == std::end(kParts) ? "2.4 GHz ISM"_en : part->name;
}

} // namespace tessara
