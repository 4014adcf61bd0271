#include "kernel/AirCapture.h"
#include "kernel/RadioTest.h"

#include <QRegularExpression>

#include <cmath>
#include <future>
#include <sys/socket.h>

using namespace tessara;
using namespace tessara::kernel;

namespace {

class Scan : public RadioTest {
protected:
    CWScan scan(const std::optional<QByteArray>& ssid = std::nullopt)
    {
        CWScan result = wlan0->scanForNetworksWithSSID(ssid);
        if (result.error)
            ADD_FAILURE() << result.error->localizedDescription.toStdString();
        return result;
    }
};

std::vector<QString> bssidsOf(const std::vector<CWNetwork>& networks)
{
    std::vector<QString> bssids;
    for (const CWNetwork& network : networks)
        bssids.push_back(network.bssid.value_or(QString()));
    return bssids;
}

TEST_F(Scan, FindsWhatTheAccessPointsWereToldToAnnounce)
{
    const std::vector<CWNetwork> networks = scan().networks;
    std::vector<QString> expected;
    for (const AnnouncedNetwork& told : standingNetworks()) {
        SCOPED_TRACE(told.bssid.toStdString());
        expected.push_back(told.bssid);
        const CWNetwork* found = networkOf(networks, told.bssid);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->ssid,
                  told.isHidden ? std::nullopt : std::optional(QString::fromUtf8(told.ssid)));
        EXPECT_EQ(found->wlanChannel.channelNumber, told.channel);
        EXPECT_EQ(found->wlanChannel.channelBand, channelBandForChannel(told.channel));
        EXPECT_EQ(found->beaconInterval, told.beaconInterval);
        EXPECT_EQ(found->supportsSecurity(CWSecurity::kWEP), told.hasWEP);
        EXPECT_FALSE(found->ibss);
    }
    EXPECT_THAT(bssidsOf(networks), testing::UnorderedElementsAreArray(expected));
}

TEST_F(Scan, GivesTheElementsThatWereOnTheAir)
{
    AirCapture air;
    const std::vector<CWNetwork> networks = scan().networks;
    EXPECT_EQ(networks.size(), standingNetworks().size());
    for (const CWNetwork& network : networks) {
        EXPECT_TRUE(air.elements().contains(*network.bssid, network.informationElementData))
            << "sent by nobody: " << network.bssid->toStdString() << ' '
            << network.informationElementData.toHex().toStdString();
    }
}

TEST_F(Scan, AgreesWithIwOnChannelsAndSignal)
{
    const std::vector<CWNetwork> networks = scan().networks;
    const QString dump = outputOf(QStringLiteral("iw dev wlan0 scan dump"));
    static const QRegularExpression entry(
        QStringLiteral(R"(BSS ([0-9a-f:]{17}).*?freq: (\d+).*?signal: (-\d+\.\d+))"),
        QRegularExpression::DotMatchesEverythingOption);
    int compared = 0;
    for (auto match = entry.globalMatch(dump); match.hasNext(); ++compared) {
        const QRegularExpressionMatch seen = match.next();
        const CWNetwork* found = networkOf(networks, seen.captured(1));
        ASSERT_NE(found, nullptr) << seen.captured(0).toStdString();
        EXPECT_EQ(centerFrequencyOfChannel(found->wlanChannel.channelNumber),
                  seen.captured(2).toInt());
        EXPECT_EQ(found->rssiValue, std::lround(seen.captured(3).toDouble()));
    }
    EXPECT_EQ(compared, static_cast<int>(networks.size()));
}

TEST_F(Scan, AsksForAHiddenNetworkByName)
{
    // A name once heard is kept for a while, unless a scan is told to forget what it does not hear.
    outputOf(QStringLiteral("iw dev wlan0 scan trigger flush freq 2412"));
    const auto standing = standingNetworks();
    const auto hidden = std::ranges::find_if(standing, &AnnouncedNetwork::isHidden);
    ASSERT_NE(hidden, standing.end());

    const std::vector<CWNetwork> heard = scan().networks;
    const CWNetwork* nameless = networkOf(heard, hidden->bssid);
    ASSERT_NE(nameless, nullptr);
    EXPECT_EQ(nameless->ssid, std::nullopt);

    const std::vector<CWNetwork> asked = scan(hidden->ssid).networks;
    const CWNetwork* named = networkOf(asked, hidden->bssid);
    ASSERT_NE(named, nullptr);
    EXPECT_EQ(named->ssid, QString::fromUtf8(hidden->ssid));
}

TEST_F(Scan, LeavesOutANetworkThatIsGoneThoughTheKernelStillKnowsIt)
{
    const QString config = QStringLiteral("air/passing.conf");
    const QString passing = announcedNetworks(config).at(0).bssid;
    {
        const Daemon hostapd(QStringLiteral("hostapd"), {config}, "AP-ENABLED");
        ASSERT_TRUE(hostapd.isReady()) << hostapd.output();
        EXPECT_NE(networkOf(scan().networks, passing), nullptr);
    }
    EXPECT_EQ(networkOf(scan().networks, passing), nullptr);
    EXPECT_NE(networkOf(wlan0->cachedScanResults(), passing), nullptr);
}

TEST_F(Scan, WaitsForAForeignScanAndThenScans)
{
    // One radio scans for one interface at a time; the foreign scan may be on another one.
    outputOf(QStringLiteral("iw dev wlan0 interface add other0 type managed && "
                            "ip link set other0 up"));
    // A foreign scan may also be of a few channels only, which is none that would serve.
    for (const QString& foreigner :
         {QStringLiteral("dev wlan0 scan trigger"), QStringLiteral("dev other0 scan trigger"),
          QStringLiteral("dev wlan0 scan trigger freq 2412 2417 2422 flush")}) {
        SCOPED_TRACE(foreigner.toStdString());
        EXPECT_EQ(outputOf(QStringLiteral("iw %1 && echo begun").arg(foreigner)),
                  QStringLiteral("begun\n"));
        EXPECT_EQ(scan().networks.size(), standingNetworks().size());
    }
    outputOf(QStringLiteral("iw dev other0 del"));
}

TEST_F(Scan, TellsThatEventsWereLost)
{
    Nl80211Socket events;
    ASSERT_EQ(events.subscribe(NL80211_MULTICAST_GROUP_SCAN), 0);
    const int smallest = 0; // the kernel makes it hold one event
    setsockopt(events.fileDescriptor(), SOL_SOCKET, SO_RCVBUF, &smallest, sizeof(smallest));
    const auto ignore = [](const Nl80211Message&) {};
    EXPECT_EQ(events.receiveEvents(0, ignore), EventsRead::kNone);
    scan();
    EXPECT_EQ(events.receiveEvents(0, ignore), EventsRead::kSomeLost);
    scan(); // goes on all the same
}

TEST_F(Scan, EndsWithAnErrorWhenTheInterfaceVanishes)
{
    outputOf(QStringLiteral("iw dev wlan0 interface add gone0 type managed && "
                            "ip link set gone0 up"));
    const auto gone0 = service.interfaceWithName(QStringLiteral("gone0"));
    ASSERT_NE(gone0, nullptr);
    auto scanning =
        std::async(std::launch::async, [&] { return gone0->scanForNetworksWithSSID({}); });
    ASSERT_TRUE(eventually(isScanning));
    outputOf(QStringLiteral("iw dev gone0 del"));
    EXPECT_TRUE(scanning.get().error);
    EXPECT_TRUE(gone0->scanForNetworksWithSSID({}).error);
    EXPECT_EQ(service.interfaceWithName(QStringLiteral("gone0")), nullptr);
}

} // namespace
