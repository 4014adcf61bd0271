#include "shell/GraphTabs.h"

#include "charts/TSNetworkDetailsView.h"
#include "charts/TSSpectrumView.h"
#include "foundation/Defaults.h"
#include "shell/NetworkDetailsPane.h"
#include "shell/TestNetworks.h"
#include "support/ManualClock.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QMenu>
#include <QSettings>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

class GraphTabsTest : public testing::Test {
protected:
    GraphTabsTest() { tabs.addViewItems(menu); }
    ~GraphTabsTest() override
    {
        for (const auto* key : {DefaultKey::SignalStrengthViewTimescale,
                                DefaultKey::NetworkSignalStrengthViewTimescale, DefaultKey::Metric,
                                DefaultKey::Units, DefaultKey::SelectedTabViewIdentifier})
            Defaults::standard().remove(key);
    }

    QAction& item(const char* text)
    {
        for (QAction* each : menu.actions()) {
            if (each->text() == QLatin1String(text))
                return *each;
        }
        throw std::out_of_range(text);
    }

    ManualClock clock;
    QMenu menu;
    GraphTabs tabs{clock};
    TSSignalStrengthView& chart = tabs.signalStrengthView();
    TSNetworkDetailsView& details = tabs.networkDetails().chart();
};

} // namespace

TEST_F(GraphTabsTest, ShowTheNetworksOfTheListAndWhichAreSelected)
{
    Defaults::standard().setValue(DefaultKey::Units, 1);
    tabs.loadDefaults();
    tabs.selectGraph(1);
    const NetworkList networks = testNetworks(3);
    tabs.configureSelectedTabView(networks, {});
    EXPECT_EQ(chart.networks().size(), 3U);
    EXPECT_FALSE(chart.itemHighlightEnabled());
    EXPECT_EQ(chart.units(), Units::kDBm);

    networks[1]->setUserHighlighted(true);
    tabs.configureSelectedTabView(networks, {});
    EXPECT_TRUE(chart.itemHighlightEnabled());
    EXPECT_EQ(chart.networks().back(), networks[1]);
    tabs.configureSelectedTabView({networks[0]}, {}); // the selected one has left the list
    EXPECT_FALSE(chart.itemHighlightEnabled());
}

TEST_F(GraphTabsTest, ShowTheDetailsOfTheOneNetworkThatIsSelected)
{
    const NetworkList networks = testNetworks(3);
    tabs.configureSelectedTabView(networks, {});
    EXPECT_EQ(details.network(), nullptr);
    networks[1]->setUserHighlighted(true);
    tabs.configureSelectedTabView(networks, {});
    EXPECT_EQ(details.network(), networks[1]);
    networks[2]->setUserHighlighted(true);
    tabs.selectGraph(1);
    tabs.configureSelectedTabView(networks, {});
    tabs.selectGraph(0); // which catches up
    EXPECT_EQ(details.network(), nullptr);
}

TEST_F(GraphTabsTest, SelectTheMetricByMenuAndPopUpAndKeepIt)
{
    auto& popUp = *tabs.findChild<QComboBox*>();
    for (const auto& [stored, used] : {std::pair(2, 2), std::pair(1, 1), std::pair(7, 0)}) {
        Defaults::standard().setValue(DefaultKey::Metric, stored);
        tabs.loadDefaults();
        EXPECT_EQ(popUp.currentIndex(), used);
        EXPECT_EQ(static_cast<int>(details.detailsMetric()), used);
    }
    const QList<QAction*> items = tabs.networkDetails().metricItems().actions();
    items[2]->trigger();
    EXPECT_EQ(details.detailsMetric(), DetailsMetric::kSNR);
    EXPECT_EQ(popUp.currentIndex(), 2);
    popUp.setFocus();
    QTest::keyClick(&popUp, Qt::Key_Up);
    EXPECT_EQ(details.detailsMetric(), DetailsMetric::kSignalAndNoise);
    EXPECT_TRUE(items[1]->isChecked());
    tabs.saveDefaults();
    EXPECT_EQ(Defaults::standard().integerForKey(DefaultKey::Metric), 1);
    tabs.selectGraph(1); // whose chart has no metric
    EXPECT_FALSE(items[1]->isEnabled());
}

TEST_F(GraphTabsTest, KeepTheRangesOfTimeWithinTheirLimits)
{
    struct Tab {
        int index;
        const char16_t* key;
        TSSignalStrengthView& chart;
        int longest;
    };
    for (const Tab& tab : {Tab{0, DefaultKey::NetworkSignalStrengthViewTimescale, details, 28'800},
                           Tab{1, DefaultKey::SignalStrengthViewTimescale, chart, 3600}}) {
        SCOPED_TRACE(tab.index);
        struct Case {
            int stored;
            int used;
            bool canGrow, canShrink;
        };
        for (const Case& c :
             {Case{300, 300, true, false}, Case{1000, 1000, true, true},
              Case{tab.longest, tab.longest, false, true}, Case{0, 300, true, false},
              Case{-5, 300, true, false}, Case{1 << 30, tab.longest, false, true}}) {
            SCOPED_TRACE(c.stored);
            Defaults::standard().setValue(tab.key, c.stored);
            tabs.loadDefaults();
            tabs.selectGraph(tab.index);
            EXPECT_EQ(tab.chart.timescale(), c.used);
            EXPECT_EQ(item("Show &More Time").isEnabled(), c.canGrow);
            EXPECT_EQ(item("Show L&ess Time").isEnabled(), c.canShrink);
        }
        tab.chart.setTimescale(3600);
        item("Show L&ess Time").trigger();
        EXPECT_EQ(tab.chart.timescale(), 2880);
        item("Show &More Time").trigger();
        tabs.saveDefaults();
        EXPECT_EQ(Defaults::standard().integerForKey(tab.key), 3456);
    }
}

TEST_F(GraphTabsTest, OpenWithTheTabThatWasLeft)
{
    item("Signal Strength").trigger();
    tabs.saveDefaults();
    GraphTabs next(clock);
    next.loadDefaults();
    EXPECT_EQ(next.findChild<QTabBar*>()->currentIndex(), 1);
    Defaults::standard().setValue(DefaultKey::SelectedTabViewIdentifier, QStringLiteral("Gone"));
    next.loadDefaults(); // shows the first that there is
    EXPECT_TRUE(
        next.findChild<QTabBar*>()->isTabEnabled(next.findChild<QTabBar*>()->currentIndex()));
}

TEST_F(GraphTabsTest, FollowEachOtherInARound)
{
    tabs.selectGraph(2);
    item("&Next Tab").trigger();
    EXPECT_TRUE(item("Advanced Details").isChecked());
    item("&Next Tab").trigger();
    EXPECT_TRUE(item("Network Details").isChecked());
    item("&Previous Tab").trigger();
    EXPECT_TRUE(item("Advanced Details").isChecked());
}

TEST_F(GraphTabsTest, ShowTheSpectrumWhichKnowsNoTime)
{
    const NetworkList networks = testNetworks(3);
    networks[1]->setUserHighlighted(true);
    tabs.configureSelectedTabView(networks, {});
    EXPECT_TRUE(tabs.spectrumView().networks().empty()); // not in sight
    item("Spectrum").trigger();
    EXPECT_EQ(tabs.spectrumView().networks().back(), networks[1]);
    EXPECT_TRUE(tabs.spectrumView().itemHighlightEnabled());
    EXPECT_FALSE(item("Show &More Time").isEnabled());
}

TEST_F(GraphTabsTest, TellTheChartsWhileAltIsHeld)
{
    QWidget window;
    window.installEventFilter(&tabs);
    QTest::keyPress(&window, Qt::Key_Alt);
    EXPECT_TRUE(chart.isAlternate());
    QTest::keyRelease(&window, Qt::Key_Alt);
    EXPECT_FALSE(chart.isAlternate());
    QTest::keyPress(&window, Qt::Key_Alt);
    QKeyEvent menuKey(QEvent::ShortcutOverride, Qt::Key_V, Qt::AltModifier);
    QCoreApplication::sendEvent(&window, &menuKey); // the release goes to the menu
    EXPECT_FALSE(chart.isAlternate());
    QTest::keyPress(&window, Qt::Key_Alt);
    QEvent leave(QEvent::WindowDeactivate); // the release goes to another window
    QCoreApplication::sendEvent(&window, &leave);
    EXPECT_FALSE(chart.isAlternate());
}
