#include "scanning/ScanCycle.h"

#include "foundation/Defaults.h"
#include "scanning/ScriptedInterface.h"
#include "support/ManualClock.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessara;
using testing::ElementsAre;

namespace {

/// Runs what is queued, and what that queues in turn.
void settle()
{
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

/// Writes down what it is asked and answers when the test says so.
class ScriptedPrompt final : public UserPrompt {
public:
    AlertId beginAlert(const TSAlert& alert, Answer answer) override
    {
        alerts.push_back(alert);
        answers.push_back(std::move(answer));
        return static_cast<AlertId>(alerts.size());
    }
    void endAlert(AlertId alert) override { ended.push_back(alert); }

    std::vector<TSAlert> alerts;
    std::vector<Answer> answers;
    std::vector<AlertId> ended;
};

/// Views that remember.
class RecordingViews final : public ScanCycleViews {
public:
    void filterAndSetNetworks(const NetworkList& networks) override
    {
        calls.push_back("set " + std::to_string(networks.size()));
        shown = networks;
    }
    void prepareAndReload() override { calls.emplace_back("reload"); }
    void configureAll() override { calls.emplace_back("configureAll"); }
    void clearSideViewSelection() override { calls.emplace_back("clearSide"); }
    void setReferenceTime(double time) override { referenceTime = time; }
    void setDisplayOnlyLastSeen(bool only) override
    {
        calls.emplace_back(only ? "onlyLastSeen" : "allSeen");
    }
    void selectAssociatedNetworks() override { ++selections; }
    void updateStateInfo() override { calls.emplace_back("stateInfo"); }
    void updateWindowTitle() override { calls.emplace_back("title"); }
    void validateScanStopItems() override { calls.emplace_back("items"); }
    void setLeftFooterVisible(bool visible) override
    {
        calls.emplace_back(visible ? "footer" : "noFooter");
    }
    void startActivityIndicator() override { active = true; }
    void stopActivityIndicator() override { active = false; }

    std::vector<std::string> calls;
    NetworkList shown;
    double referenceTime = 0;
    int selections = 0;
    bool active = false;
};

/// A cycle whose engine does not run by itself: its thread's body is kept for the test to run.
class CycleTest : public testing::Test {
protected:
    CycleTest() { pause.shutDown = true; } // one round of the loop at each run of the body

    ~CycleTest() override { Defaults::standard().overrideForThisRun(DefaultKey::AutoScan, true); }

    /// One scan of the newest engine, and all that follows on the main thread.
    void engineScans(std::vector<CWNetwork> networks)
    {
        wifi->scans = {{std::move(networks), {}}};
        bodies.back()();
        settle();
    }

    void tick(int count = 1)
    {
        for (int i = 0; i < count; ++i) {
            clock.advance(ScanCycle::kMergeInterval);
            settle();
        }
    }

    ManualClock clock;
    ManualPause pause{clock};
    NotificationCenter notifications;
    ScriptedPrompt prompt;
    RecordingViews views;
    std::shared_ptr<ScriptedInterface> wifi = std::make_shared<ScriptedInterface>();
    std::vector<std::function<void()>> bodies; ///< of the engines, the newest last
    ScanCycle cycle{wifi,
                    {clock, pause, notifications,
                     [this](std::function<void()> body) { bodies.push_back(std::move(body)); }},
                    views,
                    prompt};
};

} // namespace

TEST_F(CycleTest, StartsInOrderAndWaitsForTheFirstResultsBeforeItTicks)
{
    cycle.doStart();
    EXPECT_THAT(views.calls, ElementsAre("onlyLastSeen", "stateInfo", "items", "title", "noFooter",
                                         "clearSide", "set 0", "reload"));
    tick(5);
    EXPECT_EQ(clock.activeTimers(), 0U) << "no ticks before the first scan has ended";

    engineScans({network("0:0:0:0:0:1")});
    EXPECT_EQ(views.shown.size(), 1U);
    EXPECT_EQ(views.calls.back(), "footer");
    EXPECT_EQ(views.selections, 1);
    EXPECT_FALSE(views.active);
    EXPECT_EQ(clock.activeTimers(), 1U);

    // The timer samples on, whatever the engine does.
    tick(3);
    EXPECT_EQ(views.shown.at(0)->history().size(), 4U);
    EXPECT_EQ(views.selections, 1) << "only the first delivery selects";
    EXPECT_DOUBLE_EQ(views.referenceTime, clock.now());
    EXPECT_DOUBLE_EQ(cycle.lastScanTime(), clock.now());
}

TEST_F(CycleTest, StopKeepsTheResultsAndStartClearsThem)
{
    cycle.doStart();
    engineScans({network("0:0:0:0:0:1")});
    views.calls.clear();
    cycle.doStop();
    EXPECT_THAT(views.calls, ElementsAre("allSeen", "title", "configureAll", "items"));
    EXPECT_EQ(clock.activeTimers(), 0U);
    EXPECT_EQ(cycle.networks().size(), 1U);
    EXPECT_FALSE(cycle.isScanning());

    cycle.doStart();
    EXPECT_TRUE(cycle.networks().empty());
    cycle.doStopAndClearResults();
    cycle.doStop(); // once more does no harm
    EXPECT_TRUE(views.shown.empty());
}

TEST_F(CycleTest, TheEndOfAScanAfterTheStopChangesNothing)
{
    cycle.doStart();
    engineScans({network("0:0:0:0:0:1")});
    cycle.doStop();
    Q_EMIT notifications.scanDidEnd(); // of the scan that was under way
    settle();
    tick(3);
    EXPECT_EQ(views.shown.at(0)->history().size(), 1U);
    cycle.doStop();
    EXPECT_EQ(clock.activeTimers(), 0U);
}

TEST_F(CycleTest, AutoStartFollowsTheSettingAndAFileToShow)
{
    for (const auto& [autoScan, showsFile] :
         {std::pair(true, false), {false, false}, {true, true}}) {
        Defaults::standard().overrideForThisRun(DefaultKey::AutoScan, autoScan);
        cycle.setDisableAutoScan(showsFile);
        cycle.doAutoStart();
        EXPECT_EQ(cycle.isScanning(), autoScan && !showsFile);
        cycle.doAutoStart();
        EXPECT_LE(bodies.size(), 1U) << "nothing starts twice";
        cycle.doStop();
    }
}

TEST_F(CycleTest, WithThePowerOffAsksOnceAndLetsNothingAge)
{
    cycle.doStart();
    engineScans({network("0:0:0:0:0:1")});
    wifi->power = false;
    tick(3);
    ASSERT_EQ(prompt.alerts.size(), 1U);
    EXPECT_EQ(prompt.alerts[0].messageText.toStdString(),
              "Wi-Fi is off. Do you want to turn it on?");
    EXPECT_EQ(views.shown.at(0)->history().size(), 1U);

    // Turned on elsewhere: the alert goes, and scanning goes on where it was.
    wifi->power = true;
    Q_EMIT notifications.powerDidChange();
    settle();
    EXPECT_EQ(prompt.ended.size(), 1U);
    EXPECT_EQ(bodies.size(), 1U);
    tick();
    EXPECT_EQ(views.shown.at(0)->history().size(), 2U);
}

TEST_F(CycleTest, TheAnswerToThePowerAlertTurnsWiFiOnOrStops)
{
    cycle.doStart();
    engineScans({network("0:0:0:0:0:1")});
    wifi->power = false;
    tick();
    wifi->powerError = CWError{CWError::kUnspecified, QStringLiteral("blocked by a switch")};
    prompt.answers.back()(TSAlert::kFirstButton);
    EXPECT_TRUE(cycle.isScanning());
    tick();
    ASSERT_EQ(prompt.alerts.size(), 2U) << "it could not be turned on: the question comes again";

    wifi->powerError.reset();
    prompt.answers.back()(TSAlert::kFirstButton);
    EXPECT_TRUE(wifi->power);
    EXPECT_EQ(bodies.size(), 2U) << "a new engine";
    EXPECT_TRUE(cycle.networks().empty());

    wifi->power = false;
    tick(); // the timer of the first start goes on
    ASSERT_EQ(prompt.alerts.size(), 3U);
    prompt.answers.back()(TSAlert::kSecondButton);
    EXPECT_FALSE(cycle.isScanning());
}

TEST_F(CycleTest, AsksNothingWhileTheMachineSleeps)
{
    cycle.doStart();
    engineScans({network("0:0:0:0:0:1")});
    Q_EMIT notifications.willSleep();
    wifi->power = false;
    tick(2);
    EXPECT_TRUE(prompt.alerts.empty());
    wifi->power = true;
    Q_EMIT notifications.powerDidChange(); // awake again
    settle();
    wifi->power = false;
    tick();
    EXPECT_EQ(prompt.alerts.size(), 1U);
}

TEST_F(CycleTest, WithoutAnInterfaceNeverStarts)
{
    ScanCycle without(nullptr, {clock, pause, notifications, [](const std::function<void()>&) {}},
                      views, prompt);
    without.doAutoStart();
    EXPECT_FALSE(without.isScanning());
}
