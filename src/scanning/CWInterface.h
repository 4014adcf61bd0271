#pragma once

#include "scanning/CWNetwork.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace tessara {

/// Why the Wi-Fi service could not do what was asked.
struct CWError {
    /// The scan was begun and its end did not come in time.
    static constexpr int kTimeout = -3905;
    /// Any other refusal or fault; the description says which.
    static constexpr int kUnspecified = -3900;

    int code = kUnspecified;
    QString localizedDescription;
};

/// The outcome of one scan: networks, or an error, or, when a scan was cut short, both.
struct CWScan {
    std::vector<CWNetwork> networks;
    std::optional<CWError> error;
};

/// One Wi-Fi interface of the machine: the boundary behind which the Wi-Fi service lies. All
/// operations may be called from any thread, and from several at once.
class CWInterface {
public:
    virtual ~CWInterface() = default;

    virtual QString interfaceName() const = 0;
    virtual bool powerOn() const = 0;
    /// Turns the radio on or off. @return the error, or none on success
    virtual std::optional<CWError> setPower(bool on) = 0;

    /// The network that the machine is associated with; none, or a BSSID of zeroes, when it is
    /// not associated.
    virtual std::optional<QString> bssid() const = 0;
    virtual std::optional<QString> ssid() const = 0;
    virtual std::optional<QByteArray> ssidData() const = 0; ///< the raw bytes of `ssid`
    virtual std::optional<CWChannel> wlanChannel() const = 0;
    virtual double transmitRate() const = 0; ///< Mbit/s; 0 if unknown

    /// What the last scan by anyone has left, without a sweep; perhaps nothing.
    virtual std::vector<CWNetwork> cachedScanResults() const = 0;
    /// Sweeps the channels and blocks until the sweep is over, for seconds: never to be called on
    /// the main thread. With the bytes of an SSID it asks for that network by name.
    virtual CWScan scanForNetworksWithSSID(const std::optional<QByteArray>& ssid) = 0;

    /// In words for a user, how a scan is made here ("nl80211", "NetworkManager", "recording …").
    virtual QString scanMethod() const = 0;

    bool isAssociated() const;
    /// The band of `wlanChannel`; none when not associated.
    std::optional<Band> channelBand() const;
    /// The width of `wlanChannel` in MHz, -1 if it is unknown or no single number.
    int channelWidth() const;
};

/// The Wi-Fi service of this machine, where its interfaces come from.
class WiFiService {
public:
    virtual ~WiFiService() = default;

    /// The default interface; none if the machine has none.
    virtual std::shared_ptr<CWInterface> interface() = 0;
    /// The interface of a name; none if there is no such interface.
    virtual std::shared_ptr<CWInterface> interfaceWithName(const QString& name) = 0;
    /// The names of all interfaces, the default one first.
    virtual QStringList interfaceNames() = 0;
};

/// The interface to scan with: the one that the setting `InterfaceName` names, else the default
/// one. A name that no longer exists is logged and falls back on the default.
std::shared_ptr<CWInterface> chooseInterface(WiFiService& service);

} // namespace tessara
