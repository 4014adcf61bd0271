#pragma once

#include <QObject>
#include <QString>

namespace tessara {

/// The program's notifications, one signal each. Posting is emitting: it may be done on any
/// thread, and an observer that lives on another thread is called there, later.
class NotificationCenter final : public QObject {
    Q_OBJECT

Q_SIGNALS:
    // Posted by the engine, on its own thread, around each scan.
    void scanDidStart();
    void scanDidEnd();
    // Posted after the views have got a new list.
    void didFindNetworks();

    // Posted by the Wi-Fi service when the state of an interface has changed.
    void powerDidChange();
    void bssidDidChange();
    void linkQualityDidChange();
    // Posted around a sleep of the machine.
    void willSleep();
    void didWake();
};

} // namespace tessara
