#pragma once

#include "foundation/Clock.h"
#include "scanning/CWInterface.h"
#include "scanning/nl80211/BssEntry.h"
#include "scanning/nl80211/NetworkManagerClient.h"

namespace tessara {

struct InterfaceInfo;

/// A wireless interface of the kernel, of station type. It scans by itself where it may, else
/// through NetworkManager, else it shows what others' scans leave in the kernel. The interface is
/// never configured, brought up or down: only its radio's block is released when asked for.
///
/// It goes by its name, so that an adapter that is plugged in again is found again.
class Nl80211Interface final : public CWInterface {
public:
    /// @param pause must outlive the interface; it tells when the program shuts down
    Nl80211Interface(QString name, NetworkManagerClient networkManager, Pause& pause);

    QString interfaceName() const override { return m_name; }
    /// True while the radio is not blocked and the interface is up.
    bool powerOn() const override;
    std::optional<CWError> setPower(bool on) override;

    std::optional<QString> bssid() const override;
    std::optional<QString> ssid() const override;
    std::optional<QByteArray> ssidData() const override;
    std::optional<CWChannel> wlanChannel() const override;
    double transmitRate() const override;

    std::vector<CWNetwork> cachedScanResults() const override;
    CWScan scanForNetworksWithSSID(const std::optional<QByteArray>& ssid) override;
    QString scanMethod() const override;

private:
    /// The network that the interface is associated with, out of the kernel's list.
    std::optional<BssEntry> associatedEntry() const;
    CWScan scanByNetworkManager(const InterfaceInfo& info, const std::optional<QByteArray>& ssid);
    /// The kernel's list as the result of a scan, with the error, if any, that the scan ended by.
    CWScan results(const InterfaceInfo& info, std::optional<BootTime> seenSince,
                   std::optional<CWError> error) const;
    /// Leaves it to NetworkManager to bring up the interface; false if it will not.
    bool isBroughtUpByNetworkManager(bool wasBlocked) const;

    const QString m_name;
    const NetworkManagerClient m_networkManager;
    Pause& m_pause;
};

} // namespace tessara
