#include "scanning/nl80211/NetworkManagerClient.h"
#include "scanning/StandInNetworkManager.h"
#include "support/ManualClock.h"

#include <gmock/gmock.h>

using namespace tessara;
using testing::HasSubstr;

namespace {

using End = NetworkManagerScan::End;
using Answer = StandInNetworkManager::Answer;
constexpr BootTime kMillisecond = 1'000'000;
const auto kWlan0 = QStringLiteral("wlan0");

std::string text(const std::optional<QString>& reason)
{
    return reason.value_or(QStringLiteral("(none)")).toStdString();
}

class NetworkManagerClientTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (bus.address().isEmpty())
            GTEST_SKIP() << "dbus-daemon cannot be started (package dbus-daemon)";
    }

    /// The stand-in finishes a scan while the client sleeps for this one's turn.
    void finishScanAtSleep(std::size_t number, std::int64_t at)
    {
        pause.onSleep = [this, number, at](double) {
            if (pause.sleeps.size() == number)
                daemon.change([at](auto& state) { state.lastScan = at; });
        };
    }

    PrivateBus bus;
    StandInNetworkManager daemon{bus.connection()};
    NetworkManagerClient client{bus.connection(), 300};
    ManualClock clock;
    ManualPause pause{clock};
    const std::int64_t now = bootTimeNow() / kMillisecond;
};

} // namespace

TEST_F(NetworkManagerClientTest, WaitsForTheEndOfTheScanItAskedFor)
{
    finishScanAtSleep(8, now + 2000);
    const auto scan = client.scan(kWlan0, std::nullopt, pause);
    EXPECT_EQ(scan.end, End::kFinished);
    EXPECT_EQ(scan.lastScan, (now + 2000) * kMillisecond);
    EXPECT_EQ(pause.sleeps.size(), 8U);
    EXPECT_EQ(daemon.state().requests, 1);
    EXPECT_TRUE(daemon.state().ssids.isEmpty());
}

TEST_F(NetworkManagerClientTest, AsksForANetworkByTheBytesOfItsName)
{
    finishScanAtSleep(1, now);
    const QByteArray name("\xff\x00-\x80", 4);
    EXPECT_EQ(client.scan(kWlan0, name, pause).end, End::kFinished);
    EXPECT_EQ(daemon.state().ssids, QByteArrayList{name});
}

TEST_F(NetworkManagerClientTest, TakesARefusalForAScanThatIsOverOrUnderWay)
{
    const struct {
        std::int64_t lastScan, result;
    } cases[] = {{now - 3000, now - 3000}, {now - 60'000, now + 1000}};
    finishScanAtSleep(4, now + 1000);
    for (const auto& c : cases) {
        daemon.change([&](auto& state) {
            state.answer = Answer::kRateLimited;
            state.lastScan = c.lastScan;
        });
        const auto scan = client.scan(kWlan0, std::nullopt, pause);
        EXPECT_EQ(scan.end, End::kFinished);
        EXPECT_EQ(scan.lastScan, c.result * kMillisecond);
    }
    EXPECT_EQ(pause.sleeps.size(), 4U) << "none for the first";
}

TEST_F(NetworkManagerClientTest, GivesUpOnAScanThatDoesNotEndAndWhenTheProgramEnds)
{
    EXPECT_EQ(client.scan(kWlan0, std::nullopt, pause).end, End::kTimedOut);
    EXPECT_NEAR(clock.now() - ManualClock().now(), 20, 1);
    pause.shutDown = true;
    EXPECT_EQ(client.scan(kWlan0, std::nullopt, pause).end, End::kShutDown);
}

TEST_F(NetworkManagerClientTest, SaysWhyItCannotScan)
{
    const struct {
        Answer answer;
        const char* reason;
    } cases[] = {
        {Answer::kDenied, "Not authorized to control networking"},
        {Answer::kNever, "does not answer"},
    };
    for (const auto& c : cases) {
        daemon.change([&](auto& state) { state.answer = c.answer; });
        const auto scan = client.scan(kWlan0, std::nullopt, pause);
        EXPECT_EQ(scan.end, End::kUnavailable) << c.reason;
        EXPECT_THAT(text(scan.reason), HasSubstr(c.reason));
    }
    PrivateBus emptyBus;
    const NetworkManagerClient alone(emptyBus.connection());
    EXPECT_THAT(text(alone.obstacle(kWlan0)), HasSubstr("not running"));
    EXPECT_THAT(text(alone.setWirelessEnabled(true)), HasSubstr("not running"));
    const NetworkManagerClient withoutBus(QDBusConnection(QStringLiteral("no such bus")));
    EXPECT_THAT(text(withoutBus.obstacle(kWlan0)), HasSubstr("no system bus"));
    EXPECT_EQ(withoutBus.wirelessEnabled(), std::nullopt);
}

TEST_F(NetworkManagerClientTest, NoticesThatItWentAwayDuringTheScan)
{
    pause.onSleep = [this](double) {
        if (pause.sleeps.size() == 3)
            bus.stop();
    };
    const auto scan = client.scan(kWlan0, std::nullopt, pause);
    EXPECT_EQ(scan.end, End::kUnavailable);
    EXPECT_THAT(text(scan.reason), HasSubstr("went away"));
}

TEST_F(NetworkManagerClientTest, KnowsWhichInterfacesItCanUse)
{
    EXPECT_EQ(client.obstacle(kWlan0), std::nullopt);
    EXPECT_TRUE(client.manages(kWlan0));
    EXPECT_THAT(text(client.obstacle(QStringLiteral("wlan7"))), HasSubstr("No device found"));

    daemon.change([](auto& state) { state.deviceState = 20; });
    EXPECT_THAT(text(client.obstacle(kWlan0)), HasSubstr("cannot use wlan0"));
    EXPECT_TRUE(client.manages(kWlan0));

    daemon.change([](auto& state) { state.deviceState = 10; });
    EXPECT_THAT(text(client.obstacle(kWlan0)), HasSubstr("does not manage wlan0"));
    EXPECT_FALSE(client.manages(kWlan0));
    EXPECT_EQ(client.scan(kWlan0, std::nullopt, pause).end, End::kUnavailable);
    EXPECT_EQ(daemon.state().requests, 0);
}

TEST_F(NetworkManagerClientTest, TurnsWiFiOnAndOff)
{
    EXPECT_EQ(client.setWirelessEnabled(false), std::nullopt);
    EXPECT_EQ(daemon.state().wirelessEnabled, false);
    EXPECT_EQ(client.wirelessEnabled(), false);
    EXPECT_EQ(client.setWirelessEnabled(true), std::nullopt);
    EXPECT_EQ(client.wirelessEnabled(), true);

    daemon.change([](auto& state) { state.wirelessEnabled.reset(); }); // nobody may set it
    EXPECT_THAT(text(client.setWirelessEnabled(true)), HasSubstr("Not authorized"));
}
