#include "scanning/NetworkMerge.h"

#include "foundation/Defaults.h"
#include "scanning/ScriptedInterface.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

using namespace tessara;
using testing::ElementsAre;

namespace {

constexpr double kStart = 1'700'000'000.0;
constexpr MergeLimits kNoLimits{std::nullopt, 1e9};

ScanDictionary sighting(const char* bssid, int channel = 1, std::int64_t rssi = -60)
{
    return network(bssid, channel, rssi).dictionary();
}

std::vector<std::int64_t> readings(const TSNetwork& network)
{
    std::vector<std::int64_t> values;
    for (const TSDataPoint& sample : network.history())
        values.push_back(sample.rssiValue());
    return values;
}

std::vector<std::string> bssids(const NetworkList& networks)
{
    std::vector<std::string> result;
    for (const NetworkPtr& network : networks)
        result.push_back(network->bssid().toStdString());
    return result;
}

} // namespace

TEST(NetworkMerge, TheSameResultsTwiceGiveTwoSamplesOfTheSameReading)
{
    const ScanResults results = {sighting("0:0:0:0:0:1")};
    const NetworkList once = mergeNetworks(results, {}, kStart, kNoLimits);
    const NetworkList twice = mergeNetworks(results, once, kStart + 2, kNoLimits);
    ASSERT_EQ(twice.size(), 1U);
    EXPECT_EQ(twice[0], once[0]);
    EXPECT_THAT(readings(*twice[0]), ElementsAre(-60, -60));
    EXPECT_EQ(twice[0]->firstDataPoint()->timestamp(), kStart);
    EXPECT_EQ(twice[0]->lastDataPoint()->timestamp(), kStart + 2);
    EXPECT_EQ(twice[0]->lastSeen(), kStart + 2);
}

TEST(NetworkMerge, KnowsANetworkByItsAddressWithoutCaseAndItsBand)
{
    NetworkList list = mergeNetworks({sighting("a:b:c:d:e:f", 1)}, {}, kStart, kNoLimits);
    list = mergeNetworks({sighting("A:B:C:D:E:F", 11, -50)}, list, kStart + 2, kNoLimits);
    ASSERT_EQ(list.size(), 1U) << "a new channel of the band, the same network";
    EXPECT_EQ(list[0]->channel(), 11);
    list = mergeNetworks({sighting("a:b:c:d:e:f", 36)}, list, kStart + 4, kNoLimits);
    EXPECT_THAT(bssids(list), ElementsAre("0A:0B:0C:0D:0E:0F", "0A:0B:0C:0D:0E:0F"));
    // Raw addresses are compared: another spelling of the same one is another network.
    list = mergeNetworks({sighting("0a:0b:0c:0d:0e:0f", 1)}, list, kStart + 6, kNoLimits);
    EXPECT_EQ(list.size(), 3U);
}

TEST(NetworkMerge, AnAbsentNetworkGetsASampleWithoutDataAndGoesAtTheAgeLimit)
{
    const MergeLimits aMinute{std::nullopt, 60};
    NetworkList list =
        mergeNetworks({sighting("0:0:0:0:0:1"), sighting("0:0:0:0:0:2")}, {}, kStart, aMinute);
    const ScanResults second = {sighting("0:0:0:0:0:2")};
    list = mergeNetworks(second, list, kStart + 60.9, aMinute);
    ASSERT_EQ(list.size(), 2U) << "60.9 s count as 60, which is not above 60";
    EXPECT_THAT(readings(*list[0]), ElementsAre(-60, -120));
    EXPECT_EQ(list[0]->lastDataPoint()->noiseValue(), -120);
    EXPECT_EQ(list[0]->rssi(), -120);
    EXPECT_EQ(list[0]->rssiLast(), -60);
    EXPECT_NEAR(list[0]->lastSeenElapsedSeconds(), 60.9, 1e-6);

    const NetworkPtr removed = list[0];
    list = mergeNetworks(second, list, kStart + 61, aMinute);
    EXPECT_THAT(bssids(list), ElementsAre("00:00:00:00:00:02"));
    list = mergeNetworks({sighting("0:0:0:0:0:1")}, list, kStart + 62, aMinute);
    EXPECT_THAT(bssids(list), ElementsAre("00:00:00:00:00:02", "00:00:00:00:00:01"));
    EXPECT_NE(list[1], removed) << "it comes back as a new network";
    EXPECT_THAT(readings(*list[1]), ElementsAre(-60));
}

TEST(NetworkMerge, WithoutAReadingRepeatsTheLastOneOfANetworkInSight)
{
    const ScanResults noReading = {sighting("0:0:0:0:0:1", 6, 0)};
    EXPECT_TRUE(mergeNetworks(noReading, {}, kStart, kNoLimits).empty())
        << "a network never enters the list without a first reading";

    NetworkList list = mergeNetworks({sighting("0:0:0:0:0:1", 1, -70)}, {}, kStart, kNoLimits);
    list = mergeNetworks(noReading, list, kStart + 2, kNoLimits);
    EXPECT_THAT(readings(*list[0]), ElementsAre(-70, -70));
    EXPECT_EQ(list[0]->channel(), 6) << "what the scan says is taken over";

    list = mergeNetworks({}, list, kStart + 4, kNoLimits);
    list = mergeNetworks({sighting("0:0:0:0:0:1", 11, 0)}, list, kStart + 6, kNoLimits);
    EXPECT_THAT(readings(*list[0]), ElementsAre(-70, -70, -120, -120))
        << "an absent network does not come back on a scan without a reading of it";
    EXPECT_EQ(list[0]->channel(), 6);
    EXPECT_DOUBLE_EQ(list[0]->lastSeenElapsedSeconds(), 4);
}

TEST(NetworkMerge, ASignalBelowTheThresholdCountsAsNotReported)
{
    Defaults defaults;
    struct Case {
        int sensitivity;
        bool enters;
    };
    for (const Case& c : {Case{100, true}, Case{99, true}, Case{98, false}, Case{85, true}}) {
        defaults.setValue(DefaultKey::Sensitivity, c.sensitivity);
        const MergeLimits limits = MergeLimits::fromDefaults(defaults);
        const NetworkList list =
            mergeNetworks({sighting("0:0:0:0:0:1", 1, -99)}, {}, kStart, limits);
        EXPECT_EQ(list.size(), c.enters ? 1U : 0U) << c.sensitivity;
    }
    defaults.setValue(DefaultKey::Sensitivity, 70);
    const MergeLimits limits = MergeLimits::fromDefaults(defaults);
    NetworkList list = mergeNetworks({sighting("0:0:0:0:0:1", 1, -70)}, {}, kStart, limits);
    list = mergeNetworks({sighting("0:0:0:0:0:1", 1, -71)}, list, kStart + 2, limits);
    EXPECT_THAT(readings(*list.at(0)), ElementsAre(-70, -120));
}

TEST(NetworkMerge, TheAgeLimitFollowsFromTheSettings)
{
    Defaults defaults;
    const auto limit = [&] {
        return MergeLimits::fromDefaults(defaults).maxLastSeenElapsedSeconds;
    };
    EXPECT_EQ(limit(), 300);
    for (const auto& [code, seconds] :
         std::map<int, double>{{0, 31536000}, {7, 31536000}, {6, 7200}}) {
        defaults.setValue(DefaultKey::MaxElapsedTimeNotSeen, code);
        EXPECT_EQ(limit(), seconds) << code;
    }
    defaults.setValue(DefaultKey::MaxElapsedTimeNotSeen, 1);
    defaults.setValue(DefaultKey::DeleteIfNotSeen, false);
    EXPECT_EQ(limit(), 31536000);
}

TEST(NetworkMerge, FindsTheRecordThatASearchInOrderWouldFind)
{
    // Many networks of few addresses, again and again, against the plain search.
    std::uint32_t state = 1;
    const auto random = [&state](std::uint32_t bound) {
        state = state * 1664525U + 1013904223U;
        return (state >> 16) % bound;
    };
    NetworkList list;
    for (int tick = 0; tick < 50; ++tick) {
        ScanResults results;
        for (int i = 0; i < 40; ++i) {
            const QByteArray bssid = "a:0:0:0:0:" + QByteArray::number(random(12), 16);
            results.push_back(sighting(random(2) ? bssid : bssid.toUpper(), random(2) ? 1 : 36,
                                       random(9) ? -60 : 0));
        }
        // Where each result must go: the place of its record in the list so far.
        NetworkList expected = list;
        std::vector<std::size_t> samples;
        for (const NetworkPtr& network : list)
            samples.push_back(network->history().size());
        for (const ScanDictionary& dictionary : results) {
            const auto found = std::ranges::find_if(expected, [&](const NetworkPtr& network) {
                return network->bssidAndBandCompare(dictionary);
            });
            const auto place = static_cast<std::size_t>(found - expected.begin());
            if (found == expected.end() && *dictionary.rssiValue != 0) {
                expected.push_back(std::make_shared<TSNetwork>(dictionary, kStart));
                samples.push_back(1);
            } else if (found != expected.end()) {
                ++samples[place]; // none of them is absent for long enough to be left out
            }
        }
        list = mergeNetworks(results, list, kStart + 2 * tick, kNoLimits);
        ASSERT_EQ(list.size(), expected.size());
        for (std::size_t i = 0; i < list.size(); ++i)
            ASSERT_EQ(list[i]->bssid(), expected[i]->bssid());
    }
}
