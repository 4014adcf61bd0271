#include "scanning/nl80211/Nl80211EventWatcher.h"

#include "foundation/Logging.h"
#include "scanning/nl80211/InterfaceInfo.h"
#include "scanning/nl80211/Power.h"
#include "scanning/nl80211/Rfkill.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

namespace tessara {

namespace {

/// A socket that receives a message for each change of a network interface; -1 on failure.
int openLinkSocket()
{
    const int descriptor =
        socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE);
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_LINK;
    if (descriptor >= 0 &&
        bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0)
        return descriptor;
    const FileDescriptor unusable(descriptor);
    return -1;
}

int openRfkill()
{
    const int descriptor = open(kRfkillDevice, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    const int error = errno;
    if (descriptor < 0)
        qCWarning(lcScanning, "Cannot read %s (%s): radio switches are noticed late.",
                  kRfkillDevice, std::strerror(error));
    return descriptor;
}

/// Reads and forgets all that has come; what happened is then asked afresh.
void drain(const FileDescriptor& descriptor)
{
    std::array<char, 4096> buffer;
    while (read(descriptor.get(), buffer.data(), buffer.size()) > 0) {
    }
}

QMap<QString, bool> powerOfAllInterfaces()
{
    QMap<QString, bool> power;
    for (const InterfaceInfo& info : readInterfaces())
        power.insert(info.name, isPowerOn(info.name));
    return power;
}

} // namespace

Nl80211EventWatcher::Nl80211EventWatcher(NotificationCenter& notifications)
    : m_notifications(notifications)
    , m_links(openLinkSocket())
    , m_rfkill(openRfkill())
    , m_power(powerOfAllInterfaces())
{
    if (m_wifi.subscribe(NL80211_MULTICAST_GROUP_MLME) != 0) {
        qCWarning(lcScanning, "No nl80211 in the kernel: there is no Wi-Fi to watch.");
        return;
    }
    watch(m_wifi.fileDescriptor(), &Nl80211EventWatcher::readWiFiEvents);
    if (m_links.isOpen())
        watch(m_links.get(), &Nl80211EventWatcher::readLinkEvents);
    else
        qCWarning(lcScanning, "No rtnetlink: interfaces that go up or down go unnoticed.");
    if (m_rfkill.isOpen())
        watch(m_rfkill.get(), &Nl80211EventWatcher::readRfkillEvents);
}

void Nl80211EventWatcher::watch(int descriptor, void (Nl80211EventWatcher::*read)())
{
    auto notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                     [this, read] { (this->*read)(); });
    m_notifiers.push_back(std::move(notifier));
}

void Nl80211EventWatcher::readWiFiEvents()
{
    bool association = false;
    bool quality = false;
    const EventsRead read = m_wifi.receiveEvents(0, [&](const Nl80211Message& event) {
        switch (event.command) {
        case NL80211_CMD_CONNECT:
        case NL80211_CMD_ROAM:
        case NL80211_CMD_DISCONNECT:
            association = true;
            break;
        case NL80211_CMD_NOTIFY_CQM:
        case NL80211_CMD_CH_SWITCH_NOTIFY:
            quality = true;
            break;
        }
    });
    // An observer asks for the state and finds what has changed, or that nothing has.
    const bool mayHaveMissed = read == EventsRead::kSomeLost;
    if (association || mayHaveMissed)
        Q_EMIT m_notifications.bssidDidChange();
    if (quality || mayHaveMissed)
        Q_EMIT m_notifications.linkQualityDidChange();
}

void Nl80211EventWatcher::readLinkEvents()
{
    drain(m_links);
    postPowerIfChanged();
}

void Nl80211EventWatcher::readRfkillEvents()
{
    drain(m_rfkill);
    postPowerIfChanged();
}

void Nl80211EventWatcher::postPowerIfChanged()
{
    QMap<QString, bool> power = powerOfAllInterfaces();
    if (power == m_power)
        return;
    m_power = std::move(power);
    Q_EMIT m_notifications.powerDidChange();
}

} // namespace tessara
