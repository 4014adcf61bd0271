#include "filtering/DisplayPipeline.h"

#include "filtering/FilteredNetworks.h"
#include "filtering/TSSideViewItem.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <algorithm>

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

namespace {

/// The places in `all` of the networks that are shown, in the order of `all`.
std::vector<int> shownOf(const DisplayPipeline& pipeline, const NetworkList& all)
{
    std::vector<int> places;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (std::ranges::find(pipeline.filteredNetworks(), all[i]) !=
            pipeline.filteredNetworks().end())
            places.push_back(static_cast<int>(i));
    }
    return places;
}

/// The ten networks, and an open one between stations.
NetworkList networksWithAdHoc()
{
    NetworkList all = filteredNetworks();
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("02:00:00:00:00:0b");
    dictionary.channelNumber = 1;
    dictionary.ibss = true;
    dictionary.securityMode = static_cast<std::int64_t>(SecurityMode::kNone);
    all.push_back(std::make_shared<TSNetwork>(dictionary, 0));
    all.back()->addDataPoint({-60, -92, -1, -1, 0});
    return all;
}

} // namespace

TEST(DisplayPipeline, ShowsTheKindsOfNetworksThatSettingsAndQuickFilterLeave)
{
    struct Case {
        ShownKinds kinds;
        QuickFilter filter;
        std::vector<int> shown;
    };
    const Case cases[] = {
        {{}, QuickFilter::kOpenNetworks, {1, 8, 10}},
        {{}, QuickFilter::kSecureNetworks, {0, 2, 3, 4, 5, 6, 7, 9}},
        {{}, QuickFilter::kAdHocNetworks, {10}},
        {{.adHoc = false}, QuickFilter::kOpenNetworks, {1, 8}},
        {{.secure = false}, QuickFilter::kAllNetworks, {1, 8, 10}},
        {{.secure = false}, QuickFilter::kSecureNetworks, {}},
        {{.secure = false}, QuickFilter{7}, {}}, // no such item: as before
    };
    const NetworkList all = networksWithAdHoc();
    DisplayPipeline pipeline;
    pipeline.filterAndSetNetworks(all);
    for (const Case& c : cases) {
        pipeline.setShownKinds(c.kinds);
        pipeline.selectQuickFilter(c.filter);
        EXPECT_EQ(shownOf(pipeline, all), c.shown) << static_cast<int>(c.filter);
    }
}

TEST(DisplayPipeline, ShowsTheNetworksThatReachTheThreshold)
{
    struct Case {
        SignalThreshold threshold;
        std::vector<int> shown;
        const char16_t* text;
    };
    const Case cases[] = {
        {{70, true}, {0, 2, 6, 9}, u"Showing only networks with signal strength >= -70 dBm"},
        {{95, true},
         {0, 1, 2, 3, 4, 6, 9},
         u"Showing only networks with signal strength >= -95 dBm"},
        {{1, false}, {0, 1, 2, 3, 4, 6, 7, 9}, u"Showing only networks with signal strength >= 1%"},
        {{100, false}, {6, 9}, u"Showing only networks with signal strength >= 100%"},
        {{0, true}, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, nullptr},
    };
    const NetworkList all = filteredNetworks(); // the sixth was not seen in the last scan
    DisplayPipeline pipeline;
    for (const Case& c : cases) {
        pipeline.setSignalThreshold(c.threshold);
        pipeline.filterAndSetNetworks(all);
        EXPECT_EQ(shownOf(pipeline, all), c.shown) << c.threshold.value;
        EXPECT_EQ(c.threshold.text(),
                  c.text ? std::optional(QString::fromUtf16(c.text)) : std::nullopt);
    }
}

TEST(DisplayPipeline, ShowsWhatTheSideViewSelectsAndCountsTheRest)
{
    struct Case {
        const char16_t* facet;
        const char16_t* value;
        std::vector<int> shown;
    };
    const Case cases[] = {
        {u"item-frequencyband", u"5 GHz", {2, 3, 6, 7, 9}},
        {u"item-networkname", u"Home", {0}},
        {u"item-securitymode", u"Open", {1, 8}},
        {u"item-securitymode", u"WPA2 (PSK)", {0}},
        {u"item-vendor", u"Cisco Systems", {0, 1}},
        {u"item-accesspoint", u"nobody's", {}},
        {u"item-signallevel", u"rssi-green", {0, 2, 6, 9}},
        {u"item-signallevel", u"rssi-yellow", {1}},
        {u"item-signallevel", u"rssi-red", {3, 4, 5, 7, 8}},
        {u"", u"Home", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
    };
    const NetworkList all = filteredNetworks();
    DisplayPipeline pipeline;
    for (const Case& c : cases) {
        pipeline.setSideViewSelection({QString::fromUtf16(c.facet), QString::fromUtf16(c.value)});
        pipeline.filterAndSetNetworks(all);
        EXPECT_EQ(shownOf(pipeline, all), c.shown) << QString::fromUtf16(c.value).toStdString();
        EXPECT_EQ(pipeline.sideViewNetworks().size(), all.size());
    }
}

TEST(SideView, ListsEachValueOfEachFacetOnce)
{
    const NetworkList all = networksWithAdHoc();
    std::vector<std::pair<QString, qsizetype>> counts;
    QStringList modes;
    QStringList security;
    for (const TSSideViewItem& item : sideViewOf(all)) {
        counts.emplace_back(item.title, item.children.size());
        for (const TSSideViewItem& child : item.children) {
            if (child.identifier == QLatin1String("item-phymode"))
                modes += child.title + u' ' + child.filterString;
            if (child.identifier == QLatin1String("item-securitymode"))
                security += child.title;
        }
    }
    EXPECT_EQ(counts[0].first, QStringLiteral("RESULTS"));
    EXPECT_EQ(counts[1], (std::pair<QString, qsizetype>(QStringLiteral("Frequency Band"), 2)));
    EXPECT_EQ(counts[2], (std::pair<QString, qsizetype>(QStringLiteral("Network Name"), 10)));
    EXPECT_EQ(security.front(), QStringLiteral("Open")); // that of no known kind has no row
    EXPECT_EQ(security.size(), 9);
    EXPECT_TRUE(std::ranges::is_sorted(modes, {}, [](QString title) { return title.remove(u'/'); }))
        << modes.join(u';').toStdString();
    EXPECT_EQ(emptySideView().size(), 1U);
}

TEST(SideView, TitlesAnAccessPointOfSeveralRadiosByItself)
{
    const NetworkList all = filteredNetworks();
    const auto titles = [](const NetworkList& networks) {
        const std::vector<TSSideViewItem> items = sideViewOf(networks);
        QStringList result;
        for (const TSSideViewItem& point : items[5].children)
            result += point.title;
        return result;
    };
    EXPECT_EQ(titles({all[0]}), QStringList{all[0]->deviceid()});
    EXPECT_EQ(titles({all[0], all[0]}), QStringList{all[0]->apid()});
}
