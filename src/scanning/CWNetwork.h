#pragma once

#include "model/Band.h"
#include "model/ChannelWidth.h"
#include "model/NetworkKey.h"
#include "model/ScanDictionary.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

namespace tessara {

/// A channel as the Wi-Fi service describes it.
struct CWChannel {
    int channelNumber = 0;
    Band channelBand = Band::k2Dot4GHz;
    ChannelWidth channelWidth = ChannelWidth::kUnknown;

    bool operator==(const CWChannel&) const = default;
};

/// Bits of the capability field (IEEE Std 802.11-2020, 9.4.1.4).
enum CapabilityBit : std::uint16_t { kCapabilityIBSS = 0x0002, kCapabilityPrivacy = 0x0010 };

/// Kinds of security that a scanned network can be asked for, by the service's codes.
enum class CWSecurity : int { kWEP = 1 };

/// One network of a scan, as the Wi-Fi service reports it.
class CWNetwork {
public:
    std::optional<QString> bssid;
    std::optional<QString> ssid; ///< none for a hidden network
    CWChannel wlanChannel;
    std::int64_t rssiValue = 0;        ///< dBm; 0 means no reading
    std::int64_t noiseMeasurement = 0; ///< dBm; 0 means no reading
    QByteArray informationElementData;
    bool ibss = false;
    std::int64_t beaconInterval = 0; ///< time units of 1.024 ms
    bool privacy = false;            ///< the Privacy bit of the capability field

    /// WEP: the Privacy bit is set and no RSN or WPA element says how else it is protected.
    bool supportsSecurity(CWSecurity security) const;

    /// What makes this and another result one network; a result without a BSSID has no key.
    std::optional<NetworkKey> key() const;

    /// The raw scan dictionary of this network.
    ScanDictionary dictionary() const;
};

} // namespace tessara
