#include "scanning/TSActiveScanEngine.h"

#include "scanning/ScriptedInterface.h"
#include "support/ManualClock.h"

#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessara;
using testing::ElementsAre;

namespace {

constexpr std::nullopt_t kAll = std::nullopt;

/// Runs engines on the test's own thread: the loop ends when a test stops it in a pause.
class EngineTest : public testing::Test {
protected:
    EngineTest()
    {
        // The pause of the loop comes last in a cycle: there the engine is looked at and stopped.
        pause.onSleep = [this](double seconds) {
            if (seconds != TSActiveScanEngine::kScanInterval || !engine || ++loopPauses < cycles)
                return;
            last = engine->results();
            engine->stopEngine();
        };
        wifi->onScan = [this] { clock.advance(sweepTime); };
    }

    /// Runs a number of pauses of 3 s, and returns the BSSIDs that the engine held at the last.
    std::vector<std::string> run(int pauses, std::optional<QString> ssid = {})
    {
        cycles = pauses;
        engine = std::make_shared<TSActiveScanEngine>(
            wifi, std::move(ssid),
            EngineServices{clock, pause, notifications,
                           [](const std::function<void()>& body) { body(); }});
        engine->runEngine();
        std::vector<std::string> bssids;
        if (last) {
            for (const ScanDictionary& dictionary : *last)
                bssids.push_back(dictionary.bssid->toStdString());
        }
        return bssids;
    }

    void associate(const char* bssid, int channel)
    {
        wifi->associatedBSSID = QString::fromLatin1(bssid);
        wifi->associatedSSID = QStringLiteral("Home");
        wifi->channel = CWChannel{channel, channelBandForChannel(channel), ChannelWidth::k80MHz};
    }

    ManualClock clock;
    ManualPause pause{clock};
    NotificationCenter notifications;
    std::shared_ptr<ScriptedInterface> wifi = std::make_shared<ScriptedInterface>();
    std::shared_ptr<TSActiveScanEngine> engine;
    SharedScanResults last;
    double sweepTime = 2.0; ///< seconds that the service takes for a scan
    int loopPauses = 0;
    int cycles = 1;
};

const CWError kBusy{CWError::kUnspecified, QStringLiteral("busy")};
const CWError kTimeout{CWError::kTimeout, QStringLiteral("timed out")};

} // namespace

TEST_F(EngineTest, StartsWithWhatTheServiceHasCachedAndThenSweeps)
{
    wifi->cached = {network("0:0:0:0:0:1"), network("0:0:0:0:0:2", 36)};
    wifi->scans = {{{network("0:0:0:0:0:3")}, {}}};
    QSignalSpy started(&notifications, &NotificationCenter::scanDidStart);
    QSignalSpy ended(&notifications, &NotificationCenter::scanDidEnd);

    EXPECT_THAT(run(2), ElementsAre("0:0:0:0:0:3"));
    EXPECT_EQ(wifi->askedFor.size(), 1U) << "the first scan came from the cache";
    // A scan from the cache takes no time, but never less than a second.
    EXPECT_THAT(pause.sleeps, ElementsAre(1.0, 3.0, 3.0));
    EXPECT_EQ(started.size(), 2);
    EXPECT_EQ(ended.size(), 2);
}

TEST_F(EngineTest, TriesThreeTimesAndThenStoresThatNothingWasFound)
{
    wifi->scans = {{{}, kBusy}, {{}, kBusy}, {{}, kBusy}, {{network("0:0:0:0:0:1")}, {}}};
    EXPECT_THAT(run(4), ElementsAre()); // three pauses between the attempts, one of the loop
    ASSERT_NE(last, nullptr) << "an empty array counts as results";
    EXPECT_EQ(wifi->askedFor.size(), 3U);
    EXPECT_THAT(pause.sleeps, ElementsAre(3.0, 3.0, 3.0, 3.0));
}

TEST_F(EngineTest, KeepsTheResultsOfTheFirstAttemptThatGivesAny)
{
    wifi->scans = {{{}, kBusy}, {{network("0:0:0:0:0:1")}, {}}};
    EXPECT_THAT(run(2), ElementsAre("0:0:0:0:0:1"));
    EXPECT_THAT(wifi->askedFor, ElementsAre(kAll, kAll));
}

TEST_F(EngineTest, TakesTheResultsOfAScanThatWasCutShortAtTheNextAttempt)
{
    wifi->scans = {{{network("0:0:0:0:0:1")}, kTimeout}};
    EXPECT_THAT(run(2), ElementsAre("0:0:0:0:0:1"));
    EXPECT_EQ(wifi->askedFor.size(), 1U) << "what has given networks is not repeated";
    EXPECT_THAT(pause.sleeps, ElementsAre(3.0, 3.0));
}

TEST_F(EngineTest, TakesTheFirstOfTwoResultsOfOneNetwork)
{
    CWNetwork nameless = network("0:0:0:0:0:AB", 6, -40);
    nameless.ssid.reset();
    wifi->scans = {
        {{network("0:0:0:0:0:ab", 1, -50), nameless, network("0:0:0:0:0:ab", 36, -70)}, {}}};
    EXPECT_THAT(run(1), ElementsAre("0:0:0:0:0:ab", "0:0:0:0:0:ab"));
    EXPECT_EQ(last->at(0).rssiValue, -50);
    EXPECT_EQ(last->at(1).rssiValue, -70) << "the same BSSID on the other band is another network";
}

TEST_F(EngineTest, DropsAResultWithoutBSSID)
{
    CWNetwork unknown = network("");
    unknown.bssid.reset();
    wifi->scans = {{{unknown, unknown, network("0:0:0:0:0:1")}, {}}};
    EXPECT_THAT(run(1), ElementsAre("0:0:0:0:0:1"));
}

TEST_F(EngineTest, AsksForTheAssociatedNetworkWhenTheSweepMissedIt)
{
    struct Case {
        const char* what;
        std::optional<const char*> associated;
        CWScan sweep;
        bool asks;
    };
    const Case cases[] = {
        {"not associated", std::nullopt, {{network("0:0:0:0:0:1", 36)}, {}}, false},
        {"zeroes are no association", "00:00:00:00:00:00", {{network("0:0:0:0:0:1")}, {}}, false},
        {"found", "AA:0:0:0:0:1", {{network("aa:0:0:0:0:1", 36)}, {}}, false},
        {"only on the other band", "aa:0:0:0:0:1", {{network("aa:0:0:0:0:1", 6)}, {}}, true},
        {"missing", "aa:0:0:0:0:1", {{network("0:0:0:0:0:1", 36)}, {}}, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        wifi = std::make_shared<ScriptedInterface>();
        wifi->onScan = [this] { clock.advance(sweepTime); };
        if (c.associated)
            associate(*c.associated, 40);
        wifi->scans = {c.sweep};
        loopPauses = 0;
        pause.sleeps.clear();
        run(c.asks ? 2 : 1); // the rest before the directed scan is a pause, too
        EXPECT_EQ(wifi->askedFor.size(), c.asks ? 2U : 1U);
        if (c.asks) {
            EXPECT_EQ(wifi->askedFor.back(), QByteArray("Home"));
            EXPECT_THAT(pause.sleeps, ElementsAre(3.0, 3.0));
        }
    }
}

TEST_F(EngineTest, PutsTheAnswerOfTheDirectedScanFirstAndRestsAfterIt)
{
    associate("aa:0:0:0:0:1", 36);
    sweepTime = 4.0; // long enough: no rest before the directed scan
    wifi->scans = {{{network("0:0:0:0:0:2")}, {}},
                   {{network("aa:0:0:0:0:1", 36), network("0:0:0:0:0:2", 1, -44)}, {}}};
    EXPECT_THAT(run(1), ElementsAre("aa:0:0:0:0:1", "0:0:0:0:0:2", "0:0:0:0:0:2"))
        << "what stands in both halves stands twice";

    // The same engine scans on: it finds the network, and waits 3 s for that once.
    wifi = std::make_shared<ScriptedInterface>();
    wifi->onScan = [this] { clock.advance(sweepTime); };
    associate("aa:0:0:0:0:1", 36);
    wifi->scans = {{{network("0:0:0:0:0:2")}, {}},
                   {}, // the directed scan finds nothing
                   {{network("aa:0:0:0:0:1", 36)}, {}},
                   {{network("aa:0:0:0:0:1", 36)}, {}}};
    pause.sleeps.clear();
    loopPauses = 0;
    EXPECT_THAT(run(4), ElementsAre("aa:0:0:0:0:1"));
    EXPECT_THAT(wifi->askedFor, ElementsAre(kAll, QByteArray("Home"), kAll, kAll));
    EXPECT_THAT(pause.sleeps, ElementsAre(3.0, 3.0, 3.0, 3.0)) << "loop, rest, loop, loop";
}

TEST_F(EngineTest, AfterAnErrorAsksForTheAssociatedNetworkOnlyIfItWasATimeOut)
{
    associate("aa:0:0:0:0:1", 36);
    wifi->scans = {{{}, kBusy}, {{}, kBusy}, {{}, kBusy}, {{network("aa:0:0:0:0:1", 36)}, {}}};
    EXPECT_THAT(run(4), ElementsAre());

    wifi->scans = {
        {{}, kTimeout}, {{}, kTimeout}, {{}, kTimeout}, {{network("aa:0:0:0:0:1", 36)}, {}}};
    loopPauses = 0;
    EXPECT_THAT(run(4), ElementsAre("aa:0:0:0:0:1"));
}

TEST_F(EngineTest, BoundToOneNetworkIgnoresTheCacheAndAsksByName)
{
    wifi->cached = {network("0:0:0:0:0:9")};
    associate("aa:0:0:0:0:1", 36);
    wifi->scans = {{{network("0:0:0:0:0:1")}, {}}};
    EXPECT_THAT(run(1, QStringLiteral("Grüße")), ElementsAre("0:0:0:0:0:1"));
    EXPECT_THAT(wifi->askedFor, ElementsAre(QStringLiteral("Grüße").toUtf8()));
}

TEST_F(EngineTest, WithThePowerOffLooksAgainEachSecondAndKeepsItsResults)
{
    wifi->power = false;
    int looks = 0;
    QSignalSpy ended(&notifications, &NotificationCenter::scanDidEnd);
    pause.onSleep = [&](double) {
        if (++looks == 3)
            engine->stopEngine();
    };
    run(1);
    EXPECT_FALSE(engine->hasResults());
    EXPECT_TRUE(wifi->askedFor.empty());
    EXPECT_THAT(pause.sleeps, ElementsAre(1.0, 1.0, 1.0));
    EXPECT_EQ(ended.size(), 3) << "it goes on notifying";
}

TEST_F(EngineTest, StoppedDuringAScanFinishesItAndEnds)
{
    wifi->onScan = [this] { engine->stopEngine(); };
    wifi->scans = {{{network("0:0:0:0:0:1")}, {}}, {{network("0:0:0:0:0:2")}, {}}};
    associate("aa:0:0:0:0:1", 36);
    QSignalSpy ended(&notifications, &NotificationCenter::scanDidEnd);
    run(99);
    EXPECT_EQ(wifi->askedFor.size(), 1U) << "no directed scan after the stop";
    EXPECT_EQ(ended.size(), 1);
    EXPECT_THAT(pause.sleeps, ElementsAre(1.0, 3.0)) << "the shortest scan, and the loop's pause";
}

TEST_F(EngineTest, EndsWhenTheProgramShutsDown)
{
    pause.shutDown = true;
    run(99);
    EXPECT_FALSE(engine->isRunning());
    EXPECT_EQ(wifi->askedFor.size(), 1U);
}
