#include "scanning/SleepWatcher.h"

#include "foundation/Logging.h"

namespace tessara {

SleepWatcher::SleepWatcher(QDBusConnection bus, NotificationCenter& notifications)
    : m_notifications(notifications)
{
    const bool listens =
        bus.connect(QString(), QStringLiteral("/org/freedesktop/login1"),
                    QStringLiteral("org.freedesktop.login1.Manager"),
                    QStringLiteral("PrepareForSleep"), this, SLOT(prepareForSleep(bool)));
    if (!listens)
        qCInfo(lcScanning, "No system bus: the machine's sleep goes unnoticed.");
}

void SleepWatcher::prepareForSleep(bool begins)
{
    if (begins)
        Q_EMIT m_notifications.willSleep();
    else
        Q_EMIT m_notifications.didWake();
}

} // namespace tessara
