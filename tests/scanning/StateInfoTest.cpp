#include "scanning/StateInfo.h"

#include "foundation/Defaults.h"
#include "scanning/ScriptedInterface.h"

#include <gtest/gtest.h>

using namespace tessara;

TEST(StateInfo, TellsTheInterfaceWhatIsShownAndTheAssociation)
{
    ScriptedInterface idle;
    ScriptedInterface joined;
    joined.associatedBSSID = QStringLiteral("aa:0:0:0:0:1");
    joined.associatedSSID = QStringLiteral("Home %1");
    joined.channel = CWChannel{36, Band::k5GHz, ChannelWidth::k80MHz};
    ScriptedInterface wide = joined;
    wide.channel->channelWidth = ChannelWidth::k80Plus80MHz;

    struct Case {
        bool isScanning;
        const char* windowTitle;
        const CWInterface* interface;
        const char* title;
        const char* toolTip;
    };
    const Case cases[] = {
        {true, "Tessara - Scanning", &idle, "wlan0: Scanning  |  Not associated", ""},
        {false, "Tessara", &idle, "wlan0: Not scanning  |  Not associated", ""},
        {true, "Tessara - Scanning", &joined,
         "wlan0: Scanning  |  Associated: Home %1, Ch 36, 80 MHz, 867 Mbps", ""},
        {false, "Tessara", &wide,
         "wlan0: Not scanning  |  Associated: Home %1, Ch 36, -1 MHz, 867 Mbps", ""},
        {true, "Tessara - Scanning", nullptr, "", ""},
        {false, "Data from Clipboard", &joined, "Data from Clipboard", ""},
        {false, "/tmp/a", &joined, "File: a", "/tmp/a"},
        {true, "/tmp/a", &idle, "wlan0: Scanning  |  Not associated", ""},
    };
    for (const Case& c : cases) {
        const StateInfo info =
            stateInfo(c.isScanning, QString::fromLatin1(c.windowTitle), c.interface);
        EXPECT_EQ(info.title.toStdString(), c.title);
        EXPECT_EQ(info.toolTip.toStdString(), c.toolTip);
    }
}

TEST(ChooseInterface, TakesTheNamedOneAndFallsBackOnTheDefault)
{
    struct Service final : WiFiService {
        std::shared_ptr<CWInterface> interface() override { return first; }
        std::shared_ptr<CWInterface> interfaceWithName(const QString& name) override
        {
            return name == QLatin1String("wlan1") ? second : nullptr;
        }
        QStringList interfaceNames() override { return {}; }
        std::shared_ptr<CWInterface> first = std::make_shared<ScriptedInterface>();
        std::shared_ptr<CWInterface> second = std::make_shared<ScriptedInterface>();
    } service;

    Defaults& defaults = Defaults::standard();
    EXPECT_EQ(chooseInterface(service), service.first);
    defaults.setValue(DefaultKey::InterfaceName, QStringLiteral("wlan1"));
    EXPECT_EQ(chooseInterface(service), service.second);
    defaults.setValue(DefaultKey::InterfaceName, QStringLiteral("gone0"));
    EXPECT_EQ(chooseInterface(service), service.first);
    defaults.remove(DefaultKey::InterfaceName);
}

TEST(CWNetwork, IsWEPOnlyWhenPrivacyIsAllThatIsSaid)
{
    CWNetwork open = network("0:0:0:0:0:1");
    open.ssid.reset();
    const ScanDictionary dictionary = open.dictionary();
    EXPECT_FALSE(dictionary.ssid.has_value()) << "no name is not an empty name";
    EXPECT_EQ(dictionary.securityMode, std::numeric_limits<std::int64_t>::max());

    CWNetwork wep = open;
    wep.privacy = true;
    wep.informationElementData = QByteArray::fromHex("0000dd0400500f01dd0400"
                                                     "50f2"); // cut short
    EXPECT_EQ(wep.dictionary().securityMode, 1);

    for (const char* elements : {"30020100", "dd060050f2010100"}) { // RSN; WPA
        CWNetwork wpa = wep;
        wpa.informationElementData = QByteArray::fromHex(elements);
        EXPECT_NE(wpa.dictionary().securityMode, 1) << elements;
    }
}
