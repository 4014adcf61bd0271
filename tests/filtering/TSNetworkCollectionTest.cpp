#include "filtering/TSNetworkCollection.h"

#include "filtering/DisplayPipeline.h"
#include "foundation/Defaults.h"
#include "foundation/Directories.h"

#include <algorithm>

#include <gtest/gtest.h>

#include <limits>

using namespace tessara;

namespace {

constexpr const char* kMultiple = "<Multiple values>";

struct Scanned {
    QByteArray bssid = "02:00:00:00:00:11";
    int channel = 1;
    QByteArray elementsInHex = {};
    int beaconInterval = 100;
    bool ibss = false;
};

NetworkPtr network(const Scanned& scanned)
{
    ScanDictionary dictionary;
    dictionary.bssid = QString::fromLatin1(scanned.bssid);
    dictionary.channelNumber = scanned.channel;
    if (!scanned.elementsInHex.isEmpty())
        dictionary.informationElementData = QByteArray::fromHex(scanned.elementsInHex);
    dictionary.beaconInterval = scanned.beaconInterval;
    dictionary.ibss = scanned.ibss;
    return std::make_shared<TSNetwork>(dictionary, 0);
}

/// A network with readings, dBm of signal and noise in pairs, last seen some seconds ago.
NetworkPtr heard(std::initializer_list<std::pair<int, int>> readings, double secondsAgo = 0)
{
    NetworkPtr result = network({});
    for (const auto& [rssi, noise] : readings)
        result->addDataPoint({rssi, noise, -1, -1, 0});
    result->setLastSeenElapsedSeconds(secondsAgo);
    return result;
}

TSNetworkCollection collectionOf(const NetworkList& members)
{
    TSNetworkCollection collection(QStringLiteral("Group"));
    for (const NetworkPtr& member : members)
        collection.addObject(member);
    return collection;
}

std::string text(const char* identifier, const NetworkRow& row, CellContext context = {})
{
    return columnWithIdentifier(QString::fromLatin1(identifier))->text(row, context).toStdString();
}

/// Calls devices, their makers and the notes on them the same, by the last digit of the address.
struct KnownNames final : VendorDirectory, DeviceNameDirectory, AnnotationsDirectory {
    using Name = std::optional<QString>;
    KnownNames() { Directories::installed() = {this, this, this}; }
    ~KnownNames() override { Directories::installed() = m_before; }
    Name vendorFor(const QString& bssid) const override { return nameFor(bssid); }
    Name deviceNameFor(const QString& bssid) const override { return nameFor(bssid); }
    Name annotationsFor(const QString& bssid) const override { return nameFor(bssid); }
    void setAnnotations(const QString&, const QString&) override {}

    static Name nameFor(const QString& bssid)
    {
        if (bssid.endsWith(u'1'))
            return QStringLiteral("Acme");
        return bssid.endsWith(u'2') ? Name(QStringLiteral("Echo")) : std::nullopt;
    }

private:
    const Directories m_before = Directories::installed();
};

} // namespace

TEST(TSNetworkCollection, IsSpokenForByTheBestRatioInSight)
{
    struct Case {
        const char* what;
        NetworkList members;
        std::size_t best;
    };
    const Case cases[] = {
        {"ratio, not signal", {heard({{-40, -50}}), heard({{-70, -95}})}, 1},
        {"first of equals", {heard({{-60, -90}}), heard({{-50, -80}})}, 0},
        {"in sight, however poor", {heard({{-40, -90}}, 2), heard({{-95, -90}})}, 1},
        {"reported without a reading", {heard({{-40, -90}, {-120, -120}}), heard({{-90, -95}})}, 1},
        {"none in sight", {heard({{-80, -90}}, 2), heard({{-50, -90}}, 4)}, 1},
        {"none in sight, equals", {heard({{-50, -90}}, 4), heard({{-50, -90}}, 2)}, 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(collectionOf(c.members).bestNetwork(), c.members[c.best].get()) << c.what;
}

TEST(TSNetworkCollection, TakesReadingsOfTheBestAndExtremesOfAll)
{
    const auto row =
        collectionOf({heard({{-60, -90}, {-70, -95}}), heard({{-40, -80}, {-65, -70}})});
    const std::pair<const char*, const char*> cases[] = {
        {"RSSI", "-70"},  {"RSSI_AVG", "-52"},  {"RSSI_MIN", "-70"},  {"RSSI_MAX", "-40"},
        {"NOISE", "-95"}, {"NOISE_AVG", "-75"}, {"NOISE_MIN", "-95"}, {"NOISE_MAX", "-70"},
        {"SNR", "25 dB"}, {"SNR_AVG", "27 dB"}, {"SNR_MIN", "5 dB"},  {"SNR_MAX", "40 dB"},
    };
    for (const auto& [column, expected] : cases)
        EXPECT_EQ(text(column, row, {.dBm = true}), expected) << column;

    const NetworkPtr busy = network({.elementsInHex = "0b05 0100 ff 0000"});
    busy->addDataPoint({-50, -95, -1, -1, 0});
    EXPECT_EQ(text("CHANNEL_UTILIZATION", collectionOf({row.objectAtIndex(1), busy})), "100%");
}

TEST(TSNetworkCollection, ListsDistinctValuesInTheirOwnOrder)
{
    const QByteArray zeros(38, '0');
    const QByteArray ht20 = "2d1a 0000 17 ff000000" + zeros;
    const QByteArray ht40 = "2d1a 0200 17 ffff0000" + zeros;
    const auto row = collectionOf({
        network({.channel = 11,
                 .elementsInHex = "0004686f6d65 0107 82848b960c1224 0706444520010d14" + ht20 +
                                  "3d16 0b0000" + zeros}),
        network({.channel = 36,
                 .elementsInHex = "00054174746963 0103 8c1298 0706555320240414" + ht40 +
                                  "3d16 240100" + zeros +
                                  "bf0c 00000000 faff 0000 faff 0000 c005 012a000000",
                 .beaconInterval = 1000}),
        network({.channel = 1,
                 .elementsInHex = "0004486f6d65 0101 96",
                 .beaconInterval = 0,
                 .ibss = true}),
        network({.channel = 44,
                 .elementsInHex =
                     "0004686f6d65 0102 0c18 0706444520010d14" + ht40 + "3d16 2c0100" + zeros}),
    });
    const std::pair<const char*, const char*> cases[] = {
        {"SSID", "Attic, home, Home"},
        {"CHANNEL", "1, 11, 36, 44"},
        {"CHANNEL_CENTER", "1, 11, 42, 46"},
        {"CENTER_FREQUENCY", "2412, 2462, 5180, 5220 MHz"},
        {"CHANNEL_WIDTH", "20, 40, 80 MHz"},
        {"CHANNEL_BAND", "2.4, 5 GHz"},
        {"STREAMS", "1, 2"},
        {"PHY_MODE", "a/b/g/n/ac"},
        {"BASIC_RATES", "1, 2, 5.5, 6, 11, 12 Mbps"},
        {"MIN_RATE", "1, 6, 11 Mbps"},
        {"MAX_RATE", "11, 65, 270, 780 Mbps"},
        {"CC", "DE, US"},
        {"BEACON_INT", "102.4, 1024.0 ms"},
        {"NETWORK_TYPE", "Ad-Hoc, Infrastructure"},
    };
    for (const auto& [column, expected] : cases)
        EXPECT_EQ(text(column, row), expected) << column;

    const auto odd = collectionOf(
        {network({.channel = 15}), network({.channel = 15, .elementsInHex = "c005 0300000000"})});
    EXPECT_EQ(text("CHANNEL_WIDTH", odd), "320 MHz") << "unknown and 80+80 MHz";
    EXPECT_EQ(text("CHANNEL_BAND", odd), "") << "no unit without a value";
}

TEST(TSNetworkCollection, ShowsANameOnlyIfNoMemberHasAnotherOne)
{
    const KnownNames names;
    struct Case {
        const char* members; ///< the last octets of their addresses
        const char *bssid, *vendor, *annotations;
    };
    const char* const shared = "02:00:00:00:00:1#";
    const Case cases[] = {
        {"11 11", shared, "Acme", "Acme"},    {"11 13", shared, "Acme", kMultiple},
        {"13 11", shared, "Acme", kMultiple}, {"13 13", shared, "", ""},
        {"11 21", kMultiple, "Acme", "Acme"}, {"11 13 12 11", shared, kMultiple, kMultiple},
    };
    for (const Case& c : cases) {
        NetworkList members;
        for (const QByteArray& octet : QByteArray(c.members).split(' '))
            members.push_back(network({.bssid = "02:00:00:00:00:" + octet}));
        const auto row = collectionOf(members);
        EXPECT_EQ(text("BSSID", row), c.bssid) << c.members;
        EXPECT_EQ(text("VENDOR", row), c.vendor) << c.members;
        EXPECT_EQ(text("DEVICE_NAME", row), c.vendor) << c.members;
        EXPECT_EQ(text("ANNOTATIONS", row), c.annotations) << c.members;
    }
}

TEST(TSNetworkCollection, CountsWhatAMemberDoesNotAnnounceAsAValueButForStations)
{
    struct Case {
        const char* column;
        const char* elements;
        const char* shared;     ///< shown if all members have the elements
        const char* withSilent; ///< shown if one announces nothing
        const char* differing;
    };
    const Case cases[] = {
        {"STATION_COUNT", "0b05 0700 80 0000", "7", "7", "0b05 0000 80 0000"},
        {"SECURITY_MODE", "3014 0100 000fac04 0100 000fac04 0100 000fac02 0000", "WPA2 (PSK)",
         kMultiple, "3014 0100 000fac04 0100 000fac04 0100 000fac01 0000"},
        {"WPS", "dd0e 0050f204 10440001 02 104a000110", "Configured", kMultiple,
         "dd0e 0050f204 10440001 01 104a000110"},
        {"HT_PROTECTION", "3d03 010000", "None", kMultiple, "3d03 010001"},
        {"FAST_BSS_TRANSITION", "3603 aabb00", "OTA", kMultiple, "3603 aabb01"},
    };
    for (const Case& c : cases) {
        const NetworkPtr one = network({.elementsInHex = c.elements});
        const NetworkPtr other = network({.elementsInHex = c.differing});
        const NetworkPtr silent = network({});
        EXPECT_EQ(text(c.column, collectionOf({silent})), "") << c.column;
        EXPECT_EQ(text(c.column, collectionOf({one, one})), c.shared) << c.column;
        EXPECT_EQ(text(c.column, collectionOf({one, silent})), c.withSilent) << c.column;
        EXPECT_EQ(text(c.column, collectionOf({silent, one})), c.withSilent) << c.column;
        EXPECT_EQ(text(c.column, collectionOf({one, silent, other})), kMultiple) << c.column;
    }
}

TEST(TSNetworkCollection, SpansTheTimesOfItsMembers)
{
    const NetworkPtr early = network({});
    const NetworkPtr silent = network({});
    const NetworkPtr late = network({});
    late->addDataPoint({-60, -90, -1, -1, 150});
    early->addDataPoint({-60, -90, -1, -1, 100});
    early->setLastSeen(500);
    silent->setLastSeen(700);
    late->setLastSeen(600);
    early->setLastSeenElapsedSeconds(200);
    late->setLastSeenElapsedSeconds(100);
    EXPECT_EQ(collectionOf({early, silent, late}).firstSeenValue(), 100);
    EXPECT_EQ(collectionOf({early, silent, late}).lastSeenValue(), 700);
    EXPECT_EQ(text("SEEN", collectionOf({early, late}), {.isScanning = true}), "1 min ago");
    EXPECT_EQ(collectionOf({silent}).firstSeenValue(), std::nullopt) << "no samples";
}

TEST(TSNetworkCollection, ShowsSentinelsWithoutMembers)
{
    const TSNetworkCollection empty(QStringLiteral("Group"));
    using Row = TSNetworkCollection;
    for (const auto greatest : {&Row::rssiAvgValue, &Row::rssiMaxValue, &Row::noiseAvgValue,
                                &Row::noiseMaxValue, &Row::snrAvgValue, &Row::snrMaxValue})
        EXPECT_EQ((empty.*greatest)(), std::numeric_limits<std::int64_t>::min());
    for (const auto smallest : {&Row::rssiMinValue, &Row::noiseMinValue, &Row::snrMinValue})
        EXPECT_EQ((empty.*smallest)(), std::numeric_limits<std::int64_t>::max());

    EXPECT_EQ(empty.bestNetwork(), nullptr);
    EXPECT_EQ(empty.rssiValue(), -120);
    EXPECT_EQ(empty.noiseValue(), -120);
    EXPECT_EQ(empty.snrValue(), 0);
    EXPECT_EQ(text("RSSI_MAX", empty), "0%");
    EXPECT_EQ(text("CHANNEL_UTILIZATION", empty), "");
    for (const Column& column : columnRegistry()) {
        const std::string identifier = column.identifier.toStdString();
        if (column.comparison != Comparison::kNumber || identifier.ends_with("SEEN")) {
            EXPECT_EQ(text(identifier.c_str(), empty, {.isScanning = true}), "") << identifier;
        }
    }
}

TEST(TSNetworkCollection, SortsAmongPlainRows)
{
    const NetworkPtr six = network({.channel = 6});
    const auto row = collectionOf({network({.channel = 11}), heard({{-50, -90}})});
    six->addDataPoint({-60, -90, -1, -1, 0});
    for (const auto& [identifier, order] :
         {std::pair{u"CHANNEL", -1}, {u"RSSI", 1}, {u"RSSI_MAX", 1}, {u"SEEN", 0}}) {
        const Column& column = *columnWithIdentifier(identifier);
        EXPECT_EQ(std::clamp(SortKey::compare({column, column.sortKey(row)},
                                              {column, column.sortKey(*six)}),
                             -1, 1),
                  order)
            << column.identifier.toStdString();
    }
}

TEST(TSNetworkCollection, KeepsItsMembersInTheOrderOfInsertion)
{
    const NetworkPtr a = heard({}), b = heard({}), c = heard({});
    auto row = collectionOf({a});
    row.insertObject(b, 0);
    row.insertObject(c, 2);
    EXPECT_EQ(row.collection(), (NetworkList{b, a, c}));
    row.replaceObjectAtIndex(1, c);
    EXPECT_EQ(row.collection(), (NetworkList{b, c, c}));
}

TEST(DisplayPipeline, StaysFlatHoweverNetworksAreToBeOrganized)
{
    const NetworkList networks{heard({}), heard({})};
    DisplayPipeline pipeline;
    pipeline.filterAndSetNetworks(networks);
    Defaults defaults;
    defaults.setValue(DefaultKey::OrganizeNetworksBy, 2);
    pipeline.onViewOrganizeNetworksBy(defaults);
    EXPECT_EQ(defaults.integerForKey(DefaultKey::OrganizeNetworksBy), 0);
    EXPECT_EQ(pipeline.filteredNetworks(), networks);
}
