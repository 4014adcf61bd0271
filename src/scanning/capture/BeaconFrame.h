#pragma once

#include "scanning/capture/RadioHeaders.h"

#include <cstdint>
#include <optional>

namespace tessara {

/// A beacon or a probe response (IEEE Std 802.11-2020, 9.3.3.2 and 9.3.3.10): what a network says
/// of itself.
struct BeaconFrame {
    bool isProbeResponse = false;
    Bytes bssid;                      ///< six bytes
    std::uint16_t beaconInterval = 0; ///< time units of 1.024 ms
    bool ibss = false;                ///< the IBSS bit of the capability field
    bool privacy = false;             ///< its Privacy bit
    Bytes elements;
    /// The primary channel that the elements name, else that of the frequency it was received
    /// on; 0 if neither is known.
    int channel = 0;
};

/// Reads a received frame. None for any other frame, for one that was received with errors or
/// whose body is no clear text of its own (a fragment, an encrypted frame), and for the networks
/// of the 6 GHz band, which have no place in the bands known here.
///
/// @param missingBytes how many bytes at the frame's end were not captured
std::optional<BeaconFrame> decodeBeacon(const ReceivedFrame& received, std::size_t missingBytes);

} // namespace tessara
