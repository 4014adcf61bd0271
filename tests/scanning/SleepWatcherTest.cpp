#include "scanning/SleepWatcher.h"

#include "support/PrivateBus.h"

#include <QDBusMessage>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace tessara;

TEST(SleepWatcher, PassesOnWhatTheLoginManagerTells)
{
    PrivateBus bus;
    if (bus.address().isEmpty())
        GTEST_SKIP() << "dbus-daemon cannot be started (package dbus-daemon)";
    NotificationCenter notifications;
    SleepWatcher watcher(bus.connection(), notifications);
    QSignalSpy slept(&notifications, &NotificationCenter::willSleep);
    QSignalSpy woke(&notifications, &NotificationCenter::didWake);

    QDBusConnection loginManager = bus.connection();
    for (const bool begins : {true, false}) {
        QDBusMessage signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"));
        signal << begins;
        ASSERT_TRUE(loginManager.send(signal));
        EXPECT_TRUE((begins ? slept : woke).wait(5000));
    }
    EXPECT_EQ(slept.size(), 1);
    EXPECT_EQ(woke.size(), 1);
}
