#include "model/Band.h"
#include "scanning/capture/RadioHeaders.h"

namespace tessara {

namespace {

/// Whether a message of wlan-ng, written by a machine of little-endian order, holds a frame.
constexpr bool isSniffFrame(std::uint32_t messageCode)
{
    return messageCode == 0x00000041 || messageCode == 0x00000044;
}

constexpr std::uint16_t kItemHasValue = 0;

/// The items of a message. Drivers number them in either of two ways.
enum class PrismItem { kChannel = 3, kSignal = 6, kNoise = 7 };

constexpr bool isItem(std::uint32_t identifier, PrismItem item)
{
    const auto number = static_cast<std::uint32_t>(item);
    return identifier == (number << 16 | 0x0044) || identifier == (number << 12 | 0x0041);
}

std::optional<int> frequencyOf(std::uint32_t channel)
{
    const auto mhz = centerFrequencyOfChannel(channel);
    return channel > 0 && mhz > 0 ? std::optional(static_cast<int>(mhz)) : std::nullopt;
}

/// A level in dBm; none for the figures of other units that some drivers give, which are not
/// negative.
std::optional<int> levelInDBm(std::uint32_t data)
{
    const auto level = static_cast<std::int32_t>(data);
    return level < 0 && level >= -128 ? std::optional(level) : std::nullopt;
}

std::optional<std::uint32_t> u32BigEndian(const ByteReader& reader, std::size_t offset)
{
    const auto high = reader.u16BigEndian(offset);
    const auto low = reader.u16BigEndian(offset + 2);
    if (!high || !low)
        return std::nullopt;
    return std::uint32_t{*high} << 16 | *low;
}

bool isAVS(const ByteReader& packet)
{
    const std::uint32_t version = u32BigEndian(packet, 0).value_or(0);
    return version == 0x80211001 || version == 0x80211002;
}

} // namespace

std::optional<ReceivedFrame> decodePrism(Bytes packet)
{
    constexpr std::size_t kMessageHeader = 24; // code, length, device name
    constexpr std::size_t kItemSize = 12;      // identifier, status, length, data
    const ByteReader header(packet);
    if (isAVS(header))
        return decodeAVS(packet);
    const std::size_t end = header.u32(4).value_or(0);
    if (!isSniffFrame(header.u32(0).value_or(0)) || end < kMessageHeader || end > packet.size())
        return std::nullopt;

    ReceivedFrame result{.frame = packet.subspan(end)};
    for (std::size_t item = kMessageHeader; item + kItemSize <= end; item += kItemSize) {
        const std::uint32_t identifier = header.u32(item).value_or(0);
        const std::uint32_t data = header.u32(item + 8).value_or(0);
        if (header.u16(item + 4) != kItemHasValue)
            continue;
        if (isItem(identifier, PrismItem::kChannel))
            result.frequency = frequencyOf(data);
        else if (isItem(identifier, PrismItem::kSignal))
            result.signal = levelInDBm(data);
        else if (isItem(identifier, PrismItem::kNoise))
            result.noise = levelInDBm(data);
    }
    return result;
}

std::optional<ReceivedFrame> decodeAVS(Bytes packet)
{
    constexpr std::size_t kShortestHeader = 64;
    constexpr std::uint32_t kSignalsAreDBm = 2;
    const ByteReader header(packet);
    const std::size_t end = u32BigEndian(header, 4).value_or(0);
    if (!isAVS(header) || end < kShortestHeader || end > packet.size())
        return std::nullopt;

    ReceivedFrame result{.frame = packet.subspan(end)};
    result.frequency = frequencyOf(u32BigEndian(header, 28).value_or(0));
    if (u32BigEndian(header, 44) == kSignalsAreDBm) {
        result.signal = levelInDBm(u32BigEndian(header, 48).value_or(0));
        result.noise = levelInDBm(u32BigEndian(header, 52).value_or(0));
    }
    return result;
}

} // namespace tessara
