#include "shell/AppDelegate.h"

#include "charts/TSNetworkDetailsView.h"
#include "charts/TSSpectrumView.h"
#include "foundation/Defaults.h"
#include "shell/ApplicationTest.h"
#include "shell/FilterField.h"
#include "shell/GraphTabs.h"
#include "shell/IntervalMenu.h"
#include "shell/MASPreferencesWindowController.h"
#include "shell/MainMenu.h"
#include "shell/NetworkDetailsForm.h"
#include "shell/NetworkDetailsPane.h"
#include "shell/TSSideView.h"

#include <QComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>
#include <QSplitter>
#include <QStatusBar>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessara;
using testing::ElementsAre;

using AppDelegateTest = ApplicationTest;

TEST_F(AppDelegateTest, OffersScanExactlyWhileNotScanningAndStopWhileScanning)
{
    launch();
    ASSERT_TRUE(delegate->scanCycle().isScanning()) << "the scan starts by itself";
    EXPECT_FALSE(action("Scan").isEnabled());
    EXPECT_TRUE(action("Stop").isEnabled());
    EXPECT_EQ(title(), QStringLiteral("Tessara - Scanning"));

    action("Stop").trigger();
    EXPECT_FALSE(delegate->scanCycle().isScanning());
    EXPECT_TRUE(action("Scan").isEnabled());
    EXPECT_FALSE(action("Stop").isEnabled());
    EXPECT_EQ(title(), QStringLiteral("Tessara"));

    action("Scan").trigger();
    EXPECT_TRUE(delegate->scanCycle().isScanning());
    EXPECT_EQ(bodies.size(), 2U);
}

TEST_F(AppDelegateTest, StaysIdleWithoutAutoScan)
{
    Defaults::standard().setValue(DefaultKey::AutoScan, false);
    launch();
    EXPECT_FALSE(delegate->scanCycle().isScanning());
    EXPECT_TRUE(bodies.empty());
    EXPECT_TRUE(action("Scan").isEnabled());
}

TEST_F(AppDelegateTest, ShowsWhatAScanFindsInTheOrderOfTheHeader)
{
    service.wifi->associatedBSSID = QStringLiteral("00:00:00:00:00:02");
    service.wifi->associatedSSID = QStringLiteral("alpha");
    service.wifi->channel = CWChannel{36, Band::k5GHz, ChannelWidth::k80MHz};
    launch();
    EXPECT_EQ(table().model()->rowCount(), 0);
    engineScans({named("0:0:0:0:0:1", "Beta", 1), named("0:0:0:0:0:2", "alpha", 36),
                 named("0:0:0:0:0:3", "Gamma 10", 6), named("0:0:0:0:0:4", "Gamma 9", 11)});
    EXPECT_THAT(names(), ElementsAre("alpha", "Beta", "Gamma 9", "Gamma 10"));
    EXPECT_EQ(table().model()->rowCount(), 4);

    // The first results select the network that the machine is associated with.
    ASSERT_EQ(table().selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(table().currentIndex().row(), 0);

    table().header()->setSortIndicator(
        static_cast<int>(columnWithIdentifier(u"CHANNEL") - columnRegistry().data()),
        Qt::DescendingOrder);
    EXPECT_THAT(names(), ElementsAre("alpha", "Gamma 9", "Gamma 10", "Beta"));
    tick();
    EXPECT_THAT(names(), ElementsAre("alpha", "Gamma 9", "Gamma 10", "Beta"));
}

TEST_F(AppDelegateTest, ShowsTheSelectionOfTheListInTheChart)
{
    launch();
    window().graphTabs().selectGraph(1);
    engineScans({named("0:0:0:0:0:1", "Beta"), named("0:0:0:0:0:2", "Alpha")});
    const TSSignalStrengthView& chart = window().graphTabs().signalStrengthView();
    EXPECT_EQ(chart.networks().size(), 2U);
    EXPECT_EQ(chart.referenceTime(), clock.now());
    EXPECT_FALSE(chart.itemHighlightEnabled());

    table().setCurrentIndex(table().model()->index(0, 0));
    EXPECT_TRUE(chart.itemHighlightEnabled());
    EXPECT_EQ(chart.networks().back()->ssid(), QStringLiteral("Alpha"));
    table().clearSelection();
    EXPECT_FALSE(chart.itemHighlightEnabled());

    tick();
    EXPECT_EQ(chart.referenceTime(), clock.now());
}

TEST_F(AppDelegateTest, TellsInTheSpectrumWhatTheListHasColumnsFor)
{
    launch();
    const TSSpectrumView& spectrum = window().graphTabs().spectrumView();
    QMenu columns;
    table().addColumnItems(columns);
    const auto show = [&](QStringView identifier, bool shown) {
        const QString title = localized(columnWithIdentifier(identifier)->title);
        for (QAction* item : columns.actions()) {
            if (item->text() == title)
                item->setChecked(shown);
        }
    };
    for (const bool shown : {true, false}) {
        show(u"ANNOTATIONS", shown);
        show(u"DEVICE_NAME", !shown);
        EXPECT_EQ(spectrum.displayAnnotations(), shown);
        EXPECT_EQ(spectrum.displayDeviceName(), !shown);
    }
    window().close();
    attachStore();
    launch(); // as the header was left
    EXPECT_FALSE(window().graphTabs().spectrumView().displayAnnotations());
    EXPECT_TRUE(window().graphTabs().spectrumView().displayDeviceName());
}

TEST_F(AppDelegateTest, SelectsTheNetworkWhoseBarIsClicked)
{
    launch();
    engineScans({named("0:0:0:0:0:1", "Beta"), named("0:0:0:0:0:2", "Alpha")});
    table().setCurrentIndex(table().model()->index(0, 0));
    TSNetworkDetailsView& chart = window().graphTabs().networkDetails().chart();
    ASSERT_EQ(chart.network()->ssid(), QStringLiteral("Alpha"));
    Q_EMIT chart.userDidPickNetwork(QStringLiteral("00:00:00:00:00:01"));
    EXPECT_EQ(chart.network()->ssid(), QStringLiteral("Beta"));
    EXPECT_EQ(table().selectionModel()->selectedRows().size(), 1);
}

TEST_F(AppDelegateTest, ChecksTheStoredIntervalAndScansAtItsOwnPace)
{
    Defaults::standard().setValue(DefaultKey::SelectedScanInterval, 8);
    launch();
    const QList<QAction*> items = delegate->window().menu().intervalMenu().actions();
    QStringList checked;
    for (const QAction* item : items) {
        if (item->isChecked())
            checked += item->text();
    }
    EXPECT_EQ(checked, QStringList{QStringLiteral("5 minutes")});

    engineScans({});
    items.first()->trigger();
    EXPECT_TRUE(items.first()->isChecked());
    EXPECT_FALSE(items.last()->isChecked());
    EXPECT_EQ(bodies.size(), 1U) << "no other engine was started";
}

TEST_F(AppDelegateTest, NarrowsTheListByLineKindAndKeys)
{
    launch();
    CWNetwork near = named("02:00:00:00:00:01", "Home");
    near.rssiValue = -40;
    CWNetwork far = named("02:00:00:00:00:02", "Work");
    far.rssiValue = -80;
    engineScans({near, far});
    auto* filter = delegate->window().findChild<FilterField*>();

    QTest::keyClicks(filter, QStringLiteral("home"));
    EXPECT_THAT(names(), ElementsAre("Home"));
    EXPECT_TRUE(delegate->pipeline().filteredColumnIdentifiers().contains(u"SSID"));
    QTest::keyClick(filter, Qt::Key_Escape);
    EXPECT_THAT(names(), ElementsAre("Home", "Work"));

    QTest::keyClick(&delegate->window().networksView(), Qt::Key_5, Qt::AltModifier);
    EXPECT_THAT(names(), ElementsAre("Home"));
    QTest::keyClick(&delegate->window(), Qt::Key_Escape);
    EXPECT_THAT(names(), ElementsAre("Home", "Work"));

    action("&Side View").trigger();
    TSSideView& sideView = delegate->window().sideView();
    const QModelIndex byName = sideView.model()->index(2, 0);
    sideView.setCurrentIndex(sideView.model()->index(1, 0, byName));
    EXPECT_THAT(names(), ElementsAre("Work"));
    EXPECT_EQ(sideView.model()->rowCount(byName), 2) << "it counts what it hides";
    QTest::mouseClick(sideView.viewport(), Qt::LeftButton, {},
                      sideView.visualRect(sideView.model()->index(0, 0)).center());
    EXPECT_THAT(names(), ElementsAre("Home", "Work"));
    sideView.setCurrentIndex(sideView.model()->index(1, 0, byName));
    EXPECT_THAT(names(), ElementsAre("Work"));
    sideView.selectionModel()->select(sideView.currentIndex(),
                                      QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    EXPECT_THAT(names(), ElementsAre("Home", "Work"));
    auto* quickFilter = window().findChild<QComboBox*>(QStringLiteral("QuickFilter"));
    Q_EMIT quickFilter->activated(2); // secure networks
    EXPECT_THAT(names(), ElementsAre());
    EXPECT_EQ(Defaults::standard().integerForKey(DefaultKey::QuickFilterSelectedItem), 2);
}

TEST_F(AppDelegateTest, AsksOnceToTurnWiFiOnAndWithdrawsTheQuestionWhenItIsOn)
{
    launch();
    engineScans({named("0:0:0:0:0:1", "Beta")});
    service.wifi->power = false;
    for (int i = 0; i < 3; ++i)
        tick();
    ASSERT_EQ(sheets().size(), 1);
    EXPECT_EQ(sheets().front()->text(), QStringLiteral("Wi-Fi is off. Do you want to turn it on?"));

    service.wifi->power = true;
    Q_EMIT notifications.powerDidChange();
    settle();
    EXPECT_TRUE(sheets().empty());
    EXPECT_THAT(names(), ElementsAre("Beta")) << "the scan goes on where it was";
}

TEST_F(AppDelegateTest, TurnsWiFiOnWhenTheUserWantsIt)
{
    service.wifi->power = false;
    launch();
    bodies.back()();
    settle();
    ASSERT_EQ(sheets().size(), 1);
    QTest::keyClick(sheets().front(), Qt::Key_Return);
    settle();
    EXPECT_TRUE(service.wifi->power);
    EXPECT_TRUE(sheets().empty());
    EXPECT_TRUE(delegate->scanCycle().isScanning());
}

TEST_F(AppDelegateTest, EndsWithAMessageWhereThereIsNoWiFi)
{
    service.wifi = nullptr;
    launch();
    EXPECT_EQ(netServices.searches, 0);
    EXPECT_FALSE(delegate->scanCycle().isScanning());
    ASSERT_EQ(sheets().size(), 1);
    EXPECT_EQ(sheets().front()->text(), QStringLiteral("Unable to scan for wireless networks."));
    QSignalSpy ends(delegate.get(), &AppDelegate::didTerminate);
    QTest::keyClick(sheets().front(), Qt::Key_Return);
    EXPECT_EQ(ends.size(), 1);
}

TEST_F(AppDelegateTest, TheBarAboveTheTabsLeavesThemRoomOrClosesThem)
{
    launch();
    auto& splitter = dynamic_cast<QSplitter&>(*window().graphTabs().parentWidget());
    const auto drag = [&splitter](int by) {
        QSplitterHandle* bar = splitter.handle(1);
        QTest::mousePress(bar, Qt::LeftButton);
        QTest::mouseMove(bar, bar->rect().center() + QPoint(0, by));
        QTest::mouseRelease(bar, Qt::LeftButton);
        return splitter.sizes().back();
    };
    const int fresh = splitter.sizes().back();
    EXPECT_EQ(drag(40), fresh) << "they are as low as they may be";
    EXPECT_EQ(drag(-30), fresh + 30);
    EXPECT_EQ(drag(50), fresh);
    EXPECT_EQ(drag(300), 0);
    EXPECT_FALSE(action("&Lower Half").isChecked());
    EXPECT_FALSE(window().graphTabs().isEnabled());
    action("&Lower Half").trigger();
    EXPECT_EQ(splitter.sizes().back(), fresh);

    window().resize(1100, 735);
    settle();
    EXPECT_EQ(splitter.sizes().back(), fresh) << "a larger window is for the table";
    EXPECT_EQ(drag(10), fresh) << "and nothing jumps at the first touch";
    EXPECT_EQ(drag(-100), fresh + 100);
    EXPECT_EQ(drag(100), 400);
}

TEST_F(AppDelegateTest, TellsAtTheStartThatNothingCanBeKept)
{
    const QString file = QStringLiteral("/dev/null/tessara.conf");
    Defaults::standard().attach(std::make_unique<QSettings>(file, QSettings::IniFormat));
    launch();
    ASSERT_EQ(sheets().size(), 1);
    EXPECT_TRUE(sheets().front()->informativeText().contains(file));
    EXPECT_FALSE(sheets().front()->informativeText().contains(QStringLiteral("plist")));
    EXPECT_TRUE(delegate->scanCycle().isScanning()) << "it goes on";
}

TEST_F(AppDelegateTest, StoresTheSettingsOnceWhenTheWindowCloses)
{
    Defaults::standard().setValue(DefaultKey::SignalStrengthThreshold, -70);
    launch();
    window().setGeometry(40, 50, 900, 500);
    const int vendor = static_cast<int>(columnWithIdentifier(u"VENDOR") - columnRegistry().data());
    table().setColumnHidden(vendor, true);
    QSignalSpy ends(delegate.get(), &AppDelegate::didTerminate);
    window().close();
    delegate->terminate();
    EXPECT_EQ(ends.size(), 1);
    EXPECT_FALSE(window().isVisible());

    attachStore();
    const Defaults& stored = Defaults::standard();
    EXPECT_TRUE(stored.boolForKey(DefaultKey::RanOnce));
    EXPECT_FALSE(stored.value(DefaultKey::SignalStrengthThreshold).isValid());
    EXPECT_EQ(stored.stringForKey(DefaultKey::LastLaunchedVersion),
              QStringLiteral(TESSARA_VERSION));

    launch();
    EXPECT_EQ(window().size(), QSize(900, 500));
    EXPECT_TRUE(table().isColumnHidden(vendor));
}

TEST_F(AppDelegateTest, ClampsSizesOfTextForGood)
{
    struct Case {
        double stored, clamped;
    };
    for (const Case& c : {Case{25, 18}, Case{4, 9}, Case{13, 13}}) {
        Defaults::standard().setValue(DefaultKey::NetworksViewFontSize, c.stored);
        launch();
        EXPECT_EQ(Defaults::standard().doubleForKey(DefaultKey::NetworksViewFontSize), c.clamped);
        EXPECT_EQ(table().font().pointSizeF(), c.clamped);
        delegate.reset();
    }
}

TEST_F(AppDelegateTest, HidesTheFooterUntilTheFirstDelivery)
{
    launch();
    auto* footer = window().statusBar()->findChild<QWidget*>(QStringLiteral("LeftFooter"));
    ASSERT_NE(footer, nullptr);
    EXPECT_FALSE(footer->isVisible());
    engineScans({named("0:0:0:0:0:1", "Beta"), named("0:0:0:0:0:2", "alpha")});
    EXPECT_TRUE(footer->isVisible());
    EXPECT_EQ(footer->accessibleName(), QStringLiteral("Networks Found: 2, Displayed: 2 (100%)"));
}

TEST_F(AppDelegateTest, ShowsTheNamesThatDevicesTell)
{
    Directories::installed().deviceNames = &deviceNames;
    launch();
    EXPECT_EQ(netServices.searches, 1);
    engineScans({named("0:1c:b3:0:0:2", "Attic")});
    EXPECT_EQ(cell(0, u"DEVICE_NAME"), QString());
    netServices.find(QStringLiteral("Büro"), false);
    netServices.answer({"waMA=raMA=00-1C-B3-00-00-02"});
    tick();
    EXPECT_EQ(cell(0, u"DEVICE_NAME"), QStringLiteral("Büro"));
}

TEST_F(AppDelegateTest, SpeaksOfTheSelectedNetworkAsTheMenuAsks)
{
    Defaults::standard().setValue(DefaultKey::Units, 1);
    launch();
    engineScans({named("0:0:0:0:0:1", "Attic"), named("0:0:0:0:0:2", "Cellar")});
    ASSERT_TRUE(window().isActiveWindow());
    const auto select = [this](const QString& name) {
        table().selectNetworks([&](const TSNetwork& each) { return each.ssid() == name; });
        Q_EMIT table().selectionDidChange();
        clock.advance(0.4);
    };
    auto& speakMenuItem = *window().findChild<QAction*>(QStringLiteral("speakMenuItem"));
    select(QStringLiteral("Attic"));
    EXPECT_FALSE(speakMenuItem.isEnabled());
    EXPECT_THAT(voice.said, ElementsAre()) << "it is off until the user wants it";

    action("Speak the &Signal of the Selected Network").trigger();
    EXPECT_EQ(speakMenuItem.text(), QStringLiteral("Speak &Now"));
    speakMenuItem.trigger();
    EXPECT_THAT(voice.said, ElementsAre("Attic , channel 1, neg 60"));
    EXPECT_EQ(speakMenuItem.text(), QStringLiteral("S&top Speaking"));
    speakMenuItem.trigger();
    EXPECT_FALSE(voice.isSpeaking());
    EXPECT_EQ(speakMenuItem.text(), QStringLiteral("Speak &Now"));

    action("After 10 Seconds").trigger();
    EXPECT_EQ(Defaults::standard().doubleForKey(DefaultKey::SpeakIntervalInSeconds), 10);
    clock.advance(10);
    tick();
    clock.advance(0.4);
    EXPECT_EQ(voice.said.back(), "no change,  neg 60");
    select(QStringLiteral("Cellar"));
    EXPECT_EQ(voice.said.back(), "Cellar , channel 1, neg 60");
    voice.finish();

    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_EQ(voice.said.size(), 4U) << "the user is back, and hears the name again";
    EXPECT_EQ(voice.said.back(), "Cellar , channel 1, neg 60");
}

TEST_F(AppDelegateTest, AColourThatTheUserGivesLasts)
{
    launch();
    engineScans({named("0:0:0:0:0:1", "Attic")});
    tick();
    const QColor before = delegate->scanCycle().networks().front()->color();
    auto& form = window().graphTabs().networkDetails().form();
    const QColor chosen(12, 34, 56);
    ASSERT_NE(before, chosen);
    Q_EMIT form.didSelectColor(delegate->scanCycle().networks().front(), chosen);
    EXPECT_EQ(delegate->scanCycle().networks().front()->color(), chosen);
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("0:0:0:0:0:1");
    EXPECT_EQ(TSNetwork(dictionary, 0).color(), chosen) << "in the next scan too";
}

TEST_F(AppDelegateTest, TextGrowsAndShrinksWithinBounds)
{
    launch();
    Defaults& defaults = Defaults::standard();
    const auto sizes = [&] {
        return std::vector<double>{defaults.doubleForKey(DefaultKey::NetworksViewFontSize),
                                   defaults.doubleForKey(DefaultKey::AdvancedDetailsViewFontSize),
                                   defaults.doubleForKey(DefaultKey::SideViewFontSize)};
    };
    action("Make Text &Bigger").trigger();
    EXPECT_THAT(sizes(), ElementsAre(12, 13, 12));
    EXPECT_EQ(table().font().pointSizeF(), 12);
    EXPECT_EQ(window().sideView().font().pointSizeF(), 12);
    for (int i = 0; i < 9; ++i)
        action("Make Text &Bigger").trigger();
    EXPECT_THAT(sizes(), ElementsAre(18, 18, 18));
    for (int i = 0; i < 12; ++i)
        action("Make Text Smalle&r").trigger();
    EXPECT_THAT(sizes(), ElementsAre(9, 9, 9));
}

TEST_F(AppDelegateTest, ThePreferencesAreLive)
{
    launch();
    engineScans({named("0:0:0:0:0:1", "Attic")});
    tick();
    EXPECT_TRUE(cell(0, u"RSSI").endsWith(u'%'));
    action("Pr&eferences...").trigger();
    auto* preferences = window().findChild<MASPreferencesWindowController*>();
    ASSERT_NE(preferences, nullptr);
    EXPECT_TRUE(preferences->isVisible());
    auto* units = preferences->findChildren<QComboBox*>().front();
    units->setCurrentIndex(1);
    Q_EMIT units->activated(1);
    settle();
    EXPECT_FALSE(cell(0, u"RSSI").endsWith(u'%'));

    // A wish for quick filters of one's own finds no pane, and changes nothing else.
    Defaults::standard().setValue(DefaultKey::QuickFilterSelectedItem,
                                  static_cast<qint64>(kQuickFilterNotFound));
    preferences->close();
    delegate->applicationWillFinishLaunching();
    EXPECT_TRUE(preferences->isVisible());
    EXPECT_EQ(preferences->windowTitle(), QStringLiteral("General"));
    EXPECT_EQ(Defaults::standard().integerForKey(DefaultKey::QuickFilterSelectedItem), 0);
}
