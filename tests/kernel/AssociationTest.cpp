#include "kernel/RadioTest.h"

#include <QRegularExpression>

using namespace tessara;
using namespace tessara::kernel;

namespace {

using Association = RadioTest;

TEST_F(Association, ShowsWhileItLasts)
{
    const AnnouncedNetwork told = announcedNetworks(QStringLiteral("air/standing/fast.conf")).at(0);
    EXPECT_FALSE(wlan0->isAssociated());
    {
        const Daemon supplicant(QStringLiteral("wpa_supplicant"),
                                {QStringLiteral("-i"), QStringLiteral("wlan0"),
                                 QStringLiteral("-c"), QStringLiteral("air/station.conf")},
                                "CTRL-EVENT-CONNECTED");
        ASSERT_TRUE(supplicant.isReady()) << supplicant.output();
        EXPECT_TRUE(eventually([&] { return bssidChanges > 0; }));
        EXPECT_TRUE(wlan0->isAssociated());
        EXPECT_EQ(wlan0->bssid(), told.bssid);
        EXPECT_EQ(wlan0->ssid(), QString::fromUtf8(told.ssid));
        EXPECT_EQ(wlan0->ssidData(), told.ssid);
        EXPECT_EQ(wlan0->wlanChannel(),
                  (CWChannel{told.channel, channelBandForChannel(told.channel), told.width}));
        // The rate may change between the two readings, so they are repeated.
        static const QRegularExpression rate(QStringLiteral(R"(tx bitrate: ([\d.]+) MBit/s)"));
        EXPECT_TRUE(eventually([&] {
            const QString link = outputOf(QStringLiteral("iw dev wlan0 link"));
            return wlan0->transmitRate() == rate.match(link).captured(1).toDouble();
        }));
        EXPECT_GT(wlan0->transmitRate(), 0);

        // A scan goes through beside the association, and finds its network too.
        const CWScan scan = wlan0->scanForNetworksWithSSID({});
        EXPECT_FALSE(scan.error);
        EXPECT_EQ(scan.networks.size(), standingNetworks().size());
        bssidChanges = 0;
    }
    EXPECT_TRUE(eventually([&] { return bssidChanges > 0; }));
    EXPECT_TRUE(eventually([&] { return !wlan0->isAssociated(); }));
    EXPECT_EQ(wlan0->ssid(), std::nullopt);
    EXPECT_EQ(wlan0->ssidData(), std::nullopt);
    EXPECT_EQ(wlan0->wlanChannel(), std::nullopt);
    EXPECT_EQ(wlan0->transmitRate(), 0);
}

} // namespace
