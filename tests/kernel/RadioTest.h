#pragma once

#include "foundation/NotificationCenter.h"
#include "kernel/AnnouncedNetwork.h"
#include "kernel/Daemon.h"
#include "scanning/nl80211/Nl80211EventWatcher.h"
#include "scanning/nl80211/Nl80211Service.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace tessara::kernel {

/// A test on the first of the simulated radios.
class RadioTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_NE(wlan0, nullptr) << "no interface wlan0";
        QObject::connect(&notifications, &NotificationCenter::powerDidChange, &notifications,
                         [this] { ++powerChanges; });
        QObject::connect(&notifications, &NotificationCenter::bssidDidChange, &notifications,
                         [this] { ++bssidChanges; });
    }

    NotificationCenter notifications;
    int powerChanges = 0;
    int bssidChanges = 0;
    Nl80211EventWatcher watcher{notifications};
    SystemPause pause{std::stop_token()};
    Nl80211Service service{NetworkManagerClient(QDBusConnection::systemBus()), pause};
    std::shared_ptr<CWInterface> wlan0 = service.interfaceWithName(QStringLiteral("wlan0"));
};

/// Whether the first radio is scanning now: the kernel then refuses another scan, the one of a
/// second interface too.
inline bool isScanning()
{
    return outputOf(QStringLiteral("iw dev wlan0 scan trigger freq 2412 2>&1"))
        .contains(QLatin1String("busy"));
}

inline const CWNetwork* networkOf(const std::vector<CWNetwork>& networks, const QString& bssid)
{
    const auto found = std::ranges::find(networks, bssid, &CWNetwork::bssid);
    return found == networks.end() ? nullptr : &*found;
}

} // namespace tessara::kernel
