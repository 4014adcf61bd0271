#include "model/TSNetwork.h"

#include "foundation/Defaults.h"
#include "foundation/Directories.h"
#include "model/SignalPercentage.h"

#include <gtest/gtest.h>

using namespace tessara;

namespace {

constexpr double kNow = 1'700'000'000.0;

ScanDictionary dictionary(const char* bssid = "0:1a:2:3:4b:5", int channel = 1)
{
    ScanDictionary result;
    result.bssid = QString::fromLatin1(bssid);
    result.channelNumber = channel;
    return result;
}

TSDataPoint sample(std::int64_t rssi, std::int64_t noise = -90, double time = kNow)
{
    return {rssi, noise, -1, -1, time};
}

const TSDataPoint kAbsent = sample(-120, -120);

/// Answers for one BSSID, once it knows it.
struct OneName final : VendorDirectory, DeviceNameDirectory, AnnotationsDirectory {
    std::optional<QString> vendorFor(const QString& bssid) const override { return answer(bssid); }
    std::optional<QString> deviceNameFor(const QString& bssid) const override
    {
        return answer(bssid);
    }
    std::optional<QString> annotationsFor(const QString& bssid) const override
    {
        return answer(bssid);
    }
    void setAnnotations(const QString& bssid, const QString& note) override
    {
        known = bssid;
        name = note;
    }
    std::optional<QString> answer(const QString& bssid) const
    {
        ++asked;
        return bssid == known ? std::optional(name) : std::nullopt;
    }
    QString known;
    QString name;
    mutable int asked = 0;
};

} // namespace

TEST(TSNetwork, KnowsTheBandAndTheFrequencyOfItsChannel)
{
    struct Case {
        int channel;
        Band band;
        bool is2Dot4, is5;
        int mhz;
    };
    const Case cases[] = {
        {1, Band::k2Dot4GHz, true, false, 2412},  {13, Band::k2Dot4GHz, true, false, 2472},
        {14, Band::k2Dot4GHz, true, false, 2484}, {15, Band::k2Dot4GHz, false, false, 0},
        {35, Band::k2Dot4GHz, false, false, 0},   {36, Band::k5GHz, false, true, 5180},
        {165, Band::k5GHz, false, true, 5825},    {166, Band::k5GHz, false, false, 0},
        {0, Band::k2Dot4GHz, false, false, 2407}, {-1, Band::k2Dot4GHz, false, false, 0},
    };
    for (const Case& c : cases) {
        const TSNetwork network(dictionary("0:0:0:0:0:1", c.channel), kNow);
        EXPECT_EQ(network.channelBand(), c.band) << c.channel;
        EXPECT_EQ(network.is2Dot4GHz(), c.is2Dot4) << c.channel;
        EXPECT_EQ(network.is5GHz(), c.is5) << c.channel;
        EXPECT_EQ(network.centerFrequency(), c.mhz) << c.channel;
        if (c.is2Dot4 || c.is5) {
            EXPECT_EQ(channelOfFrequency(c.mhz), c.channel);
        }
    }
    EXPECT_EQ(channelOfFrequency(5955), std::nullopt) << "6 GHz is no band yet";
}

TEST(TSNetwork, AsksTheDirectoriesUntilTheyAnswer)
{
    OneName directory;
    TSNetwork network(dictionary(), kNow);
    EXPECT_EQ(network.vendor(), std::nullopt) << "nobody is there to answer";
    Directories::installed() = {&directory, &directory, &directory};

    EXPECT_EQ(network.vendor(), std::nullopt);
    directory.known = network.bssid();
    directory.name = QStringLiteral("Acme");
    EXPECT_EQ(network.vendor(), QStringLiteral("Acme"));
    const int asked = directory.asked;
    EXPECT_EQ(network.vendor(), QStringLiteral("Acme"));
    EXPECT_EQ(directory.asked, asked) << "an answer is kept";
    EXPECT_TRUE(network.hasDeviceName());

    // A note is asked for once, also when there is none, until it changes.
    EXPECT_EQ(network.annotations(), QStringLiteral("Acme"));
    directory.name = QStringLiteral("changed elsewhere");
    EXPECT_EQ(network.annotations(), QStringLiteral("Acme"));
    network.annotationsDidChange();
    EXPECT_EQ(network.annotations(), QStringLiteral("changed elsewhere"));
    network.setAnnotations(QStringLiteral("mine"));
    EXPECT_EQ(network.annotations(), QStringLiteral("mine"));
    EXPECT_EQ(directory.name, QStringLiteral("mine"));
    Directories::installed() = {};
}

TEST(TSNetwork, CountsOnlySamplesWithDataInItsStatistics)
{
    TSNetwork network(dictionary(), kNow);
    EXPECT_EQ(network.rssi(), -120);
    EXPECT_EQ(network.rssiLast(), -120);
    EXPECT_EQ(network.snrLast(), 0);
    EXPECT_EQ(network.rssiStatistic().min, 120);
    EXPECT_EQ(network.snrStatistic().min, 100);

    network.addDataPoint(sample(-65));
    EXPECT_EQ(network.snr(), 25);
    EXPECT_EQ(network.snrPerc(), 50); // 58 - 8
    network.addDataPoint(kAbsent);
    network.addDataPoint(sample(-70, -80));
    network.addDataPoint(sample(-71, -96));
    network.addDataPoint(kAbsent);

    const RunningStatistic& rssi = network.rssiStatistic();
    EXPECT_EQ(rssi.count, 3);
    EXPECT_EQ(rssi.min, -71);
    EXPECT_EQ(rssi.max, -65);
    EXPECT_EQ(rssi.avg, -68) << "-68.67, truncated towards zero";
    EXPECT_EQ(network.noiseStatistic().min, -96);
    EXPECT_EQ(network.snrStatistic().max, 25);
    EXPECT_EQ(network.snrStatistic().avg, 20);
    EXPECT_EQ(network.snrPercStatistic().max, 50);
    EXPECT_EQ(network.snr(), 25) << "of the last sample with data";
}

TEST(TSNetwork, TellsTheCurrentReadingFromTheLastRealOne)
{
    TSNetwork network(dictionary(), kNow);
    network.addDataPoint(sample(-60, -91));
    network.addDataPoint(sample(-62, -62)); // a ratio of 0 is no reading of the ratio
    EXPECT_EQ(network.snrLast(), 31);
    network.addDataPoint(kAbsent);
    network.addDataPoint(kAbsent);
    network.setLastSeenElapsedSeconds(4);
    EXPECT_EQ(network.rssi(), -120);
    EXPECT_EQ(network.rssiLast(), -62);
    EXPECT_EQ(network.noiseLast(), -62);

    network.addDataPoint(sample(-70));
    EXPECT_EQ(network.rssi(), -120) << "out of sight, whatever the samples say";
    network.setLoadedFromFile(true);
    EXPECT_EQ(network.rssi(), -70) << "a file has no present";
    EXPECT_EQ(network.noise(), -90);

    network.removeAllDataPoints();
    EXPECT_EQ(network.rssiLast(), -120);
    EXPECT_EQ(network.rssiStatistic().count, 3) << "the statistics stay";
    network.addDataPoint(sample(-80));
    EXPECT_EQ(network.rssiLast(), -80);
}

TEST(TSNetwork, KeepsAtMost32769SamplesAndAllOfTheirStatistics)
{
    TSNetwork network(dictionary(), kNow);
    network.addDataPoint(sample(-40));
    for (int i = 1; i < 32769; ++i)
        network.addDataPoint(kAbsent);
    EXPECT_EQ(network.history().size(), 32769U);
    EXPECT_EQ(network.rssiLast(), -40);
    network.addDataPoint(sample(-120, -85, kNow + 1)); // some noise, no signal
    EXPECT_EQ(network.history().size(), 32769U);
    EXPECT_EQ(network.rssiLast(), -120) << "the only reading has left the history";
    EXPECT_EQ(network.noiseLast(), -85);
    EXPECT_EQ(network.rssiStatistic().max, -40);
    EXPECT_EQ(network.indexOfDataPoint(*network.lastDataPoint()), 32768U);
    EXPECT_EQ(network.indexOfDataPoint(sample(-40)), std::nullopt);
}

TEST(TSNetwork, TakesTheColourThatTheUserChose)
{
    Defaults::standard().setValue(
        DefaultKey::UserDefinedColors,
        QVariantMap{{QStringLiteral("00:1A:02:03:4B:05"), QStringLiteral("#80123456")}});
    EXPECT_EQ(TSNetwork(dictionary(), kNow).color(), QColor(0x12, 0x34, 0x56, 0x80));
    Defaults::standard().remove(DefaultKey::UserDefinedColors);
}

TEST(SignalPercentage, FollowsItsCurve)
{
    const std::pair<int, int> cases[] = {
        {0, 100},  {-19, 100}, {-20, 100}, {-21, 99}, {-30, 96}, {-40, 89},   {-50, 79},
        {-60, 66}, {-67, 55},  {-70, 50},  {-75, 40}, {-80, 30}, {-85, 20},   {-90, 8},
        {-92, 3},  {-93, 1},   {-96, 1},   {-97, 0},  {-120, 0}, {-10000, 0},
    };
    for (const auto& [dBm, percent] : cases)
        EXPECT_EQ(signalPercentage(dBm), percent) << dBm;
}
