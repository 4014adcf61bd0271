#pragma once

#include "foundation/Clock.h"
#include "foundation/NotificationCenter.h"
#include "scanning/CWInterface.h"
#include "scanning/SleepWatcher.h"
#include "scanning/nl80211/Nl80211EventWatcher.h"
#include "scanning/nl80211/Nl80211Service.h"

namespace tessara {

/// The Wi-Fi of this machine, and recordings played as if they were interfaces of it: the name
/// "recorded:FILE" is the interface that plays FILE. Posts the notifications of the service from
/// the event loop of the thread that it is made on.
class SystemWiFiService final : public WiFiService {
public:
    static constexpr char16_t kRecordedPrefix[] = u"recorded:";

    /// All of these must outlive the service and its interfaces.
    SystemWiFiService(Clock& clock, Pause& pause, NotificationCenter& notifications);

    std::shared_ptr<CWInterface> interface() override { return watched(m_kernel.interface()); }
    std::shared_ptr<CWInterface> interfaceWithName(const QString& name) override;
    QStringList interfaceNames() override { return m_kernel.interfaceNames(); }

private:
    std::shared_ptr<CWInterface> watched(std::shared_ptr<CWInterface> interface);

    Clock& m_clock;
    Pause& m_pause;
    NotificationCenter& m_notifications;
    Nl80211Service m_kernel;
    // From the first real interface on.
    std::optional<Nl80211EventWatcher> m_events;
    std::optional<SleepWatcher> m_sleep;
};

} // namespace tessara
