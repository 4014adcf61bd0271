#pragma once

#include "foundation/ByteReader.h"

#include <optional>

namespace tessara {

/// A frame as a capture holds it, and what the header before it says of its reception.
struct ReceivedFrame {
    Bytes frame = {};                  ///< from the frame control field on
    std::optional<int> signal = {};    ///< dBm
    std::optional<int> noise = {};     ///< dBm
    std::optional<int> frequency = {}; ///< of the channel's centre, MHz
    bool endsWithFCS = false;          ///< so says the header; not each knows
    bool isCorrupt = false;            ///< the frame check sequence was found wrong
};

/// Takes the header off a packet; none if there is no frame after it.
using RadioHeaderDecoder = std::optional<ReceivedFrame> (*)(Bytes packet);

/// The decoder for the packets of a link type (a LINKTYPE_ number); none if they hold no frames
/// of 802.11.
RadioHeaderDecoder radioHeaderDecoder(int linkType);

/// radiotap, see radiotap.org.
std::optional<ReceivedFrame> decodeRadiotap(Bytes packet);
/// The Per-Packet Information header, with its 802.11-Common field.
std::optional<ReceivedFrame> decodePPI(Bytes packet);
/// The message of wlan-ng drivers, or an AVS header, which some drivers give out as one.
std::optional<ReceivedFrame> decodePrism(Bytes packet);
/// The AVS capture header, version 1 or 2.
std::optional<ReceivedFrame> decodeAVS(Bytes packet);

} // namespace tessara
