#include "filtering/FilterLine.h"

#include "filtering/FilteredNetworks.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace tessara;

namespace {

struct Case {
    const char16_t* line;
    const char* selected; ///< places in the list of networks
    const char* columns;
};

constexpr const char* kAll = "0123456789";

/// What a line selects of a list: the places in the list, and the columns.
std::pair<QString, QString> selectionOf(const QString& line, const NetworkList& networks)
{
    FilterIdentifiers identifiers;
    QString places;
    for (const NetworkPtr& network : filterNetworks(networks, line, identifiers)) {
        const auto place = std::ranges::find(networks, network) - networks.begin();
        places += QString::number(place);
    }
    return {places, identifiers.columnIdentifiers().join(u' ')};
}

template <std::size_t count>
void check(const Case (&cases)[count])
{
    const NetworkList networks = filteredNetworks();
    for (const Case& test : cases) {
        const QString line = QString::fromUtf16(test.line);
        const auto [selected, columns] = selectionOf(line, networks);
        EXPECT_EQ(selected, QString::fromLatin1(test.selected)) << line.toStdString();
        EXPECT_EQ(columns, QString::fromLatin1(test.columns)) << line.toStdString();
    }
}

} // namespace

TEST(FilterLine, TakesKeywordsForAttributesAndNeverForNames)
{
    check({
        {u"wpa", "3469", "SECURITY_MODE"},
        {u"w p a", "3469", "SECURITY_MODE"},
        {u"\"WPA2\"", "0239", "SECURITY_MODE"},
        {u"wep", "5", "SECURITY_MODE"},
        {u"psk", "034", "SECURITY_MODE"},
        {u"802.1x", "269", "SECURITY_MODE"},
        {u"n", "039", "PHY_MODE"},
        {u"802.11N", "039", "PHY_MODE"},
        {u"11a", "379", "PHY_MODE"},
        {u"b", "0145", "PHY_MODE"},
        {u"g", "014", "PHY_MODE"},
        {u"ac", "269", "PHY_MODE"},
        {u"2.4 GHz", "0145", "CHANNEL_BAND"},
        {u"\"5ghz\"", "23679", "CHANNEL_BAND"},
        {u"20 mhz", "1459", "CHANNEL_WIDTH"},
        {u"40MHz", "03", "CHANNEL_WIDTH"},
        {u"80MHz", "2", "CHANNEL_WIDTH"},
        {u"160MHz", "6", "CHANNEL_WIDTH"},
        {u"2.0MHz", "", ""}, // no width, unlike a band, takes a dot
        {u"6", "0", "CHANNEL"},
        {u"\"06\"", "0", "CHANNEL"},
        {u"11", "4", "CHANNEL"},
        {u"165", "6", "CHANNEL"},
        {u"40", "", ""},
    });
}

TEST(FilterLine, ComparesTheSignal)
{
    check({
        {u">-70", "069", "RSSI"},
        {u">= -70", "0269", "RSSI"},
        {u"<-94", "3578", "RSSI"},
        {u"<=-94", "34578", "RSSI"},
        {u">=50%", "0269", "RSSI"},
        {u">= 100 %", "69", "RSSI"},
        {u">=100%%", "69", "RSSI"},
        {u"<0%", "347", "RSSI"}, // below zero at -94 to -96 dBm, and zero again beneath
        {u"<", "", ""},
        {u"<=", kAll, "RSSI"},
        {u">=", "", ""},
        {u"<5-3", kAll, "RSSI"},
        {u"<--5", kAll, "RSSI"}, // no number is 0
        {u">-99999999999999999999", kAll, "RSSI"},
        {u">-7o", "", ""},
        {u"<hidden network>", "", ""},
    });
}

TEST(FilterLine, AsksOnlyTheFirstNetworkWhetherItIsBelowNoNumberInPerCent)
{
    const NetworkList all = filteredNetworks();
    const NetworkList faint = {all[4], all[3], all[7]}; // all of them below 0 per cent
    EXPECT_EQ(selectionOf(QStringLiteral("<%"), faint).first, QStringLiteral("0"));
    EXPECT_EQ(selectionOf(QStringLiteral("<=%"), faint).first, QStringLiteral("012"));
}

TEST(FilterLine, FindsNamesAndAddresses)
{
    check({
        {u"00:1a", "012", "BSSID"},
        {u":0A", "9", "BSSID"},
        {u"00:1A:zz", "", ""}, // though a name begins so
        {u"\"00:1a:zz café\"", "5", "SSID"},
        {u"\"00:1a:11:00:00:01\"", "0", "BSSID"},
        {u"\"00:1a:11\"", "", ""},
        {u"home", "019", "SSID VENDOR"},
        {u"\"HOME\"", "09", "SSID VENDOR"},
        {u"\"n\"", "3", "SSID"},
        {u"15", "12", "ANNOTATIONS SSID"}, // no channel
        {u"38", "4", "SSID"},
        {u"6 g", "8", "SSID"},
        {u"living", "0", "DEVICE_NAME"},
        {u"cisco", "01", "VENDOR"},
        {u"\"cisco\"", "", ""},
        {u"de", "016", "ANNOTATIONS CC SSID"}, // "desk", Germany, "Hidden"
        {u"\"de\"", "01", "CC"},
        {u"wpa2\" f", "7", "SSID"},
        {u"STRAßE", "4", "SSID"},
        {u"привет", "9", "SSID"},
        {u"\U00010428", "9", "SSID"}, // a letter beyond the basic plane, in its other case
        {u"\"", "", ""},
        {u"\"\"", "", ""},
    });
}

TEST(FilterLine, CombinesTerms)
{
    check({
        {u"wep, psk", "0345", "SECURITY_MODE"},
        {u"wpa & 5GHz, 40MHz", "369", "CHANNEL_BAND CHANNEL_WIDTH SECURITY_MODE"},
        {u"zzz & wep", "", "SECURITY_MODE"},
        {u"\"fan, home\"", "", ""}, // quotation marks keep nothing together
        {u"!wpa", "012578", "SECURITY_MODE"},
        {u"! 802.1x", "0134578", "SECURITY_MODE"},
        {u"!cisco, wep", "23456789", "SECURITY_MODE VENDOR"},
        {u"!zzz", kAll, ""},
        {u"!!x", "012345689", "ANNOTATIONS"},
        {u"!", kAll, ""},
        {u"!\t ", kAll, ""},
        {u"wep,", "5", "SECURITY_MODE"},
        {u"wep&", "", "SECURITY_MODE"},
        {u"&", "", ""},
        {u" ,\t\u00a0", "", ""},
    });
}

TEST(FilterLine, TakesLinesOfAnyLength)
{
    constexpr qsizetype kLength = 100'000;
    const NetworkList networks = filteredNetworks();
    struct LongCase {
        const char* repeated;
        const char* end;
        const char* selected;
    };
    const LongCase cases[] = {
        {"x", "", ""},   {"wpa&", "psk", "34"}, {"zz,", "wep", "5"}, {"&", "", ""},
        {"!", "", kAll}, {"\"", "", ""},        {"<-", "1", kAll},   {">=", "", ""},
        {"9", "", ""},   {"0", "6", "0"},       {"11", "n", "039"},  {"%", "", ""},
    };
    for (const LongCase& test : cases) {
        const QString line =
            QString::fromLatin1(test.repeated).repeated(kLength) + QString::fromLatin1(test.end);
        EXPECT_EQ(selectionOf(line, networks).first, QString::fromLatin1(test.selected))
            << test.repeated;
    }
}
