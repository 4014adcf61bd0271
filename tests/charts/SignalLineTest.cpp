#include "charts/SignalLine.h"

#include "charts/ChartNetworks.h"

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// One point a second and a dB; the floor is at 0, the right edge at 300.
const ChartScale kScale{.rect = {0, 0, 300, 100},
                        .topMargin = 10,
                        .units = Units::kDBm,
                        .referenceTime = kReferenceTime,
                        .timescale = 300};

using Samples = std::initializer_list<std::pair<double, std::int64_t>>;

SampleLine lineOf(Samples samples, const LineShape& shape = {})
{
    return sampleLine(chartNetwork(1, samples)->history(), kScale, shape);
}

/// Paths as text: M for a beginning, L for a line to, and whole points.
std::vector<std::string> told(const std::vector<QPainterPath>& paths)
{
    std::vector<std::string> texts;
    for (const QPainterPath& path : paths) {
        std::string& text = texts.emplace_back();
        for (int i = 0; i < path.elementCount(); ++i) {
            const auto element = path.elementAt(i);
            text += std::string(i > 0 ? " " : "") + (element.isMoveTo() ? "M" : "L") +
                    std::to_string(std::lround(element.x)) + "," +
                    std::to_string(std::lround(element.y));
        }
    }
    return texts;
}

} // namespace

TEST(SignalLine, JoinsSamplesFromTheNewestToTheLeftEdge)
{
    const SampleLine line = lineOf({{390, -80},
                                    {360, -70},
                                    {301, -60},
                                    {260, -50},
                                    {200, -40},
                                    {150, -30},
                                    {100, -20},
                                    {50, -40},
                                    {0, -30}});
    EXPECT_THAT(told(line.stretches),
                ElementsAre("M300,70 L250,60 L200,80 L150,70 L100,60 L40,50 L0,40"));
    EXPECT_THAT(line.areas, IsEmpty());
}

TEST(SignalLine, EndsAtTheEdgesOfTheChart)
{
    // The newest came after the reference time; the ratio of one is beyond all scale.
    std::deque<TSDataPoint> history;
    for (const int age : {310, 270, 210, 150, 90, 30, -30})
        history.push_back(age == 150 ? sampleAt(age, -5, -120) : sampleAt(age, -60, -100));
    const SampleLine line = sampleLine(history, kScale, {.metric = Metric::kSNR, .hasArea = true});
    EXPECT_THAT(told(line.stretches),
                ElementsAre("M300,40 L270,40 L210,40 L161,101 M139,101 L90,40 L30,40 L0,40"));
    ASSERT_EQ(line.areas.size(), 1U);
    EXPECT_EQ(line.areas[0].boundingRect(), QRectF(0, 0, 300, 101));
    for (const QPointF& inside : {QPointF(150, 100), QPointF(1, 39), QPointF(299, 1)})
        EXPECT_TRUE(line.areas[0].contains(inside));
    EXPECT_FALSE(line.areas[0].contains({110, 90}));
}

TEST(SignalLine, FallsToTheFloorWhereThereIsNoData)
{
    EXPECT_THAT(told(lineOf({{30, -50}, {20, -120}, {10, -120}, {0, -60}}).stretches),
                ElementsAre("M300,40 L290,0 L280,0 L270,50"));
}

TEST(SignalLine, BreaksAfterMoreThanAMinuteWithoutASample)
{
    const Samples samples = {{160, -50}, {150, -60}, {90, -70}, {29.9, -80}, {0, -90}};
    EXPECT_THAT(told(lineOf(samples).stretches), // one stroke
                ElementsAre("M300,10 L270,20 M210,30 L150,40 L140,50"));

    const SampleLine line = lineOf(samples, {.hasArea = true});
    EXPECT_THAT(told(line.stretches), ElementsAre("M300,10 L270,20", "M210,30 L150,40 L140,50"));
    EXPECT_THAT(told(line.areas),
                ElementsAre("M300,10 L270,20 L270,0 L300,0 L300,10",
                            "M210,30 L150,40 L140,50 L140,0 L210,0 L210,30 L210,30"));
}

TEST(SignalLine, ShowsASingleSampleAsAStub)
{
    const SampleLine line = lineOf({{0, -60}}, {.hasArea = true});
    EXPECT_THAT(told(line.stretches), ElementsAre("M297,40 L300,40 M300,40"));
    EXPECT_EQ(line.areas.size(), 1U); // a thin one
    EXPECT_THAT(lineOf({}).stretches, IsEmpty());
}

TEST(SignalLine, EndsAStretchThatGetsLong)
{
    const SampleLine line =
        lineOf({{6, -90}, {5, -80}, {4, -70}, {3, -60}, {2, -50}, {1, -40}, {0, -30}},
               {.hasArea = true, .maxElements = 3});
    // The next begins where it ended, with a little overlap.
    EXPECT_THAT(told(line.stretches), ElementsAre("M300,70 L299,60 L298,50 L297,40",
                                                  "M297,40 L296,30 L295,20 L294,10", "M294,10"));
    EXPECT_NEAR(line.stretches[1].elementAt(0).x - 297, 0.075, 1e-9);
    EXPECT_EQ(line.areas.size(), 1U);
}
