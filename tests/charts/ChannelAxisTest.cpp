#include "charts/ChannelAxis.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace tessara;

namespace {

/// An axis whose steps are of one length.
ChannelAxis axis(Band band, double step, bool skipsDFS = false)
{
    const int positions = band == Band::k2Dot4GHz ? 18 : skipsDFS ? 61 : 145;
    return {band, {100, 50, positions * step, 300}, skipsDFS};
}

std::vector<int> numbers(const ChannelAxis& axis)
{
    std::vector<int> numbers;
    for (const ChannelTick& tick : axis.ticks()) {
        if (tick.isNumbered)
            numbers.push_back(tick.channel);
    }
    return numbers;
}

double xOf(int channel, const ChannelAxis& axis)
{
    const auto ticks = axis.ticks();
    const auto tick = std::ranges::find(ticks, channel, &ChannelTick::channel);
    return tick == ticks.end() ? -1 : tick->x;
}

} // namespace

TEST(ChannelAxis, PlacesChannelsFiveMegahertzApart)
{
    const ChannelAxis low = axis(Band::k2Dot4GHz, 20);
    EXPECT_EQ(low.step(), 20);
    EXPECT_EQ(xOf(1, low), 150);
    EXPECT_EQ(xOf(13, low), 390);
    EXPECT_EQ(xOf(14, low), 430); // two positions on
    EXPECT_EQ(low.xFor(6, 6), xOf(6, low));

    const ChannelAxis high = axis(Band::k5GHz, 4);
    EXPECT_EQ(xOf(36, high), 130);
    EXPECT_EQ(xOf(165, high), 130 + 129 * 4);
    EXPECT_EQ(high.xFor(50, 36), 130 + 14 * 4);
    EXPECT_EQ(high.ticks().size(), 25U);
}

TEST(ChannelAxis, ClosesTheGapOfTheChannelsOfRadar)
{
    const ChannelAxis folded = axis(Band::k5GHz, 8, true);
    EXPECT_EQ(folded.step(), 8);
    EXPECT_EQ(numbers(folded), (std::vector{36, 40, 44, 48, 149, 153, 157, 161, 165}));
    EXPECT_EQ(xOf(149, folded), xOf(48, folded) + 17 * 8);
    EXPECT_EQ(folded.xFor(149, 149), xOf(149, folded));
    EXPECT_EQ(folded.xFor(50, 36), xOf(48, folded) + 16); // all of a shape stays in one piece
    const auto parts = folded.partLabels();
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(parts[1],
              (BandPartLabel{QStringLiteral("UNII-3"), (xOf(149, folded) + xOf(165, folded)) / 2}));
    EXPECT_EQ(axis(Band::k2Dot4GHz, 20, true).ticks().size(), 14U);
}

TEST(ChannelAxis, ThinsOutItsNumbersAsItNarrows)
{
    struct Case {
        Band band;
        double step;
        std::size_t numbers;
    };
    for (const Case& c : {Case{Band::k2Dot4GHz, 12, 14}, Case{Band::k2Dot4GHz, 11.9, 12},
                          Case{Band::k5GHz, 5.5, 25}, Case{Band::k5GHz, 5.4, 17},
                          Case{Band::k5GHz, 4.4, 13}, Case{Band::k5GHz, 2.1, 9}}) {
        SCOPED_TRACE(c.step);
        EXPECT_EQ(numbers(axis(c.band, c.step)).size(), c.numbers);
    }
    EXPECT_EQ(numbers(axis(Band::k5GHz, 2)),
              (std::vector{36, 44, 52, 60, 100, 116, 132, 149, 165}));
}

TEST(ChannelAxis, NamesThePartsOfTheBands)
{
    const ChannelAxis high = axis(Band::k5GHz, 4);
    const auto parts = high.partLabels();
    ASSERT_EQ(parts.size(), 4U);
    EXPECT_EQ(parts[2].name, QStringLiteral("UNII-2 Ext"));
    EXPECT_EQ(parts[2].x, (xOf(100, high) + xOf(144, high)) / 2);
    EXPECT_EQ(axis(Band::k2Dot4GHz, 20).partLabels(),
              (std::vector{BandPartLabel{QStringLiteral("ISM"), 280}}));
}

TEST(ChannelAxis, HoldsTheCentresOfItsBandOnly)
{
    const ChannelAxis low = axis(Band::k2Dot4GHz, 20);
    const ChannelAxis high = axis(Band::k5GHz, 4);
    for (const std::int64_t center : {0, -1, 17, 31, 177})
        EXPECT_FALSE(low.contains(center) || high.contains(center)) << center;
    EXPECT_TRUE(low.contains(1) && low.contains(16) && !low.contains(36));
    EXPECT_TRUE(high.contains(32) && high.contains(176) && !high.contains(14));
}
