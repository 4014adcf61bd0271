#include "scanning/nl80211/ScanRun.h"

#include "scanning/nl80211/Nl80211Socket.h"
#include "scanning/nl80211/RadioChannels.h"

#include <netlink/attr.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <net/if.h>

namespace tessara {

namespace {

using SteadyClock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr std::chrono::nanoseconds kLongestWait(kLongestScan);
// A radio can also be busy without a scan whose end would be told; so it is asked again.
constexpr auto kBusyWait = 2s;
constexpr int kStepMilliseconds = 100;

int trigger(const InterfaceInfo& interface, const std::optional<QByteArray>& ssid)
{
    const std::vector<std::uint32_t> channels = readScannableFrequencies(interface.radio);
    const auto attributes = [&](nl_msg* message) {
        nla_put_u32(message, NL80211_ATTR_IFINDEX, interface.index);
        // An entry makes the scan an active one; the empty name is that of all networks.
        const QByteArray name = ssid.value_or(QByteArray());
        nlattr* names = nla_nest_start(message, NL80211_ATTR_SCAN_SSIDS);
        nla_put(message, 1, static_cast<int>(name.size()), name.constData());
        nla_nest_end(message, names);
        // Without a list of channels the radio scans all that it has.
        if (channels.empty())
            return;
        nlattr* frequencies = nla_nest_start(message, NL80211_ATTR_SCAN_FREQUENCIES);
        for (int entry = 1; const std::uint32_t frequency : channels)
            nla_put_u32(message, entry++, frequency);
        nla_nest_end(message, frequencies);
    };
    Nl80211Socket socket;
    return socket.request(NL80211_CMD_TRIGGER_SCAN, attributes, [](const auto&) {}).error;
}

bool exists(const InterfaceInfo& interface)
{
    char name[IF_NAMESIZE];
    return if_indextoname(interface.index, name) != nullptr;
}

ScanEnd awaitEnd(Nl80211Socket& events, ScanProgress progress, const InterfaceInfo& interface,
                 SteadyClock::time_point deadline, Pause& pause)
{
    while (SteadyClock::now() < deadline) {
        std::optional<ScanEnd> end;
        const EventsRead read =
            events.receiveEvents(kStepMilliseconds, [&](const Nl80211Message& event) {
                if (!end)
                    end = progress.take(event);
            });
        if (end)
            return *end;
        // The end may be among what was lost, and would be waited for in vain.
        if (read == EventsRead::kSomeLost)
            return ScanEnd::kFinished;
        if (!exists(interface))
            return ScanEnd::kRefused;
        if (!pause.sleep(0))
            return ScanEnd::kShutDown;
    }
    return ScanEnd::kTimedOut;
}

} // namespace

ScanRun runScan(const InterfaceInfo& interface, const std::optional<QByteArray>& ssid, Pause& pause)
{
    const auto busyUntil = SteadyClock::now() + kLongestWait;
    for (;;) {
        // Subscribed before the scan is triggered, so that not even a short one can end unseen.
        Nl80211Socket events;
        if (const int error = events.subscribe(NL80211_MULTICAST_GROUP_SCAN))
            return {ScanEnd::kRefused, error};
        const BootTime begun = bootTimeNow();
        const int error = trigger(interface, ssid);
        if (error == 0) {
            const ScanEnd end = awaitEnd(events, ScanProgress::ofOurs(interface), interface,
                                         SteadyClock::now() + kLongestWait, pause);
            return {end, ENODEV, begun};
        }
        if (error != EBUSY || SteadyClock::now() >= busyUntil)
            return {ScanEnd::kRefused, error};
        const ScanEnd end = awaitEnd(events, ScanProgress::ofOthers(interface), interface,
                                     std::min(busyUntil, SteadyClock::now() + kBusyWait), pause);
        if (end == ScanEnd::kRefused || end == ScanEnd::kShutDown)
            return {end, ENODEV};
    }
}

} // namespace tessara
