#include "model/ColumnRegistry.h"

#include "model/TSNetwork.h"

#include <gtest/gtest.h>

using namespace tessara;

namespace {

std::string text(const char* identifier, const TSNetwork& network, CellContext context = {})
{
    return columnWithIdentifier(QString::fromLatin1(identifier))
        ->text(network, context)
        .toStdString();
}

} // namespace

TEST(ColumnRegistry, ShowsReadingsInTheUnitOfTheUser)
{
    ScanDictionary d;
    d.bssid = QStringLiteral("0:0:0:0:0:1");
    d.channelNumber = 44;
    d.beaconInterval = 100;
    TSNetwork network(d, 0);
    network.addDataPoint({-60, -90, -1, -1, 0});
    EXPECT_EQ(text("RSSI", network), "66%");
    EXPECT_EQ(text("RSSI", network, {.dBm = true}), "-60");
    EXPECT_EQ(text("NOISE_AVG", network, {.dBm = true}), "-90");
    EXPECT_EQ(text("SNR", network), "30 dB");
    EXPECT_EQ(text("CENTER_FREQUENCY", network), "5220 MHz");
    EXPECT_EQ(text("CHANNEL_BAND", network), "5 GHz");
    EXPECT_EQ(text("BEACON_INT", network), "102.4 ms");
    EXPECT_EQ(text("NETWORK_TYPE", network), "Infrastructure");

    d.beaconInterval.reset();
    network.setNetwork(d);
    EXPECT_EQ(text("BEACON_INT", network), "") << "no unit without a value";
    EXPECT_EQ(columnWithIdentifier(u"NO_SUCH"), nullptr);
}

TEST(ColumnRegistry, TellsHowLongAgoANetworkWasSeenInCalmSteps)
{
    ScanDictionary d;
    d.bssid = QStringLiteral("0:0:0:0:0:1");
    TSNetwork network(d, 0);
    network.addDataPoint({-60, -90, -1, -1, 0});
    const std::pair<double, const char*> cases[] = {
        {0, "Just now"},      {0.6, "2 sec ago"},    {4.4, "2 sec ago"},    {4.5, "5 sec ago"},
        {59.4, "55 sec ago"}, {60, "1 min ago"},     {119, "1 min ago"},    {125, "2 min ago"},
        {3599, "59 min ago"}, {3600, "1 hours ago"}, {7300, "2 hours ago"},
    };
    for (const auto& [elapsed, expected] : cases) {
        network.setLastSeenElapsedSeconds(elapsed);
        EXPECT_EQ(text("SEEN", network, {.isScanning = true}), expected) << elapsed;
    }
    // Seen in this very scan, but without a reading.
    network.setLastSeenElapsedSeconds(0);
    network.addDataPoint({-120, -120, -1, -1, 0});
    EXPECT_EQ(text("SEEN", network, {.isScanning = true}), "2 sec ago");
}

TEST(ColumnRegistry, OrdersNumbersInTextsByTheirValue)
{
    const Column& channel = *columnWithIdentifier(u"CHANNEL");
    EXPECT_LT(SortKey::compare({channel, QStringLiteral("9")}, {channel, QStringLiteral("36")}), 0);
    const Column& name = *columnWithIdentifier(u"SSID");
    EXPECT_LT(SortKey::compare({name, QStringLiteral("Net 9")}, {name, QStringLiteral("net 10")}),
              0);
    EXPECT_LT(SortKey::compare({name, QStringLiteral("ábc")}, {name, QStringLiteral("b")}), 0);
    const Column& vendor = *columnWithIdentifier(u"VENDOR");
    EXPECT_EQ(SortKey::compare({vendor, QStringLiteral("ACME")}, {vendor, QStringLiteral("acme")}),
              0);
    const Column& signal = *columnWithIdentifier(u"RSSI");
    EXPECT_LT(SortKey::compare({signal, -90}, {signal, -9}), 0);
}
