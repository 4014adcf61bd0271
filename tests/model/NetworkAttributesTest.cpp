#include "model/NetworkAttributes.h"

#include "model/TSNetwork.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

using namespace tessara;
using testing::ElementsAre;

namespace {

/// A dictionary with these element bytes, in hexadecimal with blanks.
ScanDictionary dictionary(const QByteArray& hex, int channel = 1)
{
    ScanDictionary result;
    result.bssid = QStringLiteral("0:0:0:0:0:1");
    result.channelNumber = channel;
    result.informationElementData = QByteArray::fromHex(hex);
    return result;
}

NetworkAttributes read(const QByteArray& hex, int channel = 1)
{
    return attributesOf(dictionary(hex, channel), {});
}

std::string amendments(const QByteArray& hex, int channel = 1)
{
    return read(hex, channel).amendments.join(QString()).toStdString();
}

/// HT Capabilities: the first byte of the information, and the first four bytes of the MCS set.
QByteArray ht(const char* information, const char* mcs)
{
    return QByteArray("2d1a") + information + "0017" + mcs + QByteArray(42, '0');
}

/// HT Operation: primary channel, the byte of the secondary channel, the byte of the protection.
QByteArray htOperation(const char* bytes)
{
    return QByteArray("3d16") + bytes + QByteArray(38, '0');
}

/// VHT Capabilities: the first byte of the information, and the low byte of the transmit map.
QByteArray vht(const char* information, const char* map)
{
    return QByteArray("bf0c") + information + "00000000000000" + map + "ff0000";
}

QByteArray vhtOperation(const char* width)
{
    return QByteArray("c005") + width + "2a000000";
}

} // namespace

TEST(NetworkAttributes, TakeTheNameFromTheElements)
{
    struct Case {
        const char* elements;
        const char* ssid;
    };
    const Case cases[] = {
        {"0004486f6d65", "Home"},
        {"0000", ""},
        {"0004 00000000", ""},         // hidden behind zeroes
        {"0004486f6d65 0000", "Home"}, // an empty one replaces nothing
        {"0004486f6d65 000142", "B"},  // a later one does
        {"0002c328", ""},              // no UTF-8
        {"0008e596abe88cb6e69c", ""},  // cut in the middle of a character
        {"0004486f6d", ""},            // runs past the end
    };
    for (const Case& c : cases)
        EXPECT_EQ(read(c.elements).ssid.toStdString(), c.ssid) << c.elements;
    EXPECT_EQ(read("0028" + QByteArray(80, '4')).ssid.size(), 33) << "33 bytes at the most";
}

TEST(NetworkAttributes, TakeTheFirstChannelThatIsTold)
{
    EXPECT_EQ(read("030106" + htOperation("0b0000")).channel, 6);
    EXPECT_EQ(read(htOperation("0b0000") + "030106").channel, 11);
    EXPECT_EQ(read("030100 030109").channel, 9);
    EXPECT_EQ(read("0300").channel, 0) << "beyond the end is absent";
    EXPECT_EQ(read("0104").channel, 0);
}

TEST(NetworkAttributes, DeriveWidthAndSecondaryChannel)
{
    const auto only20 = ht("00", "ff000000");
    const auto wide = ht("02", "ff000000");
    struct Case {
        const char* what;
        QByteArray elements;
        ChannelWidth width;
        int offset;
    };
    using enum ChannelWidth;
    const Case cases[] = {
        {"nothing of HT", "0000", k20MHz, 0},
        {"no bytes at all", "", k20MHz, 0},
        {"20 MHz only, whatever the operation says", only20 + htOperation("240100"), k20MHz, 0},
        {"above", wide + htOperation("240100"), k40MHz, 1},
        {"below", wide + htOperation("280300"), k40MHz, 3},
        {"reserved value", wide + htOperation("240200"), k20MHz, 0},
        {"no operation", wide, k20MHz, 0},
        {"80", wide + htOperation("240100") + vhtOperation("01"), k80MHz, 1},
        {"80 over 20 only", only20 + vhtOperation("01"), k80MHz, 0},
        {"160", wide + vhtOperation("02"), k160MHz, 0},
        {"80+80", wide + vhtOperation("03"), k80Plus80MHz, 0},
        {"VHT at 20 or 40", wide + htOperation("240100") + vhtOperation("00"), k40MHz, 1},
    };
    for (const Case& c : cases) {
        const NetworkAttributes a = read(c.elements, 36);
        EXPECT_EQ(a.channelWidth, c.width) << c.what;
        EXPECT_EQ(a.secondaryChannelOffset, c.offset) << c.what;
    }
    EXPECT_EQ(read(htOperation("240102"), 36).htProtection, 2);
    EXPECT_EQ(attributesOf({}, {}).channelWidth, kUnknown) << "no element data at all";
}

TEST(NetworkAttributes, ReadLegacyRatesAndMarkBasicOnes)
{
    const NetworkAttributes a = read("0104 82840b16");
    EXPECT_THAT(a.rates, ElementsAre(-1, -2, 5.5, 11));
    EXPECT_EQ(a.minBasicRate, 1);
    EXPECT_EQ(a.maxBasicRate, 2);
    EXPECT_EQ(a.phyMode, 2);
    // A basic rate replaces its like; a plain one is added beside it.
    EXPECT_THAT(read("010182 320102").rates, ElementsAre(-1, 1));
    EXPECT_THAT(read("010102 320182").rates, ElementsAre(-1));
    EXPECT_THAT(read("0103 020202").rates, ElementsAre(1));
}

TEST(NetworkAttributes, DeriveRatesAndStreamsFromTheMCSSets)
{
    const auto rates = [](const QByteArray& elements) { return read(elements, 36).rates; };
    EXPECT_THAT(rates(ht("00", "81000000")), ElementsAre(6.5, 65));
    EXPECT_THAT(rates(ht("20", "81000000")), ElementsAre(6.5, 7.2, 65, 72.2)) << "short GI at 20";
    EXPECT_THAT(rates(ht("40", "01000000")), ElementsAre(6.5)) << "short GI at another width";
    EXPECT_THAT(rates(ht("42", "01000000") + htOperation("240100")), ElementsAre(13.5, 15));
    EXPECT_THAT(rates(ht("20", "00400000")), ElementsAre(117, 130.3));
    // Legacy 6 stands beside 6.5; legacy 13 takes the place of the HT rate.
    EXPECT_THAT(rates(ht("00", "03000000") + "01020c9a"), ElementsAre(6, 6.5, -13));

    struct Case {
        const char* mcs;
        int streams;
    };
    for (const Case& c : {Case{"00000000", 1}, Case{"ff000000", 1}, Case{"ffff0000", 2},
                          Case{"ffffff00", 3}, Case{"00000001", 4}})
        EXPECT_EQ(read(ht("00", c.mcs)).streams, c.streams) << c.mcs;

    const auto operating = ht("02", "00000000") + vhtOperation("01");
    EXPECT_THAT(rates(operating + vht("00", "fc")),
                ElementsAre(29.3, 58.5, 87.8, 117, 175.5, 234, 263.3, 292.5));
    const NetworkAttributes three = read(operating + vht("20", "ea"), 36); // to 9, for 1 to 3
    EXPECT_EQ(three.streams, 3);
    EXPECT_EQ(three.rates.back(), 1300.002);
    EXPECT_THAT(three.rates, testing::Contains(1053)) << "index 8 of three";
    EXPECT_THAT(three.rates, testing::Not(testing::Contains(789.9))) << "index 6 of three";
    EXPECT_EQ(read(operating + vht("00", "ff"), 36).streams, 1) << "no stream: HT's count stands";
    // At 20 MHz index 9 is for three streams and more.
    EXPECT_EQ(read(ht("00", "00000000") + vht("00", "fa"), 36).rates.back(), 156);
    EXPECT_EQ(read(ht("00", "00000000") + vht("00", "ea"), 36).rates.back(), 260.1);
    EXPECT_TRUE(rates(ht("02", "00000000") + vhtOperation("03") + vht("00", "fa")).empty())
        << "80+80 has no table";
}

TEST(NetworkAttributes, DeriveThePhyMode)
{
    const auto n = ht("00", "ff000000") + htOperation("010000");
    const auto ac = n + vht("00", "fa");
    struct Case {
        const char* what;
        QByteArray elements;
        int channel;
        std::int64_t mode;
    };
    const Case cases[] = {
        {"b", "0104 82848b96", 1, 2},
        {"b/g", "0108 82848b960c183048", 1, 6},
        {"9 Mbit/s makes no g", "0102 8212", 1, 2},
        {"b/g/n", "0108 82848b960c183048 030101" + n, 1, 14},
        {"VHT on 2.4 GHz is no ac", "010182 030101" + ac, 1, 10},
        {"a", "01018c 030124", 36, 1},
        {"a/n", "01018c 030124" + n, 36, 9},
        {"ac alone", "01018c 030124" + ac, 36, 16},
        {"no band", "010182 0301c8", 200, 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(read(c.elements, c.channel).phyMode, c.mode) << c.what;

    ScanDictionary old = dictionary("010182");
    old.phyMode = 24;
    const NetworkAttributes kept = attributesOf(old, {});
    EXPECT_EQ(kept.phyMode, 24) << "a mode from an old file stays";
    EXPECT_EQ(kept.streams, 1) << "a mode has at least one stream";
}

TEST(NetworkAttributes, ReadSecurityFromTheSuites)
{
    struct Case {
        const char* what;
        QByteArray elements;
        SecurityMode mode;
        int cipher;
    };
    using enum SecurityMode;
    const QByteArray rsn = "3014 0100 000fac04 0100 000fac04 0100 000fac02 0000";
    const QByteArray rsnEnterprise = "3014 0100 000fac04 0100 000fac04 0100 000fac01 0000";
    const QByteArray wpa = "dd16 0050f201 0100 0050f202 0100 0050f202 0100 0050f202";
    const QByteArray wpaEnterprise = "dd16 0050f201 0100 0050f202 0100 0050f202 0100 0050f201";
    const Case cases[] = {
        {"open", "0000", kUnknown, 0},
        {"WPA2", rsn, kWPA2Personal, 4},
        {"WPA2 Enterprise", rsnEnterprise, kWPA2Enterprise, 4},
        {"WPA", wpa, kWPAPersonal, 2},
        {"WPA Enterprise", wpaEnterprise, kWPAEnterprise, 2},
        {"both", rsn + wpa, kWPAAndWPA2Personal, 6},
        {"both, one of them Enterprise", rsn + wpaEnterprise, kWPAAndWPA2Enterprise, 6},
        {"SHA-256 802.1X", "3014 0100 000fac04 0100 000fac04 0100 000fac05 0000", kWPA2Enterprise,
         4},
        {"two pairwise", "3018 0100 000fac02 0200 000fac04 000fac02 0100 000fac02 0000",
         kWPA2Personal, 6},
        {"WEP suites", "3018 0100 000fac01 0200 000fac01 000fac05 0100 000fac02 0000",
         kWPA2Personal, 9},
        {"too short for suites", "3008 0100 000fac04 0100", kWPA2Personal, 0},
        {"a count that lies", "300c 0100 000fac04 ff00 000fac04", kWPA2Personal, 4},
        {"a negative count of key managements",
         "3014 0100 000fac04 0100 000fac04 8000 000fac01 0000", kWPA2Personal, 4},
        {"other organization's suites", "3014 0100 000fac04 0100 00409604 0100 00409601 0000",
         kWPA2Personal, 0},
    };
    for (const Case& c : cases) {
        const NetworkAttributes a = read(c.elements);
        EXPECT_EQ(a.securityMode, c.mode) << c.what;
        EXPECT_EQ(a.cipherType, c.cipher) << c.what;
    }
    ScanDictionary wep = dictionary("0000");
    wep.securityMode = 1;
    EXPECT_EQ(attributesOf(wep, {}).securityMode, kWEP);
    wep.informationElementData = QByteArray::fromHex(rsn);
    EXPECT_EQ(attributesOf(wep, {}).securityMode, kWPA2Personal);
    wep.securityMode = 6;
    EXPECT_EQ(attributesOf(wep, {}).securityMode, kDynamicWEP) << "what an old file says stays";
}

TEST(NetworkAttributes, TellFastTransitionAndItsAdaptiveForm)
{
    const auto rsn = [](const char* management) {
        return QByteArray("3014 0100 000fac04 0100 000fac04 0100 000fac") + management + "0000";
    };
    struct Case {
        const char* what;
        QByteArray elements;
        int transition;
    };
    const Case cases[] = {
        {"none", rsn("02"), -1},
        {"over the air", "3603 aabb00" + rsn("04"), 0},
        {"over the DS", "3603 aabb01" + rsn("04"), 1},
        {"adaptive over the DS", "3603 aabb01" + rsn("02"), 3},
        {"802.1X", "3603 aabb00" + rsn("03"), 0},
        {"without RSN", "3603 aabb01", 1},
        {"one of two lacks it",
         "3603 aabb00" + rsn("04") + "dd16 0050f201 0100 0050f202 0100 0050f202 0100 0050f202", 2},
        {"of another length", "3602 aabb", -1},
    };
    for (const Case& c : cases)
        EXPECT_EQ(read(c.elements).fastBssTransition, c.transition) << c.what;
}

TEST(NetworkAttributes, TellTheAmendmentsInUse)
{
    struct Case {
        const char* elements;
        int channel;
        const char* amendments;
    };
    const Case cases[] = {
        {"", 1, ""},
        {"0706 444520 010d14", 1, "d"},
        {"0b05 0100 80 0000", 1, "e"},
        {"0b03 010080", 1, "e"},
        {"dd07 0050f202 0001 00", 1, "e"},
        {"200103", 36, "h"},
        {"200103", 6, ""},
        {"2302 1100", 36, "h"},
        {"2503 002801", 36, "h"},
        {"2806 010100000000", 36, "h"},
        {"3002 0100", 1, "i"},
        {"4605 0000000000", 1, "k"},
        {"4501 00", 1, "p"},
        {"3603 aabb00", 1, "r"},
        {"7107 00000000000000", 1, "s"},
        {"7200", 1, "s"},
        {"dd05 506f9a10 00", 1, "u"},
        {"7f03 000008", 1, "v"},
        {"7f02 0000", 1, ""},
        {"7f02 0000 0800", 1, ""}, // what looks like the third byte is of the next element
        {"3014 0100 000fac04 0100 000fac04 0100 000fac02 8000", 1, "iw"},
        {"3014 0100 000fac04 0100 000fac04 0100 000fac02 0000 0706 444520 010d14", 1, "di"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(amendments(c.elements, c.channel), c.amendments) << c.elements;

    // The band is that of the scan before: this one's channel is not settled yet.
    NetworkAttributes before = read("030124", 36);
    EXPECT_EQ(attributesOf(dictionary("030106 200103", 6), before).amendments.join(QString()),
              QStringLiteral("h"));
}

TEST(NetworkAttributes, ReadTheLoadAndRememberItsMaximum)
{
    NetworkAttributes a = read("0b05 0700 80 0000");
    EXPECT_EQ(a.stationCount, 7);
    EXPECT_EQ(a.channelUtilization, 50);
    a = attributesOf(dictionary("0b04 0001 33 00"), a);
    EXPECT_EQ(a.stationCount, 256);
    EXPECT_EQ(a.channelUtilization, 20);
    EXPECT_EQ(a.channelUtilizationMax, 50);
    a = attributesOf(dictionary("0b03 010080"), a);
    EXPECT_EQ(a.stationCount, -1);
    EXPECT_EQ(a.channelUtilization, -1);
    EXPECT_EQ(a.channelUtilizationMax, 50);
}

TEST(NetworkAttributes, ReadTheStateOfWPS)
{
    struct Case {
        const char* what;
        const char* elements;
        bool enabled, configured, locked;
    };
    const Case cases[] = {
        {"header only", "dd05 0050f204 00", true, false, false},
        {"configured", "dd0e 0050f204 1044 0001 02 104a 0001 10", true, true, false},
        {"not configured", "dd0e 0050f204 1044 0001 01 104a 0001 10", true, false, false},
        {"locked", "dd13 0050f204 1057 0001 01 1044 0001 02 104a 0001 10", true, true, true},
        {"the last one, of few bytes, goes unread", "dd0e 0050f204 104a 0001 10 1044 0001 02", true,
         true, false},
        {"an attribute that runs past the end", "dd0a 0050f204 1044 ffff 02 00", true, true, false},
        {"cut short", "dd09 0050f204 1044 0001 02", true, true, false},
        {"another type", "dd0e 0050f205 1044 0001 02 104a 0001 10", false, false, false},
    };
    for (const Case& c : cases) {
        const NetworkAttributes a = read(c.elements);
        EXPECT_EQ(a.wpsEnabled, c.enabled) << c.what;
        EXPECT_EQ(a.wpsConfigured, c.configured) << c.what;
        EXPECT_EQ(a.wpsLocked, c.locked) << c.what;
    }
    // Behind an attribute of five bytes nothing is left of the shortened remainder.
    EXPECT_FALSE(read("dd0d 0050f204 104a 0001 10 1044 0001").wpsConfigured);
}

TEST(NetworkAttributes, ReadTheNameThatAnAccessPointAnnounces)
{
    struct Case {
        const char* what;
        QByteArray elements;
        const char* name;
        int stations;
    };
    const Case cases[] = {
        {"Cisco",
         "851e 0000 8f 000f 00 ff 03 59 00 " + QByteArray("lobby-ap").toHex() +
             QByteArray(16, '0') + "0c 000037",
         "lobby-ap", 12},
        {"Cisco, short", "8505 0000000000", "", -1},
        {"Aruba", "dd0d 000b86 01 03 00 " + QByteArray("ap-west").toHex(), "ap-west", -1},
        {"Aruba, another field", "dd0d 000b86 01 04 00 " + QByteArray("ap-west").toHex(), "", -1},
        {"Zebra", "dd10 00a0f8 01 03 00 000000000000 " + QByteArray("zeb1").toHex(), "zeb1", -1},
        {"Routerboard", "dd15 000c42 00 010f " + QByteArray(20, '0') + QByteArray("attic").toHex(),
         "attic", -1},
    };
    for (const Case& c : cases) {
        const NetworkAttributes a = read(c.elements);
        EXPECT_EQ(a.deviceName.toStdString(), c.name) << c.what;
        EXPECT_EQ(a.stationCount, c.stations) << c.what;
    }
}

TEST(NetworkAttributes, KeepWhatADictionaryWithoutElementsDoesNotTell)
{
    const NetworkAttributes full = read("0004486f6d65 030106 0104 82848b96 0706 444520 010d14 "
                                        "dd0e 0050f204 1044 0001 02 104a 0001 10 "
                                        "dd06 004096 14 01 00 dd06 004096 00 11 00");
    EXPECT_EQ(full.countryCode, QStringLiteral("DE"));
    EXPECT_EQ(full.ccxClientMFP, QStringLiteral("Enabled"));
    EXPECT_EQ(full.ccxDTPC, 0x11);
    const NetworkAttributes bare = attributesOf({}, full);
    EXPECT_EQ(bare.rates, full.rates);
    EXPECT_EQ(bare.amendments, full.amendments);
    EXPECT_EQ(bare.ccxDTPC, full.ccxDTPC);
    EXPECT_TRUE(bare.ssid.isEmpty());
    EXPECT_TRUE(bare.countryCode.isEmpty());
    EXPECT_EQ(bare.channel, 0);
    EXPECT_FALSE(bare.wpsEnabled);
}

TEST(NetworkAttributes, SurviveEveryTruncationOfEveryElement)
{
    const QByteArray all = QByteArray::fromHex(
        "0004486f6d65 0104 82848b96 030106 0706 444520 010d14 0b05 0700 80 0000 200103 " +
        ht("6f", "ffffffff") + "3014 0100 000fac04 0100 000fac04 0100 000fac04 8000 3603 aabb01 " +
        htOperation("060100") + "851e " + QByteArray(60, '5') + vht("ff", "aa") +
        vhtOperation("01") + "dd16 0050f201 0100 0050f202 0100 0050f202 0100 0050f201" +
        "dd0e 0050f204 1044 0001 02 104a 0001 10 dd15 000c42 00 010f " + QByteArray(30, '1'));
    ScanDictionary cut = dictionary("");
    for (qsizetype length = 0; length <= all.size(); ++length) {
        // A block of exactly this size, so that a sanitizer sees a step too far.
        cut.informationElementData = QByteArray(all.constData(), length);
        const NetworkAttributes a = attributesOf(cut, {});
        EXPECT_GE(a.streams, 0);
    }
    EXPECT_EQ(attributesOf(cut, {}).securityMode, SecurityMode::kWPAAndWPA2Enterprise);
}
