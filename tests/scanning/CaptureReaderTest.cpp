#include "scanning/capture/CaptureReader.h"
#include "model/SecurityMode.h"
#include "scanning/CaptureBuilder.h"

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr int kBare = 105;
constexpr int kRadiotap = 127;
constexpr double kStart = 1'700'000'000;
constexpr double kYear = 365 * 86400.0;

const QByteArray kBeacon = build({});
const QByteArray kOther = QByteArray::fromHex("02aabbccdd02");

struct Outcome {
    std::vector<RecordedScan> scans;
    std::string error;
};

Outcome readCapture(const QByteArray& file, double sweepSeconds = 3.0)
{
    CaptureReader reader(inMemory(file), QStringLiteral("test.pcap"), sweepSeconds);
    Outcome outcome{allScans(reader), {}};
    outcome.error = reader.error().toStdString();
    return outcome;
}

std::vector<double> timesOf(const Outcome& outcome)
{
    std::vector<double> times;
    for (const RecordedScan& scan : outcome.scans)
        times.push_back(scan.time - kStart);
    return times;
}

std::vector<std::size_t> sizesOf(const Outcome& outcome)
{
    std::vector<std::size_t> sizes;
    for (const RecordedScan& scan : outcome.scans)
        sizes.push_back(scan.networks.size());
    return sizes;
}

/// The one network of a capture of one sweep.
ScanDictionary onlyNetwork(const QByteArray& file)
{
    const Outcome outcome = readCapture(file);
    EXPECT_EQ(outcome.error, "");
    if (outcome.scans.size() != 1 || outcome.scans[0].networks.size() != 1) {
        ADD_FAILURE() << "not one scan of one network";
        return {};
    }
    return outcome.scans[0].networks[0];
}

} // namespace

TEST(CaptureReader, TurnsAFrameIntoARawScanDictionary)
{
    // Flags, channel 2437 MHz, -61 dBm, noise -93 dBm.
    const QByteArray radiotap = QByteArray::fromHex("0000100068000000 8509 a000 c3 a3 0000");
    const QByteArray elements = ssidElement("Caf\xc3\xa9") + dsElement(6);
    const ScanDictionary network = onlyNetwork(
        capture(kRadiotap, {{kStart, radiotap + build({.capability = 0x0011, // with privacy
                                                       .elements = elements})}}));
    ScanDictionary expected;
    expected.bssid = QStringLiteral("02:aa:bb:cc:dd:01");
    expected.channelNumber = 6;
    expected.ssid = QStringLiteral("Café");
    expected.rssiValue = -61;
    expected.noiseMeasurement = -93;
    expected.informationElementData = elements;
    expected.ibss = false;
    expected.beaconInterval = 100;
    expected.phyMode = 0;
    expected.securityMode = static_cast<std::int64_t>(SecurityMode::kWEP);
    EXPECT_EQ(network, expected);
}

TEST(CaptureReader, LeavesOutTheKeysThatNothingFills)
{
    for (const auto& noText : {QByteArray(4, '\0'), QByteArray("\xff\xfe")}) {
        const ScanDictionary network =
            onlyNetwork(capture(kBare, {{kStart, build({.elements = element(0, noText)})}}));
        EXPECT_EQ(network.ssid, std::nullopt);
        EXPECT_EQ(network.channelNumber, std::nullopt);
        EXPECT_EQ(network.securityMode, static_cast<std::int64_t>(SecurityMode::kUnknown));
    }
}

TEST(CaptureReader, MergesTheFramesOfASweep)
{
    const QByteArray hidden = build({.elements = element(0, "") + dsElement(6)});
    const QByteArray named = build({.control = 0x0050});
    const QByteArray on5GHz = build({.elements = ssidElement("Net") + dsElement(36)});
    const Outcome outcome = readCapture(
        capture(kRadiotap, {
                               {kStart + 0.0, withSignal(-70, hidden)},
                               {kStart + 0.1, withSignal(-50, named)},
                               {kStart + 0.2, withSignal(-60, build({.bssid = kOther}))},
                               {kStart + 0.3, withSignal(-65, on5GHz)},
                               {kStart + 0.4, withSignal(-72, hidden)},
                               {kStart + 0.5, withoutSignal(hidden)},
                           }));
    ASSERT_EQ(outcome.scans.size(), 1u);
    const ScanResults& networks = outcome.scans[0].networks;
    ASSERT_EQ(networks.size(), 3u);
    EXPECT_EQ(networks[0].ssid, QStringLiteral("Net")); // from the probe response
    EXPECT_EQ(networks[0].rssiValue, -72);              // the last that was read
    EXPECT_EQ(networks[1].bssid, QStringLiteral("02:aa:bb:cc:dd:02"));
    EXPECT_EQ(networks[2].channelNumber, 36);
}

TEST(CaptureReader, CutsCaptureTimeIntoSweeps)
{
    const QByteArray packet = withSignal(-60, kBeacon);
    struct Case {
        const char* name;
        std::vector<double> packetTimes;
        std::vector<double> scanTimes;
        std::vector<std::size_t> networks;
    };
    const Case cases[] = {
        {"the border belongs to the next sweep", {0, 2.5, 3}, {3, 6}, {1, 1}},
        {"silence ages networks", {0, 10}, {3, 6, 9, 12}, {1, 0, 0, 1}},
        {"packets out of order", {0, 7, 5, 7.5, 1}, {3, 6, 9}, {1, 0, 1}},
        {"the clock was set back by an hour", {3600, 3601, 0, 1, 4}, {3603, 3606, 3609}, {1, 1, 1}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<PacketToBuild> packets;
        for (const double time : c.packetTimes)
            packets.push_back({kStart + time, packet});
        const Outcome outcome = readCapture(capture(kRadiotap, packets));
        EXPECT_EQ(timesOf(outcome), c.scanTimes);
        EXPECT_EQ(sizesOf(outcome), c.networks);
        EXPECT_EQ(outcome.error, "");
    }
    const auto halfSeconds =
        readCapture(capture(kRadiotap, {{kStart, packet}, {kStart + 0.6, packet}}), 0.5);
    EXPECT_THAT(timesOf(halfSeconds), ElementsAre(0.5, 1.0));
}

TEST(CaptureReader, DoesNotFillALeapOfYearsWithScans)
{
    const QByteArray packet = withSignal(-60, kBeacon);
    const Outcome outcome =
        readCapture(capture(kRadiotap, {{kStart, packet}, {kStart + 10 * kYear, packet}}));
    const auto times = timesOf(outcome);
    ASSERT_EQ(times.size(), 102u);
    EXPECT_EQ(times[99], 300);
    // The last silent sweep is told, so that what is too old goes before the next sighting.
    EXPECT_NEAR(times[101] - times[100], 3, 1e-3);
    EXPECT_NEAR(times[101], 10 * kYear, 3);
    EXPECT_EQ(outcome.scans[100].networks.size(), 0u);
    EXPECT_EQ(outcome.scans[101].networks.size(), 1u);
}

TEST(CaptureReader, TellsNoReadingFromNoSignalAtAll)
{
    const QByteArray other = build({.bssid = kOther});
    const auto mixed = readCapture(capture(kRadiotap, {{kStart, withoutSignal(kBeacon)},
                                                       {kStart + 1, withSignal(-60, other)},
                                                       {kStart + 3, withoutSignal(other)}}));
    ASSERT_EQ(mixed.scans.size(), 2u);
    EXPECT_FALSE(mixed.scans[0].recordsSignal);
    EXPECT_EQ(mixed.scans[0].networks[0].rssiValue, -120) << "never with a signal";
    EXPECT_EQ(mixed.scans[0].networks[1].rssiValue, -60);
    EXPECT_TRUE(mixed.scans[1].recordsSignal);
    EXPECT_EQ(mixed.scans[1].networks[0].rssiValue, 0) << "only this time without";
}

TEST(CaptureReader, SaysInOneLineWhatIsWrongWithAFile)
{
    const QByteArray good = capture(kBare, {{kStart, kBeacon}, {kStart + 1, kBeacon}});
    struct Case {
        const char* name;
        QByteArray file;
        std::size_t scans;
        const char* error;
    };
    const Case cases[] = {
        {"empty", "", 0, "test.pcap: the file is empty"},
        {"text", "It was a dark and stormy night; the rain fell.", 0, "test.pcap: not a capture"},
        {"header cut short", good.first(10), 0, "test.pcap: not a capture"},
        {"Ethernet", capture(1, {{kStart, kBeacon}}), 0, "its link type is EN10MB"},
        {"cut in a packet", good.chopped(20), 1,
         "test.pcap: the rest of the capture cannot be read"},
        {"cut in a packet's header", good.chopped(kBeacon.size() + 3), 1, "cannot be read"},
        {"no packets", capture(kBare, {}), 0, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Outcome outcome = readCapture(c.file);
        EXPECT_EQ(outcome.scans.size(), c.scans);
        EXPECT_EQ(outcome.error.find('\n'), std::string::npos);
        if (*c.error == '\0')
            EXPECT_EQ(outcome.error, "");
        else
            EXPECT_THAT(outcome.error, HasSubstr(c.error));
        for (const RecordedScan& scan : outcome.scans)
            EXPECT_EQ(scan.networks.size(), 1u);
    }
}
