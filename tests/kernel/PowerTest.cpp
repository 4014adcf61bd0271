#include "kernel/RadioTest.h"

#include <future>

using namespace tessara;
using namespace tessara::kernel;

namespace {

void blockRadio(bool isBlocked)
{
    outputOf(QStringLiteral("echo %1 | tee /sys/class/net/wlan0/phy80211/rfkill*/soft")
                 .arg(isBlocked ? 1 : 0));
}

class Power : public RadioTest {
protected:
    void TearDown() override
    {
        blockRadio(false);
        outputOf(QStringLiteral("ip link set wlan0 up"));
    }
};

TEST_F(Power, FollowsTheRadioSwitchAndSetsIt)
{
    EXPECT_TRUE(wlan0->powerOn());

    blockRadio(true);
    EXPECT_TRUE(eventually([&] { return powerChanges > 0; }));
    EXPECT_FALSE(wlan0->powerOn());
    const CWScan off = wlan0->scanForNetworksWithSSID({});
    EXPECT_TRUE(off.error);
    EXPECT_TRUE(off.networks.empty());

    // The kernel keeps the interface down when its radio is released, and nobody is there to bring
    // it up.
    powerChanges = 0;
    const auto stillDown = wlan0->setPower(true);
    ASSERT_TRUE(stillDown);
    EXPECT_TRUE(stillDown->localizedDescription.contains(QLatin1String("is down")));
    outputOf(QStringLiteral("ip link set wlan0 up"));
    EXPECT_TRUE(eventually([&] { return powerChanges > 0; }));
    EXPECT_TRUE(wlan0->powerOn());
    const CWScan on = wlan0->scanForNetworksWithSSID({});
    EXPECT_FALSE(on.error);
    EXPECT_EQ(on.networks.size(), standingNetworks().size());

    EXPECT_FALSE(wlan0->setPower(false));
    EXPECT_FALSE(wlan0->powerOn());
}

TEST_F(Power, EndsAScanWhenTheRadioGoesOff)
{
    // On a slow machine a scan may be over before the radio is off: then once more.
    bool endedEarly = false;
    for (int attempt = 0; attempt < 3 && !endedEarly; ++attempt) {
        blockRadio(false);
        outputOf(QStringLiteral("ip link set wlan0 up"));
        ASSERT_TRUE(eventually([&] { return wlan0->powerOn(); }));
        auto scanning =
            std::async(std::launch::async, [&] { return wlan0->scanForNetworksWithSSID({}); });
        ASSERT_TRUE(eventually(isScanning));
        blockRadio(true);
        endedEarly = scanning.get().error.has_value();
    }
    EXPECT_TRUE(endedEarly);
}

} // namespace
