#include "charts/ChartNetworks.h"
#include "charts/ChartScale.h"
#include "charts/TimeAxis.h"
#include "charts/ValueAxis.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

#include <limits>

using namespace tessara;
using testing::ElementsAre;

namespace {

/// A chart whose scale is 90 points high and whose seconds are 3 points wide.
ChartScale scale(Units units = Units::kDBm)
{
    return {.rect = {45, 35, 900, 100},
            .topMargin = 10,
            .units = units,
            .referenceTime = kReferenceTime,
            .timescale = 300};
}

ChartScale scaleOfHeight(double height, Units units)
{
    ChartScale result = scale(units);
    result.rect.setHeight(height);
    return result;
}

std::vector<std::string> textsOf(const std::vector<ValueLabel>& labels)
{
    std::vector<std::string> texts;
    for (const ValueLabel& label : labels)
        texts.push_back(label.text.toStdString());
    return texts;
}

} // namespace

TEST(ChartScale, PlacesSamplesByScalesThatDoNotFollowTheData)
{
    struct Case {
        const char* what;
        Units units;
        Metric metric;
        TSDataPoint sample;
        double above; ///< the floor, in points
    };
    const Case cases[] = {
        {"the floor", Units::kDBm, Metric::kSignal, sampleAt(0, -100), 0},
        {"below the floor", Units::kDBm, Metric::kSignal, sampleAt(0, -101), 0},
        {"on the scale", Units::kDBm, Metric::kSignal, sampleAt(0, -55), 45},
        {"the top of the scale", Units::kDBm, Metric::kSignal, sampleAt(0, -10), 90},
        {"above it", Units::kDBm, Metric::kSignal, sampleAt(0, 0), 100},
        {"beyond the possible", Units::kDBm, Metric::kSignal, sampleAt(0, 7), 99},
        {"no data", Units::kDBm, Metric::kSignal, sampleAt(0, -120), 0},
        {"noise", Units::kDBm, Metric::kNoise, sampleAt(0, -50, -91), 9},
        {"noise of no data", Units::kDBm, Metric::kNoise, sampleAt(0, -120, -91), 0},
        {"per cent", Units::kPercent, Metric::kSignal, sampleAt(0, -85), 18},
        {"all of it", Units::kPercent, Metric::kSignal, sampleAt(0, -5), 90},
        {"no data in per cent", Units::kPercent, Metric::kSignal, sampleAt(0, -120), 0},
        {"noise in per cent", Units::kPercent, Metric::kNoise, sampleAt(0, -50, -85), 18},
        {"ratio", Units::kDBm, Metric::kSNR, sampleAt(0, -50, -90), 40},
        {"ratio, whatever the units", Units::kPercent, Metric::kSNR, sampleAt(0, -50, -90), 40},
        {"more noise than signal", Units::kDBm, Metric::kSNR, sampleAt(0, -90, -50), 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_NEAR(scale(c.units).yFor(c.sample, c.metric), 35 + c.above, 1e-9);
    }
}

TEST(ChartScale, EndsWithTheNewestScan)
{
    EXPECT_EQ(scale().xFor(kReferenceTime), 945);
    EXPECT_EQ(scale().xFor(kReferenceTime - 100), 645);
    EXPECT_EQ(scale().xFor(kReferenceTime + 10), 975);
    EXPECT_EQ(scale().timeFor(645), kReferenceTime - 100);
}

TEST(ValueAxis, LabelsMarksFromWeakToStrong)
{
    const auto dBm = valueLabels(scale(), Metric::kSignal, 1, LabelSide::kLeft);
    EXPECT_THAT(textsOf(dBm),
                ElementsAre("-90", "-80", "-70", "-60", "-50", "-40", "-30", "-20", "-10"));
    // A little below its line, so that its middle is on it.
    EXPECT_EQ(dBm.front().origin, QPointF(31, 42));
    EXPECT_EQ(dBm.back().origin, QPointF(31, 122));

    const auto ratio = valueLabels(scale(), Metric::kSNR, 2, LabelSide::kRight);
    EXPECT_THAT(textsOf(ratio), ElementsAre("10", "30", "50", "70", "90"));
    EXPECT_EQ(ratio[1].origin, QPointF(959, 62));

    const auto percent = valueLabels(scale(Units::kPercent), Metric::kSignal, 1, LabelSide::kRight);
    EXPECT_EQ(percent.front().text, QLatin1String("10%"));
    EXPECT_EQ(percent.front().origin, QPointF(962, 41));
    EXPECT_EQ(percent.back().text, QLatin1String("100%"));
    EXPECT_EQ(percent.back().origin, QPointF(964, 122));

    EXPECT_TRUE(valueLabels(scale(), Metric::kNoise, 1, LabelSide::kLeft).empty());
}

TEST(ValueAxis, TellsWeakFromStrongByColor)
{
    struct Case {
        Metric metric;
        Units units;
        const char* colors; ///< red, yellow, green
    };
    const Case cases[] = {
        {Metric::kSignal, Units::kDBm, "rryyggggg"},
        {Metric::kSignal, Units::kPercent, "rrryyygggg"},
        {Metric::kSNR, Units::kDBm, "rrryyyggg"},
    };
    for (const Case& c : cases) {
        std::string colors;
        for (const ValueLabel& label : valueLabels(scale(c.units), c.metric, 1, LabelSide::kLeft)) {
            colors += label.color.red() == 0 ? 'g' : label.color.green() == 0 ? 'r' : 'y';
            EXPECT_NEAR(label.color.alphaF(), 0.8, 0.01);
        }
        EXPECT_EQ(colors, c.colors);
    }
}

TEST(ValueAxis, KeepsFewLabelsInALowChart)
{
    const auto texts = [](double height, Units units, Metric metric) {
        return textsOf(valueLabels(scaleOfHeight(height, units), metric, 1, LabelSide::kLeft));
    };
    EXPECT_THAT(texts(75, Units::kDBm, Metric::kSignal), ElementsAre("-70", "-30"));
    EXPECT_THAT(texts(75, Units::kPercent, Metric::kSignal), ElementsAre("10%", "50%", "90%"));
    EXPECT_THAT(texts(75, Units::kDBm, Metric::kSNR), ElementsAre("30", "70"));
    EXPECT_EQ(texts(75.5, Units::kDBm, Metric::kSignal).size(), 9U);
    // What is left stays on its line.
    EXPECT_EQ(valueLabels(scaleOfHeight(55, Units::kDBm), Metric::kSignal, 1, LabelSide::kLeft)[0]
                  .origin.y(),
              35 + 3 * 5 - 3);
}

TEST(TimeAxis, GivesTimesRoomForTheirTexts)
{
    struct Case {
        double width;
        std::int64_t timescale;
        std::int64_t interval;
        const char* format;
    };
    const Case cases[] = {
        {900, 300, 60, "HH:mm"},     {600, 3600, 600, "HH:mm"},   {1200, 120, 15, "HH:mm:ss"},
        {1200, 121, 30, "HH:mm:ss"}, {1200, 240, 30, "HH:mm:ss"}, {1200, 241, 60, "HH:mm"},
        {200, 300, 120, "HH:mm"},    {90, 300, 240, "HH:mm"},     {700, 7200, 900, "HH:mm"},
        {900, 28800, 3600, "HH:mm"}, {900, 20000, 1800, "HH:mm"}, {300, 28800, 7200, "HH:mm"},
        {1, 28800, 7200, "HH:mm"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.width << " points for " << c.timescale << " s");
        ChartScale chart = scale();
        chart.rect.setWidth(c.width);
        chart.timescale = c.timescale;
        EXPECT_EQ(tickInterval(chart.pointsPerSecond(), c.timescale), c.interval);
        EXPECT_EQ(timeTicks(chart).format, QLatin1String(c.format));
    }
    EXPECT_EQ(tickInterval(-3, 300), 60);
}

TEST(TimeAxis, PutsTicksOnWholeMinutes)
{
    // The reference time is 20 s past a whole minute: 60 points.
    const auto minute = static_cast<std::int64_t>(kReferenceTime) - 20;
    EXPECT_THAT(timeTicks(scale()).ticks,
                ElementsAre(TimeTick{885, minute, true}, TimeTick{705, minute - 60, true},
                            TimeTick{525, minute - 120, true}, TimeTick{345, minute - 180, true},
                            TimeTick{165, minute - 240, true}));
}

TEST(TimeAxis, LeavesOutATickWhereTheChartEnds)
{
    const auto newest = [](double secondsAfterMinute) {
        ChartScale chart = scale();
        chart.referenceTime = kReferenceTime - 20 + secondsAfterMinute;
        return timeTicks(chart).ticks.front();
    };
    // Its x is compared with the width of the chart, not with its right edge.
    EXPECT_EQ(newest(15).x, 900);
    EXPECT_EQ(newest(14).x, 903 - 180);
    // At the left edge a time has no line.
    ChartScale chart = scale();
    chart.referenceTime = kReferenceTime - 20;
    const TimeTick oldest = timeTicks(chart).ticks.back();
    EXPECT_EQ(oldest.x, 45);
    EXPECT_FALSE(oldest.hasLine);
}

TEST(TimeAxis, TellsNoTimesThatMakeNoSense)
{
    ChartScale chart = scale();
    for (const double time : {1e300, -1e18, std::numeric_limits<double>::quiet_NaN()}) {
        chart.referenceTime = time;
        EXPECT_TRUE(timeTicks(chart).ticks.empty());
        EXPECT_TRUE(timeStringWithFormat(time, exactTimeFormat()).isEmpty());
    }
    chart = scale();
    for (const double width : {0.0, -120.0}) {
        chart.rect.setWidth(width);
        EXPECT_TRUE(timeTicks(chart).ticks.empty());
    }
}
