#include "scanning/capture/BeaconFrame.h"

#include "elements/ElementRun.h"
#include "model/Band.h"
#include "scanning/CWNetwork.h"

#include <zlib.h>

#include <algorithm>

namespace tessara {

namespace {

// The frame control field, IEEE Std 802.11-2020, 9.2.4.1.
constexpr std::uint16_t kVersionTypeSubtype = 0x00ff;
constexpr std::uint16_t kProbeResponse = 0x0050;
constexpr std::uint16_t kBeacon = 0x0080;
constexpr std::uint16_t kMoreFragments = 0x0400;
constexpr std::uint16_t kProtectedFrame = 0x4000;
constexpr std::uint16_t kPlusHTC = 0x8000;
constexpr std::uint16_t kFragmentNumber = 0x000f; // of the sequence control field

// The header of a management frame, 9.3.3.1, and the fixed fields of the body.
constexpr std::size_t kAddress3 = 16;
constexpr std::size_t kAddressSize = 6;
constexpr std::size_t kSequenceControl = 22;
constexpr std::size_t kHeaderSize = 24;
constexpr std::size_t kHTControlSize = 4;
constexpr std::size_t kFixedFieldsSize = 12; // timestamp, beacon interval, capability

constexpr std::size_t kFCSSize = 4;

constexpr std::uint8_t kExtendedElement = 255;
constexpr std::uint8_t kHEOperation = 36;                  // its extension identifier
constexpr std::uint8_t k6GHzOperationInformation = 1 << 1; // bit 17 of HE Operation Parameters

/// Whether the last four bytes are the frame check sequence (9.2.4.8) of those before.
bool endsWithItsFCS(Bytes frame)
{
    if (frame.size() < kFCSSize)
        return false;
    const std::size_t length = frame.size() - kFCSSize;
    return ByteReader(frame).u32(length) == crc32_z(0, frame.data(), length);
}

/// The frame as far as it was captured, without its frame check sequence; none if that shows that
/// the frame was received with errors. Not every header says whether there is one.
std::optional<Bytes> withoutFCS(const ReceivedFrame& received, std::size_t missingBytes)
{
    const Bytes frame = received.frame;
    if (missingBytes == 0 && endsWithItsFCS(frame))
        return frame.first(frame.size() - kFCSSize);
    if (!received.endsWithFCS)
        return frame;
    if (missingBytes == 0)
        return std::nullopt;
    const std::size_t present = kFCSSize - std::min(missingBytes, kFCSSize);
    return frame.first(frame.size() - std::min(present, frame.size()));
}

bool isIn6GHzBand(const ReceivedFrame& received, const ElementRun& elements)
{
    if (received.frequency)
        return *received.frequency > 5925 && *received.frequency <= 7125;
    return std::ranges::any_of(elements.begin(), elements.end(), [](const ElementView& element) {
        const ByteReader content(element.content);
        return element.id == kExtendedElement && content.u8(0) == kHEOperation &&
               (content.u8OrZero(3) & k6GHzOperationInformation);
    });
}

int channelOf(const ReceivedFrame& received, const ElementRun& elements)
{
    for (const std::uint8_t id : {ElementID::kDSParameterSet, ElementID::kHTOperation}) {
        const auto element = elements.find(id); // both begin with the primary channel
        if (const int channel = element ? ByteReader(element->content).u8OrZero(0) : 0)
            return channel;
    }
    return received.frequency ? channelOfFrequency(*received.frequency).value_or(0) : 0;
}

} // namespace

std::optional<BeaconFrame> decodeBeacon(const ReceivedFrame& received, std::size_t missingBytes)
{
    if (received.isCorrupt)
        return std::nullopt;
    const auto bytes = withoutFCS(received, missingBytes);
    if (!bytes)
        return std::nullopt;
    const ByteReader frame(*bytes);
    const std::uint16_t control = frame.u16(0).value_or(0);
    const std::uint16_t kind = control & kVersionTypeSubtype;
    if ((kind != kBeacon && kind != kProbeResponse) || control & (kMoreFragments | kProtectedFrame))
        return std::nullopt;
    const std::size_t body = kHeaderSize + (control & kPlusHTC ? kHTControlSize : 0);
    if (!frame.contains(body, kFixedFieldsSize) ||
        frame.u16(kSequenceControl).value_or(0) & kFragmentNumber)
        return std::nullopt;

    const std::uint16_t capability = frame.u16(body + 10).value_or(0);
    BeaconFrame result{
        .isProbeResponse = kind == kProbeResponse,
        .bssid = bytes->subspan(kAddress3, kAddressSize),
        .beaconInterval = frame.u16(body + 8).value_or(0),
        .ibss = (capability & kCapabilityIBSS) != 0,
        .privacy = (capability & kCapabilityPrivacy) != 0,
        .elements = bytes->subspan(body + kFixedFieldsSize),
    };
    const ElementRun elements(result.elements);
    if (isIn6GHzBand(received, elements))
        return std::nullopt;
    result.channel = channelOf(received, elements);
    return result;
}

} // namespace tessara
