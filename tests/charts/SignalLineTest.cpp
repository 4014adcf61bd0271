#include "charts/SignalLine.h"

#include "charts/ChartNetworks.h"

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;

namespace {

/// One point a second and a dB; the floor is at 0, the right edge at 300.
const ChartScale kScale{.rect = {0, 0, 300, 100},
                        .topMargin = 10,
                        .units = Units::kDBm,
                        .referenceTime = kReferenceTime,
                        .timescale = 300};

using Samples = std::initializer_list<std::pair<double, std::int64_t>>;

std::vector<LineStretch> lineOf(Samples samples, const LineShape& shape = {})
{
    return sampleLine(chartNetwork(1, samples)->history(), kScale, shape);
}

/// A path as text: M for a beginning, L for a line to, and whole points.
std::string told(const QPainterPath& path)
{
    std::string text;
    for (int i = 0; i < path.elementCount(); ++i) {
        const auto element = path.elementAt(i);
        text += (element.isMoveTo() ? " M" : " L") + std::to_string(std::lround(element.x)) + "," +
                std::to_string(std::lround(element.y));
    }
    return text;
}

} // namespace

TEST(SignalLine, JoinsSamplesFromTheNewestToTheFirstBeyondTheLeftEdge)
{
    const auto line = lineOf({{390, -80},
                              {360, -70},
                              {301, -60},
                              {260, -50},
                              {200, -40},
                              {150, -30},
                              {100, -20},
                              {50, -40},
                              {0, -30}});
    ASSERT_EQ(line.size(), 1U);
    EXPECT_EQ(told(line[0].line), " M300,70 L250,60 L200,80 L150,70 L100,60 L40,50 L-1,40");
    EXPECT_TRUE(line[0].area.isEmpty());
}

TEST(SignalLine, FallsToTheFloorWhereThereIsNoData)
{
    EXPECT_EQ(told(lineOf({{30, -50}, {20, -120}, {10, -120}, {0, -60}})[0].line),
              " M300,40 L290,0 L280,0 L270,50");
}

TEST(SignalLine, BreaksAfterMoreThanAMinuteWithoutASample)
{
    const Samples samples = {{160, -50}, {150, -60}, {90, -70}, {29.9, -80}, {0, -90}};
    const auto line = lineOf(samples);
    ASSERT_EQ(line.size(), 1U); // one stroke
    EXPECT_EQ(told(line[0].line), " M300,10 L270,20 M210,30 L150,40 L140,50");

    const auto areas = lineOf(samples, {.hasArea = true});
    ASSERT_EQ(areas.size(), 2U);
    EXPECT_EQ(told(areas[0].line), " M300,10 L270,20");
    EXPECT_EQ(told(areas[0].area), " M300,10 L270,20 L270,0 L300,0 L300,10");
    EXPECT_EQ(told(areas[1].line), " M210,30 L150,40 L140,50");
    EXPECT_EQ(told(areas[1].area), " M210,30 L150,40 L140,50 L140,0 L210,0 L210,30 L210,30");
}

TEST(SignalLine, ShowsASingleSampleAsAStub)
{
    const auto line = lineOf({{0, -60}}, {.hasArea = true});
    ASSERT_EQ(line.size(), 1U);
    EXPECT_EQ(told(line[0].line), " M297,40 L300,40 M300,40");
    EXPECT_NEAR(line[0].area.boundingRect().right() - 300, 0.075, 1e-9); // a thin area
    EXPECT_TRUE(lineOf({}).empty());
}

TEST(SignalLine, EndsAStretchThatGetsLong)
{
    const auto line = lineOf({{6, -90}, {5, -80}, {4, -70}, {3, -60}, {2, -50}, {1, -40}, {0, -30}},
                             {.hasArea = true, .maxElements = 3});
    ASSERT_EQ(line.size(), 3U);
    EXPECT_EQ(told(line[0].line), " M300,70 L299,60 L298,50 L297,40");
    // The next begins where it ended, with a little overlap, and so do the areas.
    EXPECT_EQ(told(line[1].line), " M297,40 L296,30 L295,20 L294,10");
    EXPECT_NEAR(line[1].line.elementAt(0).x - 297, 0.075, 1e-9);
    EXPECT_EQ(told(line[1].area), " M297,40 L296,30 L295,20 L294,10 L294,0 L297,0 L297,40 L297,40");
}

TEST(SignalLine, VisitsOnlyWhatIsVisible)
{
    // A day of samples before the five minutes that are shown.
    auto network = chartNetwork(1, {});
    for (int age = 86'400; age >= 0; age -= 5)
        network->addDataPoint(sampleAt(age, -60));
    int elements = 0;
    for (const LineStretch& stretch : sampleLine(network->history(), kScale, {}))
        elements += stretch.line.elementCount();
    EXPECT_EQ(elements, 300 / 5 + 2);
}
