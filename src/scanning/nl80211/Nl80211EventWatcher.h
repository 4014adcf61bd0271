#pragma once

#include "foundation/NotificationCenter.h"
#include "scanning/nl80211/FileDescriptor.h"
#include "scanning/nl80211/Nl80211Socket.h"

#include <QMap>
#include <QSocketNotifier>
#include <QString>

#include <memory>
#include <vector>

namespace tessara {

/// Posts the notifications of the Wi-Fi service: it listens to nl80211, to the state of network
/// links and to the radio switches, in the event loop of the thread that it is created on. What
/// cannot be listened to is logged once and left out.
class Nl80211EventWatcher {
public:
    /// @param notifications must outlive the watcher
    explicit Nl80211EventWatcher(NotificationCenter& notifications);

private:
    /// Calls a member each time that a file descriptor has something to read.
    void watch(int descriptor, void (Nl80211EventWatcher::*read)());

    void readWiFiEvents();
    void readLinkEvents();
    void readRfkillEvents();
    void postPowerIfChanged();

    NotificationCenter& m_notifications;
    Nl80211Socket m_wifi;
    const FileDescriptor m_links;
    const FileDescriptor m_rfkill;
    QMap<QString, bool> m_power; ///< by the name of the interface
    std::vector<std::unique_ptr<QSocketNotifier>> m_notifiers;
};

} // namespace tessara
