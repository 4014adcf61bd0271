#include "persistence/VendorLookup.h"

#include "VendorFiles.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace tessara;

namespace {

VendorTable tableOf(const Texts& entries)
{
    QString error;
    auto table = VendorTable::fromPropertyList(propertyList(entries), error);
    EXPECT_TRUE(table) << error.toStdString();
    return table.value_or(VendorTable());
}

QString nameIn(const VendorTable& table, const char* bssid)
{
    return vendorOf(table, QString::fromLatin1(bssid)).value_or(QStringLiteral("nobody"));
}

} // namespace

TEST(VendorLookup, FindsTheMakerBehindEachFormOfABSSID)
{
    const VendorTable table = tableOf({
        {"00:15:6D", "Ubiquiti Networks Inc."},
        {"24:A4:3C", "Ubiquiti Networks Inc."},
        {"88:15:6D", "Owner of 88:15:6D"},
        {"D0:18:D6", "Owner of D0:18:D6"}, // a wildcard block whose own entry is missing
        {"00:11:22", "Plain"},
        {"02:33:44", "Local as registered"},
        {"0C:47:A1", "Apple, Inc."},
        {"0C:4E:A1", "Somebody else"},
        {"0C:62:B1", "Somebody else"},
    });
    struct Case {
        const char* bssid;
        const char* vendor;
    };
    const Case cases[] = {
        {"00:15:6D:01:02:03", "Ubiquiti Networks Inc."},
        {"02:15:6D:01:02:03", "Ubiquiti Networks Inc."},
        {"7A:15:6D:01:02:03", "Ubiquiti Networks Inc."},
        {"88:15:6D:01:02:03", "Owner of 88:15:6D"},      // the block itself comes first
        {"8A:15:6D:01:02:03", "Ubiquiti Networks Inc."}, // the wildcard before the repair
        {"ZZ:A4:3C:01:02:03", "Ubiquiti Networks Inc."},
        {"D2:18:D6:01:02:03", "Owner of D0:18:D6"}, // 04:18:D6 is unknown: on to the repair
        {"A2:18:D6:01:02:03", "nobody"},
        {"7A:15:6D", "Ubiquiti Networks Inc."}, // three octets, as an element asks
        {"00:11:22:01:02:03", "Plain"},
        {"02:11:22:01:02:03", "Plain"},
        {"02:11:22", "Plain"},
        {"06:11:22:01:02:03", "nobody"},
        {"02:33:44:01:02:03", "Local as registered"},
        {"0E:77:55:66:A1:4C", "Apple, Inc."}, // 0C:4?:A1
        {"0C:77:55:66:A1:40", "Apple, Inc."},
        {"0C:77:55:66:A1:5C", "nobody"},
        {"0E:77:55:66:B1:6C", "nobody"}, // leads to a block, but not to one of Apple's
        {"GG:77:55:66:A1:4C", "nobody"},
        {"0E:77:55:66:A1", "nobody"},
        {"00:11:22:", "Plain"},
        {"-2:11:22:01:02:03", "nobody"},
        {"00:15:6d:01:02:03", "nobody"}, // BSSIDs are in upper case
        {"00-11-22-01-02-03", "nobody"},
        {"0:11:22:1:2:3", "nobody"},
        {"00:11:2", "nobody"},
        {"", "nobody"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(nameIn(table, c.bssid), QString::fromLatin1(c.vendor)) << c.bssid;
}

TEST(VendorLookup, EachWildcardBlockTakesAnyFirstOctet)
{
    const char* blocks[] = {"00:15:6D", "00:27:22", "04:18:D6", "24:A4:3C", "44:D9:E7", "68:72:51",
                            "78:A8:20", "80:2A:A8", "B4:FB:E4", "DC:9F:DB", "F0:9F:C2", "FC:EC:DA"};
    Texts entries;
    for (const char* block : blocks)
        entries.append({block, QByteArray("Maker of ") + block});
    const VendorTable table = tableOf(entries);
    for (const QByteArray block : blocks) {
        EXPECT_EQ(nameIn(table, ("55" + block.mid(2) + ":01:02:03").constData()),
                  QString::fromLatin1("Maker of " + block));
    }
}

TEST(VendorLookup, ShortensANameToItsFirstWord)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Apple, Inc.", "Apple"},   {"Cisco Systems, Inc", "Cisco"},
        {"Cisco Meraki", "Meraki"}, {"Meraki, Inc.", "Meraki"},
        {"NETGEAR", "NETGEAR"},     {"D-Link\tInternational", "D-Link"},
    };
    for (const auto& [name, word] : cases)
        EXPECT_EQ(shortVendorName(QString::fromLatin1(name)), QString::fromLatin1(word));
}

TEST(VendorTable, LeavesOutWhatIsNoEntry)
{
    QString error;
    const auto table = VendorTable::fromPropertyList(
        R"(<plist version="1.0"><dict>
           <key>00:11:22</key><integer>7</integer>
           <key>00:11:23</key><array><string>a</string></array>
           <key>00:11:24</key><string></string>
           <key>00:11:2</key><string>too short</string>
           <key>00:11:2g</key><string>no number</string>
           <key>00:11:25</key><string> Krüger &amp;
             Gothe </string>
           <key>00:11:26</key><string> Two  Blanks </string>
           </dict></plist>)",
        error);
    ASSERT_TRUE(table) << error.toStdString();
    EXPECT_EQ(table->size(), 2u);
    EXPECT_EQ(nameIn(*table, "00:11:22"), QStringLiteral("nobody"));
    EXPECT_EQ(nameIn(*table, "00:11:25"), QStringLiteral("Krüger & Gothe"));
    EXPECT_EQ(nameIn(*table, "00:11:26"), QStringLiteral("Two Blanks"));
}

TEST(VendorTable, RefusesWhatIsNoPropertyListOfNames)
{
    const QByteArray lists[] = {
        "",
        "00:11:22 Plain\n",
        QByteArray(1000, '\0'),
        "<html><body>Please log in</body></html>",
        "<plist version=\"1.0\"><array><string>00:11:22</string></array></plist>",
        "<plist version=\"1.0\"><string>00:11:22</string></plist>",
        "<plist version=\"1.0\"><dict></dict></plist>",
        "<plist version=\"1.0\"><dict><key>00:11:22</key><integer>1</integer></dict></plist>",
        propertyList({{"00:11:22", "Plain"}}).chopped(20),
        "<!DOCTYPE plist [<!ENTITY a \"" + QByteArray(5000, 'a') + "\">]>" +
            propertyList({{"00:11:22", "&a;&a;&a;&a;&a;&a;&a;&a;"}}),
        "<!DOCTYPE plist [<!ATTLIST string a CDATA \"a\">]>" +
            propertyList({{"00:11:22", "Plain"}}),
        "<plist version=\"1.0\"><dict><key>00:11:22</key><string>Plain</string><key>a</key>" +
            QByteArray("<array>").repeated(1'000) + QByteArray("</array>").repeated(1'000) +
            "</dict></plist>",
        "<plist version=\"1.0\">" + QByteArray("<array>").repeated(1'000'000),
        "<plist version=\"1.0\">" + QByteArray("<dict><key>a</key>").repeated(1'000'000),
    };
    for (const QByteArray& list : lists) {
        QString error;
        EXPECT_FALSE(VendorTable::fromPropertyList(list, error)) << list.left(80).toStdString();
        EXPECT_FALSE(error.isEmpty() || error.contains(u'\n')) << error.toStdString();
    }
}
