#pragma once

#include "scanning/CWInterface.h"

#include <deque>
#include <functional>

namespace tessara {

/// A Wi-Fi interface that does what a test tells it, and remembers what it was asked.
class ScriptedInterface final : public CWInterface {
public:
    QString interfaceName() const override { return QStringLiteral("wlan0"); }
    bool powerOn() const override { return power; }
    std::optional<CWError> setPower(bool on) override
    {
        if (!powerError)
            power = on;
        return powerError;
    }
    std::optional<QString> bssid() const override { return associatedBSSID; }
    std::optional<QString> ssid() const override { return associatedSSID; }
    std::optional<QByteArray> ssidData() const override
    {
        return associatedSSID ? std::optional(associatedSSID->toUtf8()) : std::nullopt;
    }
    std::optional<CWChannel> wlanChannel() const override { return channel; }
    double transmitRate() const override { return 866.7; }
    std::vector<CWNetwork> cachedScanResults() const override { return cached; }
    CWScan scanForNetworksWithSSID(const std::optional<QByteArray>& ssid) override
    {
        askedFor.push_back(ssid);
        if (onScan)
            onScan();
        if (scans.empty())
            return {};
        CWScan scan = std::move(scans.front());
        scans.pop_front();
        return scan;
    }
    QString scanMethod() const override { return QStringLiteral("script"); }

    bool power = true;
    std::optional<CWError> powerError;
    std::optional<QString> associatedBSSID;
    std::optional<QString> associatedSSID;
    std::optional<CWChannel> channel;
    std::vector<CWNetwork> cached;
    std::deque<CWScan> scans; ///< one for each call; nothing found after the last
    std::function<void()> onScan;
    std::vector<std::optional<QByteArray>> askedFor; ///< the SSID of each call
};

/// A network with a reading, on a channel of either band.
inline CWNetwork network(const char* bssid, int channel = 1, std::int64_t rssi = -60)
{
    CWNetwork result;
    result.bssid = QString::fromLatin1(bssid);
    result.ssid = QStringLiteral("Net");
    result.wlanChannel = {channel, channelBandForChannel(channel), ChannelWidth::k20MHz};
    result.rssiValue = rssi;
    result.noiseMeasurement = -92;
    return result;
}

} // namespace tessara
