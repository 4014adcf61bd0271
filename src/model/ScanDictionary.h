#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace tessara {

/// The raw scan dictionary: what one scan says of one network, and the one record that crosses
/// from the Wi-Fi service into the model. Saved files and recordings hold it as it is. One member
/// a key, under the key's name; an absent key is an absent member.
struct ScanDictionary {
    /// As the service gives it: perhaps in lower case, perhaps with octets of one digit.
    std::optional<QString> bssid;
    std::optional<std::int64_t> channelNumber;    ///< the primary channel
    std::optional<QString> ssid;                  ///< absent if the network announces no name
    std::optional<std::int64_t> rssiValue;        ///< dBm; 0 means no reading
    std::optional<std::int64_t> noiseMeasurement; ///< dBm; 0 means no reading
    std::optional<QByteArray> informationElementData;
    std::optional<bool> ibss;                   ///< an ad-hoc network
    std::optional<std::int64_t> beaconInterval; ///< in time units of 1.024 ms
    std::optional<std::int64_t> phyMode; ///< 0 from a live scan: to be derived from the elements
    /// 1 if the network supports WEP, otherwise SecurityMode::kUnknown; old files hold others.
    std::optional<std::int64_t> securityMode;

    bool operator==(const ScanDictionary&) const = default;
};

using ScanResults = std::vector<ScanDictionary>;
/// Results as threads share them: replaced whole, never changed. None before the first scan.
using SharedScanResults = std::shared_ptr<const ScanResults>;

} // namespace tessara
