#pragma once

#include "foundation/NotificationCenter.h"

#include <QDBusConnection>
#include <QObject>

namespace tessara {

/// Posts that the machine is about to sleep and that it has woken up, as the login manager tells
/// on the system bus. Without one nothing is posted, which is logged once.
class SleepWatcher final : public QObject {
    Q_OBJECT

public:
    /// @param notifications must outlive the watcher
    SleepWatcher(QDBusConnection bus, NotificationCenter& notifications);

private Q_SLOTS:
    void prepareForSleep(bool begins);

private:
    NotificationCenter& m_notifications;
};

} // namespace tessara
