#include "enrichment/AvahiServices.h"
#include "enrichment/TSNetServiceBrowser.h"
#include "kernel/Daemon.h"
#include "support/ManualClock.h"
#include "support/PrivateBus.h"
#include "support/QtPrinters.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tessara;
using kernel::Daemon;
using kernel::eventually;

namespace {

/// The daemon, on a bus that the programs which it starts take for the system's.
class AvahiDaemonTest : public testing::Test {
protected:
    AvahiDaemonTest() { qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.address().toLatin1()); }

    static std::unique_ptr<Daemon> startAvahi()
    {
        return std::make_unique<Daemon>(
            QStringLiteral("avahi-daemon"),
            QStringList{QStringLiteral("--no-drop-root"), QStringLiteral("--no-chroot"),
                        QStringLiteral("--no-rlimits"), QStringLiteral("--no-proc-title")},
            "Server startup complete");
    }
    /// @param txt as the shell's printf takes it
    static std::unique_ptr<Daemon> publish(const QString& name, const QString& txt)
    {
        return std::make_unique<Daemon>(
            QStringLiteral("sh"),
            QStringList{QStringLiteral("-c"),
                        QStringLiteral("exec avahi-publish -s \"$1\" _airport._tcp 5009 "
                                       "txtvers=1 \"$(printf \"$2\")\""),
                        QStringLiteral("sh"), name, txt},
            "Established under name");
    }
    /// Waits until the browser tells that name, while time goes on.
    bool hasName(const char* bssid, const QString& name)
    {
        return eventually([&] {
            clock.advance(0.1);
            return browser.deviceNameFor(QString::fromLatin1(bssid)) == name;
        });
    }

    PrivateBus bus;
    ManualClock clock;
    AvahiServices services{bus.connection()};
    TSNetServiceBrowser browser{services, clock};
};

} // namespace

TEST_F(AvahiDaemonTest, NamesStandInTheTable)
{
    const auto avahi = startAvahi();
    ASSERT_TRUE(avahi->isReady()) << avahi->output();
    const QString longest(63, u'W');
    const QString office = QStringLiteral("Büro \"2\", 北 \U0001f4e1");
    const std::unique_ptr<Daemon> published[] = {
        publish(office, QStringLiteral("waMA=0-1,raMA=00-1C-B3-00-00-02,raM2=00-1C-B3-00-00-03")),
        publish(longest, QStringLiteral("waMA=raMA=00-1C-B3-00-00-04,raM2,=")),
        publish(QStringLiteral("no text"), QStringLiteral("waMA=raMA=00-1C-B3-00-00-05,\\377")),
    };
    for (const auto& each : published)
        ASSERT_TRUE(each->isReady()) << each->output();

    const QTemporaryDir folder;
    QFile recording(folder.filePath(QStringLiteral("a.jsonl")));
    ASSERT_TRUE(recording.open(QIODevice::WriteOnly));
    recording.write(R"({"time":1,"networks":[)");
    for (const QByteArray last : {"2", "3", "4", "5"}) {
        recording.write((last == "2" ? R"({"bssid":"0:1c:b3:0:0:)" : R"(,{"bssid":"0:1c:b3:0:0:)") +
                        last + R"(","channelNumber":1,"ssid":"x","rssiValue":-50})");
    }
    recording.write("]}\n");
    recording.close();
    const QString command =
        QStringLiteral("HOME=%1 " TESSARA_CLI " networks %2 --sort BSSID --format csv "
                       "--columns BSSID,DEVICE_NAME --default DeleteIfNotSeen=false %3; echo $?");
    const auto table = QStringLiteral("BSSID,Device Name\n"
                                      "00:1C:B3:00:00:02,%1\n00:1C:B3:00:00:03,%1\n"
                                      "00:1C:B3:00:00:04,%2\n00:1C:B3:00:00:05,\n0\n");
    const auto printed = [&](const char* option) {
        return kernel::outputOf(
            command.arg(folder.path(), recording.fileName(), QString::fromLatin1(option)));
    };
    EXPECT_EQ(printed("--device-names"), table.arg(u'"' + office + u'"', longest));
    EXPECT_EQ(printed(""), table.arg(QString(), QString())) << "unless asked for";
}

TEST_F(AvahiDaemonTest, ASearchSurvivesTheDaemonsRestart)
{
    browser.searchServices();
    auto avahi = startAvahi();
    auto published = publish(QStringLiteral("Attic"), QStringLiteral("waMA=raMA=1-2"));
    EXPECT_TRUE(hasName("1:2", QStringLiteral("Attic")));

    published.reset();
    avahi.reset();
    clock.advance(60);
    avahi = startAvahi();
    published = publish(QStringLiteral("Cellar"), QStringLiteral("waMA=raMA=1-2"));
    EXPECT_TRUE(hasName("1:2", QStringLiteral("Cellar")));
}
