#pragma once

#include <QByteArray>
#include <QLatin1String>
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

/// Calls `visit` with each key of a raw scan dictionary and the member that holds its value.
template <typename Dictionary, typename Visitor>
void forEachKey(Dictionary& network, const Visitor& visit)
{
    visit(QLatin1String("bssid"), network.bssid);
    visit(QLatin1String("channelNumber"), network.channelNumber);
    visit(QLatin1String("ssid"), network.ssid);
    visit(QLatin1String("rssiValue"), network.rssiValue);
    visit(QLatin1String("noiseMeasurement"), network.noiseMeasurement);
    visit(QLatin1String("informationElementData"), network.informationElementData);
    visit(QLatin1String("ibss"), network.ibss);
    visit(QLatin1String("beaconInterval"), network.beaconInterval);
    visit(QLatin1String("phyMode"), network.phyMode);
    visit(QLatin1String("securityMode"), network.securityMode);
}

/// Whether a number from a file can be a `channelNumber`.
constexpr bool isChannelNumber(std::int64_t number)
{
    constexpr std::int64_t kHighest = 0xffff; // far beyond any, and far from overflow
    return number >= 0 && number <= kHighest;
}

using ScanResults = std::vector<ScanDictionary>;
/// Results as threads share them: replaced whole, never changed. None before the first scan.
using SharedScanResults = std::shared_ptr<const ScanResults>;

} // namespace tessara
