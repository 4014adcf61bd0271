#include "scanning/nl80211/BssEntry.h"
#include "scanning/NetlinkMessageBuilder.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

using namespace tessara;

namespace {

constexpr BootTime kSecond = 1'000'000'000;
constexpr BootTime kNow = 1000 * kSecond;
const QByteArray kBSSID = QByteArray::fromHex("021122aabbcc");
const QByteArray kNamed = QByteArray::fromHex("0004486f6d65"); // SSID "Home"
const QByteArray kHidden = QByteArray::fromHex("0000");
const QByteArray kBlanked = QByteArray::fromHex("000400000000");

using Fill = std::function<void(NetlinkMessageBuilder&)>;

std::optional<BssEntry> entryOf(const Fill& fill)
{
    NetlinkMessageBuilder builder(NL80211_CMD_NEW_SCAN_RESULTS);
    builder.nest(NL80211_ATTR_BSS, fill);
    return bssEntry(builder.attributes(), kNow);
}

std::optional<BssEntry> entryWith(const Fill& fill)
{
    return entryOf([&](NetlinkMessageBuilder& bss) {
        bss.putBytes(NL80211_BSS_BSSID, kBSSID);
        bss.put<std::uint32_t>(NL80211_BSS_FREQUENCY, 5180);
        fill(bss);
    });
}

BssEntry entry(const char* bssid, const QByteArray& elements, std::optional<BootTime> lastSeen,
               int frequency = 2437)
{
    BssEntry result;
    result.bssid = QString::fromLatin1(bssid);
    result.elements = elements;
    result.lastSeen = lastSeen;
    result.frequency = frequency;
    return result;
}

} // namespace

TEST(BssEntry, IsReadWithAllItsFields)
{
    NetlinkMessageBuilder builder(NL80211_CMD_NEW_SCAN_RESULTS);
    builder.nest(NL80211_ATTR_BSS, [](NetlinkMessageBuilder& bss) {
        bss.putBytes(NL80211_BSS_BSSID, kBSSID);
        bss.put<std::uint32_t>(NL80211_BSS_FREQUENCY, 5180);
        bss.put<std::uint16_t>(NL80211_BSS_BEACON_INTERVAL, 100);
        bss.put<std::uint16_t>(NL80211_BSS_CAPABILITY, 0x0012);
        bss.putBytes(NL80211_BSS_INFORMATION_ELEMENTS, kNamed);
        bss.put<std::int32_t>(NL80211_BSS_SIGNAL_MBM, -6100);
        bss.put<std::uint32_t>(NL80211_BSS_STATUS, NL80211_BSS_STATUS_ASSOCIATED);
        bss.put<std::uint64_t>(NL80211_BSS_LAST_SEEN_BOOTTIME, 7 * kSecond);
    });
    const auto read = bssEntry(builder.attributes(), kNow);
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->isAssociated);
    EXPECT_EQ(read->lastSeen, 7 * kSecond);
    EXPECT_EQ(read->ssidData(), "Home");

    const auto networks = scanResults({*read}, {{5180, -92}}, std::nullopt);
    ASSERT_EQ(networks.size(), 1U);
    const CWNetwork& network = networks.front();
    EXPECT_EQ(network.bssid, QStringLiteral("02:11:22:aa:bb:cc"));
    EXPECT_EQ(network.ssid, QStringLiteral("Home"));
    EXPECT_EQ(network.wlanChannel.channelNumber, 36);
    EXPECT_EQ(network.wlanChannel.channelBand, Band::k5GHz);
    EXPECT_EQ(network.rssiValue, -61);
    EXPECT_EQ(network.noiseMeasurement, -92);
    EXPECT_EQ(network.informationElementData, kNamed);
    EXPECT_EQ(network.beaconInterval, 100);
    EXPECT_TRUE(network.privacy);
    EXPECT_TRUE(network.ibss);
}

TEST(BssEntry, NeedsABSSIDAndAFrequencyAndNothingElse)
{
    const auto frequency = [](auto& bss) { bss.put(NL80211_BSS_FREQUENCY, std::uint32_t{2412}); };
    const auto bssid = [](auto& bss) { bss.putBytes(NL80211_BSS_BSSID, kBSSID); };
    EXPECT_FALSE(entryOf([](auto&) {}));
    EXPECT_FALSE(entryOf(frequency));
    EXPECT_FALSE(entryOf(bssid));
    EXPECT_FALSE(entryOf([&](auto& bss) {
        bss.putBytes(NL80211_BSS_BSSID, kBSSID.left(5));
        frequency(bss);
    }));
    EXPECT_FALSE(entryOf([&](auto& bss) {
        bssid(bss);
        bss.put(NL80211_BSS_FREQUENCY, std::uint16_t{2412}); // too short, and so absent
    }));

    const auto least = entryWith([](auto&) {});
    ASSERT_TRUE(least);
    EXPECT_EQ(least->rssi, 0);
    EXPECT_EQ(least->lastSeen, std::nullopt);
    EXPECT_FALSE(least->isAssociated);
    EXPECT_TRUE(least->elements.isEmpty());
}

TEST(BssEntry, RoundsTheSignalToTheNearestDecibel)
{
    for (const auto& [hundredths, dBm] : std::map<int, int>{{-6149, -61}, {-6151, -62}, {500, 5}})
        EXPECT_EQ(entryWith([&](auto& b) { b.put(NL80211_BSS_SIGNAL_MBM, hundredths); })->rssi,
                  dBm);
    const auto unitless =
        entryWith([](auto& bss) { bss.put(NL80211_BSS_SIGNAL_UNSPEC, std::uint8_t{80}); });
    EXPECT_EQ(unitless->rssi, 0) << "a signal without a unit is no reading";
}

TEST(BssEntry, PrefersTheElementsOfTheProbeResponse)
{
    const auto elementsOf = [](const QByteArray& response, const QByteArray& beacon) {
        return entryWith([&](NetlinkMessageBuilder& bss) {
                   bss.putBytes(NL80211_BSS_INFORMATION_ELEMENTS, response);
                   bss.putBytes(NL80211_BSS_BEACON_IES, beacon);
               })
            ->elements;
    };
    EXPECT_EQ(elementsOf(kNamed, kHidden), kNamed);
    EXPECT_EQ(elementsOf({}, kNamed), kNamed);
}

TEST(BssEntry, TakesTheTimeOfSightingFromTheBootClockOrElseFromTheAge)
{
    const auto age = [](auto& bss) { bss.put(NL80211_BSS_SEEN_MS_AGO, std::uint32_t{2500}); };
    EXPECT_EQ(entryWith(age)->lastSeen, kNow - 2'500'000'000);
    EXPECT_EQ(entryWith([&](auto& bss) {
                  age(bss);
                  bss.put(NL80211_BSS_LAST_SEEN_BOOTTIME, std::uint64_t{42});
              })->lastSeen,
              42);
    const auto absurd =
        entryWith([](auto& bss) { bss.put(NL80211_BSS_LAST_SEEN_BOOTTIME, ~std::uint64_t{0}); });
    EXPECT_GT(absurd->lastSeen, kNow);
}

TEST(ScanResults, HoldOnlyWhatWasSeenSinceTheScanBegan)
{
    const std::vector<BssEntry> entries = {
        entry("before", kNamed, kNow - kSecond),
        entry("just before, within the clock's accuracy", kNamed, kNow - 10'000'000),
        entry("during", kNamed, kNow + kSecond),
        entry("unknown", kNamed, std::nullopt),
    };
    const auto networks = scanResults(entries, {}, kNow);
    EXPECT_EQ(networks.size(), 3U);
    EXPECT_TRUE(std::ranges::none_of(networks, [](const CWNetwork& network) {
        return network.bssid == QStringLiteral("before");
    }));
    EXPECT_EQ(scanResults(entries, {}, std::nullopt).size(), 4U);
}

TEST(ScanResults, PutTheNamedAndThenTheFreshestOfTwoEntriesFirst)
{
    const struct {
        const char* what;
        BssEntry worse, better;
    } cases[] = {
        {"hidden beacon", entry("a", kHidden, kNow), entry("a", kNamed, kNow - 9 * kSecond)},
        {"blanked name", entry("a", kBlanked, kNow), entry("a", kNamed, kNow - 9 * kSecond)},
        {"channel changed", entry("a", kNamed, kNow - kSecond, 2412),
         entry("a", kNamed, kNow, 2462)},
        {"age unknown", entry("a", kNamed, std::nullopt, 2412), entry("a", kNamed, kNow, 2462)},
    };
    for (const auto& c : cases) {
        for (const auto& entries : {std::vector{c.worse, c.better}, {c.better, c.worse}}) {
            const auto networks = scanResults(entries, {}, std::nullopt);
            ASSERT_EQ(networks.size(), 2U);
            EXPECT_EQ(networks[0].informationElementData, c.better.elements) << c.what;
            EXPECT_EQ(networks[0].wlanChannel.channelNumber, channelOfFrequency(c.better.frequency))
                << c.what;
        }
    }
}

TEST(ScanResults, LeaveOutNetworksOfForeignBands)
{
    for (const int frequency : {0, 902, 5955, 58320, -1})
        EXPECT_TRUE(scanResults({entry("a", kNamed, kNow, frequency)}, {}, {}).empty());
    EXPECT_EQ(scanResults({entry("a", kNamed, kNow, 2484)}, {}, {}).size(), 1U);
}

// Wherever a message is cut off, reading it stays within its bytes; the address sanitizer watches.
TEST(BssEntry, IsNoneOfAMessageThatIsCutShort)
{
    NetlinkMessageBuilder builder(NL80211_CMD_NEW_SCAN_RESULTS);
    builder.nest(NL80211_ATTR_BSS, [](NetlinkMessageBuilder& bss) {
        bss.putBytes(NL80211_BSS_BSSID, kBSSID);
        bss.put<std::uint32_t>(NL80211_BSS_FREQUENCY, 5180);
        bss.putBytes(NL80211_BSS_INFORMATION_ELEMENTS, kNamed);
    });
    const QByteArray whole = builder.bytes();
    const auto read = [](const QByteArray& bytes) {
        // Its own allocation of the exact size, so that a read beyond the end is seen.
        const std::vector<std::uint8_t> copy(bytes.begin(), bytes.end());
        const auto message = nl80211Message(copy);
        return message ? bssEntry(message->attributes, kNow) : std::nullopt;
    };
    ASSERT_TRUE(read(whole));
    for (int length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(read(whole.left(length))) << length; // the nest runs past the end
}
