#include "scanning/SystemWiFiService.h"

#include "foundation/Defaults.h"
#include "foundation/Logging.h"
#include "scanning/NetworkMerge.h"
#include "scanning/capture/CaptureReader.h"
#include "scanning/recorded/RecordedInterface.h"

namespace tessara {

SystemWiFiService::SystemWiFiService(Clock& clock, Pause& pause, NotificationCenter& notifications)
    : m_clock(clock)
    , m_pause(pause)
    , m_notifications(notifications)
    , m_kernel(NetworkManagerClient(QDBusConnection::systemBus()), pause)
{
}

std::shared_ptr<CWInterface> SystemWiFiService::watched(std::shared_ptr<CWInterface> interface)
{
    if (interface && !m_events) {
        m_events.emplace(m_notifications);
        m_sleep.emplace(QDBusConnection::systemBus(), m_notifications);
    }
    return interface;
}

std::shared_ptr<CWInterface> SystemWiFiService::interfaceWithName(const QString& name)
{
    if (!name.startsWith(QStringView(kRecordedPrefix)))
        return watched(m_kernel.interfaceWithName(name));
    QString error;
    std::shared_ptr<RecordedInterface> recorded = RecordedInterface::open(
        name.mid(QStringView(kRecordedPrefix).size()), CaptureReader::kDefaultSweepSeconds,
        {m_clock, m_pause, m_notifications}, error);
    if (!recorded)
        qCWarning(lcScanning, "%ls", qUtf16Printable(error));
    // Networks without any signal are to be seen all the same.
    else if (!recorded->recordsSignal())
        Defaults::standard().overrideForThisRun(DefaultKey::Sensitivity,
                                                QVariant(MergeLimits::kSensitivityOff));
    return recorded;
}

} // namespace tessara
