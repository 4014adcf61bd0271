#include "charts/PaintingOrder.h"

#include "charts/ChartNetworks.h"
#include "charts/RadioMerge.h"
#include "filtering/TSNetworkCollection.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;

TEST(PaintingOrder, PutsStrongNetworksOverWeakOnesAndSelectedOnesOverAll)
{
    const auto weak = chartNetwork(1, {{0, -90}});
    const auto strong = chartNetwork(2, {{0, -30}});
    const auto middle = chartNetwork(3, {{0, -60}});
    const auto selected = chartNetwork(4, {{0, -70}});
    const auto weakSelected = chartNetwork(5, {{0, -95}});
    const auto member = chartNetwork(6, {{0, -80}});
    selected->setUserHighlighted(true);
    weakSelected->setUserHighlighted(true);
    const auto collection = std::make_shared<TSNetworkCollection>(QStringLiteral("Both"));
    collection->addObject(member);
    member->setParentCollection(collection);
    const NetworkList networks = {strong, weakSelected, member, weak, selected, middle};

    EXPECT_THAT(paintingOrder(networks).networks,
                ElementsAre(weak, member, middle, strong, selected, weakSelected));
    collection->setUserHighlighted(true);
    const PaintingOrder order = paintingOrder(networks);
    EXPECT_THAT(order.networks, ElementsAre(weak, middle, strong, selected, member, weakSelected));
    // A member of a selected collection is not selected itself.
    EXPECT_THAT(order.highlighted, ElementsAre(selected, weakSelected));
}

TEST(RadioMerge, ChoosesOneNetworkForEachRadioAndCollectsItsNames)
{
    // Three names of one radio, the last octet apart, and one of another.
    const auto named = [](const char* bssid, const char* ssid, int channel, int rssi) {
        ScanDictionary dictionary;
        dictionary.bssid = QString::fromLatin1(bssid);
        dictionary.ssid = QString::fromLatin1(ssid);
        dictionary.channelNumber = channel;
        auto network = std::make_shared<TSNetwork>(dictionary, kReferenceTime);
        network->addDataPoint(sampleAt(0, rssi));
        return network;
    };
    const auto home = named("00:11:22:33:44:50", "Home", 6, -60);
    const auto guests = named("00:11:22:33:44:51", "Guests", 6, -55);
    const auto again = named("00:11:22:33:44:52", "Home", 6, -70);
    const auto far = named("00:99:22:33:44:50", "Far", 6, -90);
    ASSERT_EQ(home->apid(), guests->apid());
    const NetworkList networks = {home, guests, again, far};

    const RadioMerge merge = mergeNetworksByRadio(networks);
    EXPECT_THAT(merge.networks(), testing::UnorderedElementsAre(guests, far)); // the strongest
    ASSERT_TRUE(merge.ssids(*home));
    EXPECT_EQ(*merge.ssids(*home), QStringList({QStringLiteral("Home"), QStringLiteral("Guests")}));
    const auto other = named("aa:99:22:33:44:50", "Other", 6, -90);
    EXPECT_FALSE(merge.ssids(*other) || merge.labelOf(*other));
    // Several names are told by their access point, unless one of them is selected.
    EXPECT_EQ(merge.labelOf(*home), home->apid());
    EXPECT_EQ(merge.labelOf(*far), far->deviceid());

    again->setUserHighlighted(true); // weaker, but the user's choice
    EXPECT_EQ(merge.labelOf(*again), again->deviceid());
    EXPECT_THAT(mergeNetworksByRadio(networks).networks(),
                testing::UnorderedElementsAre(again, far));
}
