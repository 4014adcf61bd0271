#include "foundation/Logging.h"
#include "kernel/RadioTest.h"

#include <QFile>

#include <cstring>
#include <unistd.h>

using namespace tessara;
using namespace tessara::kernel;

namespace {

int linesLogged = 0;

/// A user who may not scan. The tests of these two are run by such a user.
class UnprivilegedUser : public RadioTest {
protected:
    void SetUp() override
    {
        RadioTest::SetUp();
        ASSERT_NE(geteuid(), 0U);
        linesLogged = 0;
        m_previous = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext& context, const QString& line) {
                linesLogged += std::strcmp(context.category, lcScanning().categoryName()) == 0;
                std::puts(qPrintable(line));
            });
    }
    void TearDown() override { qInstallMessageHandler(m_previous); }

private:
    QtMessageHandler m_previous = nullptr;
};

using UnprivilegedUserWithNetworkManager = UnprivilegedUser;

TEST_F(UnprivilegedUser, SeesTheLastResultsOfOthersAndIsToldSoOnce)
{
    const std::size_t known = wlan0->cachedScanResults().size();
    EXPECT_EQ(known, standingNetworks().size());
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(wlan0->scanForNetworksWithSSID({}).networks.size(), known);
    EXPECT_EQ(linesLogged, 1);
    EXPECT_TRUE(wlan0->powerOn());
}

TEST_F(UnprivilegedUserWithNetworkManager, GetsAFreshScan)
{
    const QString passing = announcedNetworks(QStringLiteral("air/passing.conf")).at(0).bssid;
    ASSERT_EQ(networkOf(wlan0->scanForNetworksWithSSID({}).networks, passing), nullptr);

    // Root is asked to put one more network on the air.
    QFile wish(QStringLiteral("/tmp/passing-wanted"));
    ASSERT_TRUE(wish.open(QFile::WriteOnly));
    ASSERT_TRUE(eventually([] {
        QFile state(QStringLiteral("/sys/class/net/wlan5/operstate"));
        return state.open(QFile::ReadOnly) && state.readAll() == "up\n";
    }));
    const CWScan scan = wlan0->scanForNetworksWithSSID({});
    EXPECT_FALSE(scan.error);
    EXPECT_NE(networkOf(scan.networks, passing), nullptr);
    EXPECT_EQ(scan.networks.size(), standingNetworks().size() + 1);
    EXPECT_EQ(linesLogged, 0);
}

// Takes the access points off the air too: the switch is that of all radios.
TEST_F(UnprivilegedUserWithNetworkManager, SwitchesTheRadio)
{
    for (const bool on : {false, true}) {
        SCOPED_TRACE(on);
        powerChanges = 0;
        EXPECT_FALSE(wlan0->setPower(on));
        EXPECT_TRUE(eventually([&] { return wlan0->powerOn() == on; }));
        EXPECT_TRUE(eventually([&] { return powerChanges > 0; }));
        EXPECT_EQ(wlan0->scanForNetworksWithSSID({}).error.has_value(), !on);
    }
}

} // namespace
