#include "shell/GraphTabs.h"

#include "charts/TSSignalStrengthView.h"
#include "foundation/Defaults.h"
#include "shell/TestNetworks.h"
#include "support/ManualClock.h"

#include <QAction>
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
        for (const auto* key : {DefaultKey::SignalStrengthViewTimescale, DefaultKey::Units,
                                DefaultKey::SelectedTabViewIdentifier})
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
};

} // namespace

TEST_F(GraphTabsTest, ShowTheNetworksOfTheListAndWhichAreSelected)
{
    Defaults::standard().setValue(DefaultKey::Units, 1);
    tabs.loadDefaults();
    const NetworkList networks = testNetworks(3);
    tabs.configureSelectedTabView(networks);
    EXPECT_EQ(chart.networks().size(), 3U);
    EXPECT_FALSE(chart.itemHighlightEnabled());
    EXPECT_EQ(chart.units(), Units::kDBm);

    networks[1]->setUserHighlighted(true);
    tabs.configureSelectedTabView(networks);
    EXPECT_TRUE(chart.itemHighlightEnabled());
    EXPECT_EQ(chart.networks().back(), networks[1]);
    tabs.configureSelectedTabView({networks[0]}); // the selected one has left the list
    EXPECT_FALSE(chart.itemHighlightEnabled());
}

TEST_F(GraphTabsTest, KeepTheRangeOfTimeWithinItsLimits)
{
    struct Case {
        int stored;
        int used;
        bool canGrow, canShrink;
    };
    for (const Case& c : {Case{300, 300, true, false}, Case{1000, 1000, true, true},
                          Case{3600, 3600, false, true}, Case{0, 300, true, false},
                          Case{-5, 300, true, false}, Case{1 << 30, 3600, false, true}}) {
        SCOPED_TRACE(c.stored);
        Defaults::standard().setValue(DefaultKey::SignalStrengthViewTimescale, c.stored);
        tabs.loadDefaults();
        EXPECT_EQ(chart.timescale(), c.used);
        EXPECT_EQ(item("Show &More Time").isEnabled(), c.canGrow);
        EXPECT_EQ(item("Show &Less Time").isEnabled(), c.canShrink);
    }
    item("Show &Less Time").trigger();
    EXPECT_EQ(chart.timescale(), 2880);
    item("Show &More Time").trigger();
    tabs.saveDefaults();
    EXPECT_EQ(Defaults::standard().integerForKey(DefaultKey::SignalStrengthViewTimescale), 3456);
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

TEST_F(GraphTabsTest, TellTheChartsWhileAltIsHeld)
{
    QWidget window;
    window.installEventFilter(&tabs);
    QTest::keyPress(&window, Qt::Key_Alt);
    EXPECT_TRUE(chart.isAlternate());
    QTest::keyRelease(&window, Qt::Key_Alt);
    EXPECT_FALSE(chart.isAlternate());
    QTest::keyPress(&window, Qt::Key_Alt);
    QEvent leave(QEvent::WindowDeactivate); // the release goes to another window
    QCoreApplication::sendEvent(&window, &leave);
    EXPECT_FALSE(chart.isAlternate());
}
