#pragma once

#include "foundation/Clock.h"
#include "scanning/nl80211/BootTime.h"

#include <QByteArray>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>

#include <optional>

namespace tessara {

/// A scan that NetworkManager was asked for.
struct NetworkManagerScan {
    enum class End {
        kFinished,
        kTimedOut,
        kUnavailable, ///< NetworkManager cannot scan here; `reason` says why
        kShutDown,
    };

    End end = End::kUnavailable;
    QString reason;
    BootTime lastScan = 0; ///< when the latest scan ended
};

/// NetworkManager, for what needs privileges that this program mostly runs without. It is never
/// started by a call: where it does not run, another program rules the interface. All operations
/// block for a bounded time and may be called from any thread.
class NetworkManagerClient {
public:
    /// @param bus            the system bus
    /// @param answerTimeout  for one answer, in milliseconds
    explicit NetworkManagerClient(QDBusConnection bus, int answerTimeout = 3000);

    /// Why NetworkManager cannot scan with this interface; none if it can.
    std::optional<QString> obstacle(const QString& interfaceName) const
    {
        return findDevice(interfaceName).obstacle;
    }

    /// Whether the interface is one that NetworkManager configures.
    bool manages(const QString& interfaceName) const { return findDevice(interfaceName).isManaged; }

    /// Asks for a scan and waits until one is over. NetworkManager refuses to scan soon after
    /// another scan, which then serves as well.
    NetworkManagerScan scan(const QString& interfaceName, const std::optional<QByteArray>& ssid,
                            Pause& pause) const;

    std::optional<bool> wirelessEnabled() const;
    /// Turns all of the machine's Wi-Fi on or off. @return why that failed; none on success
    std::optional<QString> setWirelessEnabled(bool enabled) const;

private:
    struct Device {
        QString path;
        std::optional<QString> obstacle; ///< why it cannot scan
        bool isManaged = false;
    };

    QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                      const QVariantList& arguments) const;
    QDBusMessage property(const QString& path, const QString& interface, const QString& name) const;
    Device findDevice(const QString& interfaceName) const;
    /// When the latest scan ended; 0 if none has; absent if NetworkManager does not answer.
    std::optional<BootTime> lastScan(const QString& device) const;

    QDBusConnection m_bus;
    int m_answerTimeout;
};

} // namespace tessara
