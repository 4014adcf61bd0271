#pragma once

#include "foundation/Clock.h"
#include "foundation/NotificationCenter.h"
#include "scanning/CWInterface.h"

namespace tessara
{

/// The Wi-Fi of this machine, and recordings played as if they were interfaces of it: the name
/// "recorded:FILE" is the interface that plays FILE.
class SystemWiFiService final : public WiFiService
{
public:
    static constexpr char16_t kRecordedPrefix[] = u"recorded:";

    SystemWiFiService(Clock& clock, Pause& pause, NotificationCenter& notifications);

    std::shared_ptr<CWInterface> interface() override;
    std::shared_ptr<CWInterface> interfaceWithName(const QString& name) override;
    QStringList interfaceNames() override;

private:
    Clock& m_clock;
    Pause& m_pause;
    NotificationCenter& m_notifications;
};

} // namespace tessara
