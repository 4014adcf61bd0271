#include "scanning/capture/RadioHeaders.h"

#include <iterator>

namespace tessara {

namespace {

/// Bits of a present word that are fields with a meaning here, or no fields at all.
enum PresentBit : unsigned {
    kFlags = 1,
    kChannel = 3,
    kAntennaSignal = 5,
    kAntennaNoise = 6,
    kXChannel = 18,
    kRadiotapNamespace = 29,
    kVendorNamespace = 30,
    kAnotherPresentWord = 31,
};

constexpr std::uint8_t kFlagFCSAtEnd = 0x10;
constexpr std::uint8_t kFlagBadFCS = 0x40;

struct FieldLayout {
    std::uint8_t alignment; ///< from the header's first byte
    std::uint8_t size;
};

/// The fields of the radiotap namespace from bit 0 on. What follows is of unknown size.
constexpr FieldLayout kFields[] = {
    {8, 8},  // TSFT
    {1, 1},  // Flags
    {1, 1},  // Rate
    {2, 4},  // Channel: frequency, flags
    {1, 2},  // FHSS
    {1, 1},  // Antenna signal
    {1, 1},  // Antenna noise
    {2, 2},  // Lock quality
    {2, 2},  // TX attenuation
    {2, 2},  // dB TX attenuation
    {1, 1},  // dBm TX power
    {1, 1},  // Antenna
    {1, 1},  // dB antenna signal
    {1, 1},  // dB antenna noise
    {2, 2},  // RX flags
    {2, 2},  // TX flags
    {1, 1},  // RTS retries
    {1, 1},  // data retries
    {4, 8},  // XChannel: flags, frequency, channel, highest power
    {1, 3},  // MCS
    {4, 8},  // A-MPDU status
    {2, 12}, // VHT
    {8, 12}, // timestamp
    {2, 12}, // HE
    {2, 12}, // HE-MU
    {2, 6},  // HE-MU-other-user
    {1, 1},  // 0-length PSDU
    {2, 4},  // L-SIG
};

constexpr std::size_t aligned(std::size_t offset, std::size_t alignment)
{
    return (offset + alignment - 1) / alignment * alignment;
}

std::optional<int> frequencyAt(std::size_t offset, const ByteReader& header)
{
    const auto mhz = header.u16(offset);
    return mhz && *mhz != 0 ? std::optional<int>(*mhz) : std::nullopt;
}

void readField(unsigned bit, std::size_t offset, const ByteReader& header, ReceivedFrame& result)
{
    switch (bit) {
    case kFlags:
        result.endsWithFCS = header.u8OrZero(offset) & kFlagFCSAtEnd;
        result.isCorrupt = header.u8OrZero(offset) & kFlagBadFCS;
        break;
    case kChannel:
        result.frequency = frequencyAt(offset, header);
        break;
    case kXChannel:
        if (!result.frequency)
            result.frequency = frequencyAt(offset + 4, header);
        break;
    // The first one is of the whole radio; those in later present words are of one antenna each.
    case kAntennaSignal:
        if (!result.signal)
            result.signal = static_cast<std::int8_t>(header.u8OrZero(offset));
        break;
    case kAntennaNoise:
        if (!result.noise)
            result.noise = static_cast<std::int8_t>(header.u8OrZero(offset));
        break;
    default:
        break;
    }
}

} // namespace

std::optional<ReceivedFrame> decodeRadiotap(Bytes packet)
{
    constexpr std::size_t kFirstPresentWord = 4;
    const ByteReader whole(packet);
    const std::size_t length = whole.u16(2).value_or(0);
    if (whole.u8(0) != 0 || length < kFirstPresentWord + 4 || length > packet.size())
        return std::nullopt;

    ReceivedFrame result{.frame = packet.subspan(length)};
    const ByteReader header(packet.first(length));
    std::size_t end = kFirstPresentWord; // of the present words
    while (header.u32(end).value_or(0) >> kAnotherPresentWord)
        end += 4;
    end += 4;

    std::size_t offset = end;
    bool isRadiotapNamespace = true;
    for (std::size_t word = kFirstPresentWord; word < end; word += 4) {
        const std::uint32_t present = header.u32(word).value_or(0);
        for (unsigned bit = 0; isRadiotapNamespace && bit < kRadiotapNamespace; ++bit) {
            if (!(present >> bit & 1))
                continue;
            if (bit >= std::size(kFields))
                return result; // of unknown size: where the next field lies cannot be told
            offset = aligned(offset, kFields[bit].alignment);
            if (!header.contains(offset, kFields[bit].size))
                return result;
            readField(bit, offset, header, result);
            offset += kFields[bit].size;
        }
        if (present >> kVendorNamespace & 1) {
            // OUI, a number of the vendor's own, and how many bytes the namespace takes.
            offset = aligned(offset, 2);
            const auto skipLength = header.u16(offset + 4);
            if (!skipLength)
                return result;
            offset += std::size_t{6} + *skipLength;
            isRadiotapNamespace = false;
        } else if (present >> kRadiotapNamespace & 1) {
            isRadiotapNamespace = true;
        } else if (isRadiotapNamespace) {
            return result; // the next word would hold bits from 32 on, and there are none
        }
    }
    return result;
}

} // namespace tessara
