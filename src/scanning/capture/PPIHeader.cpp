#include "scanning/capture/RadioHeaders.h"

namespace tessara {

namespace {

constexpr std::uint8_t kFieldsAreAligned = 0x01; ///< flag of the packet header: to 32 bits
constexpr std::uint32_t kIEEE80211 = 105;        ///< link type of what follows the header
constexpr std::uint16_t k80211Common = 2;        ///< type of the field that is read

constexpr std::uint16_t kFCSAtEnd = 0x0001;
constexpr std::uint16_t kFCSInvalid = 0x0004;
constexpr std::uint16_t kPHYError = 0x0008;
constexpr int kInvalidLevel = -128;

std::optional<int> level(std::optional<std::uint8_t> byte)
{
    if (!byte || static_cast<std::int8_t>(*byte) == kInvalidLevel)
        return std::nullopt;
    return static_cast<std::int8_t>(*byte);
}

void read80211Common(const ByteReader& field, ReceivedFrame& result)
{
    const std::uint16_t flags = field.u16(8).value_or(0);
    result.endsWithFCS = flags & kFCSAtEnd;
    result.isCorrupt = flags & (kFCSInvalid | kPHYError);
    if (const auto frequency = field.u16(12); frequency && *frequency != 0)
        result.frequency = frequency;
    result.signal = level(field.u8(18));
    result.noise = level(field.u8(19));
}

} // namespace

std::optional<ReceivedFrame> decodePPI(Bytes packet)
{
    constexpr std::size_t kPacketHeader = 8; // version, flags, length, link type
    constexpr std::size_t kFieldHeader = 4;  // type, length
    const ByteReader header(packet);
    const std::size_t end = header.u16(2).value_or(0);
    if (header.u8(0) != 0 || end < kPacketHeader || end > packet.size() ||
        header.u32(4) != kIEEE80211)
        return std::nullopt;

    ReceivedFrame result{.frame = packet.subspan(end)};
    const std::size_t alignment = header.u8OrZero(1) & kFieldsAreAligned ? 4 : 1;
    for (std::size_t offset = kPacketHeader; offset + kFieldHeader <= end;) {
        const std::size_t start = offset + kFieldHeader;
        const std::size_t length = header.u16(offset + 2).value_or(0);
        if (header.u16(offset) == k80211Common)
            read80211Common(ByteReader(header.slice(start, std::min(length, end - start))), result);
        offset = (start + length + alignment - 1) / alignment * alignment;
    }
    return result;
}

} // namespace tessara
