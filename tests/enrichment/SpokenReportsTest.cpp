#include "enrichment/SpokenReports.h"

#include "enrichment/RecordingVoice.h"
#include "foundation/Defaults.h"
#include "support/ManualClock.h"

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SpokenReportsTest : public testing::Test {
protected:
    SpokenReportsTest()
    {
        set(DefaultKey::SpeakOn, true);
        set(DefaultKey::SpeakIntervalInSeconds, 10.0);
        set(DefaultKey::Units, 1);
    }
    ~SpokenReportsTest() override
    {
        for (const auto* key : {DefaultKey::SpeakOn, DefaultKey::SpeakIntervalInSeconds,
                                DefaultKey::SpeakWhenOnBackground, DefaultKey::Units})
            Defaults::standard().remove(key);
    }

    static void set(QStringView key, const QVariant& value)
    {
        Defaults::standard().setValue(key, value);
    }

    NetworkPtr network(const char* ssid, int channel) const
    {
        ScanDictionary dictionary;
        dictionary.bssid = QStringLiteral("02:00:00:00:00:01");
        dictionary.ssid = QString::fromUtf8(ssid);
        dictionary.channelNumber = channel;
        return std::make_shared<TSNetwork>(dictionary, clock.now());
    }
    void measure(const NetworkPtr& network, int rssi) const
    {
        network->addDataPoint({rssi, -92, -1, -1, clock.now()});
    }
    /// A call on a new level after all has been said, and what was said then.
    std::vector<std::string> saidAt(int rssi)
    {
        voice.finish();
        measure(home, rssi);
        return speak();
    }
    std::vector<std::string> speak()
    {
        voice.said.clear();
        reports.speak(reports.selectedNetwork());
        return voice.said;
    }

    ManualClock clock;
    RecordingVoice voice;
    bool hasKeyWindow = true;
    SpokenReports reports{voice, clock, [this] { return hasKeyWindow; }};
    const NetworkPtr home = network("Home", 149);
};

} // namespace

TEST_F(SpokenReportsTest, NamesTheNetworkThenTellsItsLevel)
{
    reports.setSelectedNetwork(home);
    EXPECT_THAT(saidAt(-67), ElementsAre("Home , channel 1 49, neg 67"));
    EXPECT_THAT(saidAt(-70), ElementsAre(" neg 70"));
    EXPECT_THAT(saidAt(-70), IsEmpty());
    clock.advance(9.9);
    EXPECT_THAT(saidAt(-70), IsEmpty());
    clock.advance(0.1);
    EXPECT_THAT(saidAt(-70), ElementsAre("no change,  neg 70"));
    EXPECT_THAT(saidAt(-70), IsEmpty()) << "the interval begins anew";
    set(DefaultKey::SpeakIntervalInSeconds, 0.0);
    clock.advance(1000);
    EXPECT_THAT(saidAt(-70), IsEmpty());
    EXPECT_THAT(saidAt(-71), ElementsAre(" neg 71"));
}

TEST_F(SpokenReportsTest, SaysChannelsAndLevelsAsTheyAreHeardBest)
{
    const struct {
        const char* ssid;
        int channel, units, rssi;
        const char* said;
    } cases[] = {
        {"Home", 6, 1, -40, "Home , channel 6, neg 40"},
        {"Home", 36, 0, -85, "Home , channel 36, 20%"},
        {"Home", 100, 0, -95, "Home , channel 1 0, 1%"},
        {"%1 %2", 165, 2, -10, "%1 %2 , channel 1 65, 100%"},
    };
    for (const auto& c : cases) {
        set(DefaultKey::Units, c.units);
        const NetworkPtr selected = network(c.ssid, c.channel);
        measure(selected, c.rssi);
        reports.setSelectedNetwork(selected);
        EXPECT_THAT(speak(), ElementsAre(c.said));
    }
}

TEST_F(SpokenReportsTest, TellsOfANetworkThatGoesOutOfRange)
{
    reports.setSelectedNetwork(home);
    saidAt(-67);
    EXPECT_THAT(saidAt(-120), ElementsAre(" no signal"));
    EXPECT_THAT(saidAt(-120), IsEmpty());
    clock.advance(10);
    EXPECT_THAT(saidAt(-120), ElementsAre(" no signal")) << "and no \"no change\" before it";
    EXPECT_THAT(saidAt(-66), ElementsAre(" neg 66"));

    saidAt(-120);
    reports.setSelectedNetwork(nullptr);
    reports.setSelectedNetwork(home);
    EXPECT_THAT(speak(), ElementsAre("Home , channel 1 49, no signal"));
    measure(home, -60);
    EXPECT_THAT(speak(), ElementsAre(" neg 60")) << "this one may be cut short";
}

TEST_F(SpokenReportsTest, LetsANameBeSaidToItsEndAndCutsANumberShort)
{
    reports.setSelectedNetwork(home);
    saidAt(-67);
    measure(home, -70);
    EXPECT_THAT(speak(), IsEmpty());
    voice.finish();
    EXPECT_THAT(speak(), ElementsAre(" neg 70"));
    measure(home, -71);
    EXPECT_THAT(speak(), ElementsAre(" neg 71"));

    reports.setSelectedNetwork(home);
    EXPECT_TRUE(voice.isSpeaking());
    reports.setSelectedNetwork(nullptr);
    EXPECT_FALSE(voice.isSpeaking());
    EXPECT_THAT(speak(), IsEmpty());
}

TEST_F(SpokenReportsTest, IsSilentWhereItIsNotWantedAndNamesTheNetworkOnReturn)
{
    reports.setSelectedNetwork(home);
    saidAt(-67);
    set(DefaultKey::SpeakOn, false);
    EXPECT_THAT(saidAt(-70), IsEmpty());
    set(DefaultKey::SpeakOn, true);
    EXPECT_THAT(speak(), ElementsAre(" neg 70")) << "it took no note of that level";

    hasKeyWindow = false;
    EXPECT_THAT(saidAt(-71), IsEmpty());
    set(DefaultKey::SpeakWhenOnBackground, true);
    EXPECT_THAT(saidAt(-71), ElementsAre(" neg 71"));

    voice.said.clear();
    hasKeyWindow = true;
    reports.applicationDidBecomeActive();
    EXPECT_THAT(voice.said, IsEmpty()) << "the user has not missed anything";
    set(DefaultKey::SpeakWhenOnBackground, false);
    reports.applicationDidBecomeActive();
    EXPECT_THAT(voice.said, ElementsAre("Home , channel 1 49, neg 71"));
}

TEST_F(SpokenReportsTest, WaitsALittleAndDropsWhatIsNoLongerSelected)
{
    measure(home, -67);
    reports.setSelectedNetwork(home);
    reports.speakSoon();
    clock.advance(0.2);
    EXPECT_THAT(voice.said, IsEmpty());
    reports.setSelectedNetwork(nullptr);
    clock.advance(0.2);
    EXPECT_THAT(voice.said, IsEmpty());

    reports.setSelectedNetwork(home);
    for (int i = 0; i < 10; ++i) {
        reports.speakSoon();
        clock.advance(0.1);
    }
    EXPECT_THAT(voice.said, ElementsAre("Home , channel 1 49, neg 67")) << "in spite of new calls";
    clock.advance(1);
    EXPECT_EQ(clock.activeTimers(), 0U);
    reports.speak(network("Other", 1));
    EXPECT_EQ(voice.said.size(), 1U);
}
