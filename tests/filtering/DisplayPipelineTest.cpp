#include "filtering/DisplayPipeline.h"

#include "filtering/FilteredNetworks.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace tessara;

TEST(DisplayPipeline, ShowsWhatTheFilterLineSelects)
{
    const NetworkList all = filteredNetworks();
    DisplayPipeline pipeline;
    pipeline.setSortDescriptors({{columnWithIdentifier(u"RSSI"), false}});
    pipeline.filterAndSetNetworks(all);
    all[0]->setUserHighlighted(true);

    pipeline.onFilter(QStringLiteral("psk"));
    EXPECT_EQ(pipeline.filteredNetworks(), (NetworkList{all[0], all[4], all[3]}));
    EXPECT_EQ(pipeline.footerText(), QStringLiteral("Networks Found: 10, Displayed: 3 (30%)"));
    EXPECT_TRUE(pipeline.filteredColumnIdentifiers().contains(u"SECURITY_MODE"));
    EXPECT_FALSE(pipeline.filteredColumnIdentifiers().contains(u"SSID"));
    EXPECT_FALSE(all[0]->isUserHighlighted());

    pipeline.filterAndSetNetworks({all[3], all[5]}); // the line holds for the next scan, too
    EXPECT_EQ(pipeline.filteredNetworks(), NetworkList{all[3]});

    pipeline.onFilter(QString());
    EXPECT_EQ(pipeline.filteredNetworks(), (NetworkList{all[3], all[5]}));
    EXPECT_TRUE(pipeline.filteredColumnIdentifiers().isEmpty());
}

TEST(DisplayPipeline, MarksTheAssociatedNetworkAmongThoseThatTheFilterSelects)
{
    const NetworkList all = filteredNetworks();
    DisplayPipeline pipeline;
    pipeline.setAssociation(
        Association{QStringLiteral("00:1a:11:00:00:01"), Band::k2Dot4GHz, QStringLiteral("Home")});
    pipeline.onFilter(QStringLiteral("wep"));
    pipeline.filterAndSetNetworks(all);
    EXPECT_FALSE(all[0]->isAssociated());
    pipeline.onFilter(QStringLiteral("home"));
    EXPECT_TRUE(all[0]->isAssociated());
    EXPECT_FALSE(all[1]->isAssociated());
}
