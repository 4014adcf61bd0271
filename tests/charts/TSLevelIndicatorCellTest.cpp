#include "charts/TSLevelIndicatorCell.h"

#include "support/RecordingPaintDevice.h"

#include <QPainter>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

constexpr QRectF kFrame(100, 50, 135, 22);
constexpr double kIndent = 30; // so that the track is 100 wide: one pixel a per cent

TSLevelIndicatorCell cell(std::int64_t level, std::int64_t levelMax)
{
    return {
        .barLevel = level, .barLevelMax = levelMax, .barColor = Qt::green, .barIndent = kIndent};
}

Painting painted(const TSLevelIndicatorCell& cell)
{
    RecordingPaintDevice device({300, 100});
    QPainter painter(&device);
    cell.drawWithFrame(painter, kFrame, RowHighlight::kNone);
    return device.painting();
}

} // namespace

TEST(TSLevelIndicatorCell, ReachesAsFarAsItsLevelAndPalerAsFarAsItsPeak)
{
    struct Case {
        const char* what;
        std::int64_t level, levelMax;
        double barEnd, peakEnd; // from the start of the track; a peak of 0 is no peak
    };
    const Case cases[] = {
        {"nothing received: the track alone", 0, 0, 0, 0},
        {"out of nothing", 0, 40, 0, 40},
        {"below its peak", 25, 40, 25, 40},
        {"at its peak", 40, 40, 40, 0},
        {"above a peak that is no longer told", 40, 10, 40, 0},
        {"all of the track", 100, 100, 100, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const auto parts = cell(c.level, c.levelMax).geometry(kFrame);
        EXPECT_EQ(parts.bar.left(), kFrame.left() + kIndent);
        EXPECT_EQ(parts.bar.width(), c.barEnd);
        EXPECT_EQ(parts.peak.isEmpty(), c.peakEnd == 0);
        if (c.peakEnd > 0) {
            EXPECT_EQ(parts.peak.left(), parts.bar.right());
            EXPECT_EQ(parts.peak.right() - parts.bar.left(), c.peakEnd);
            EXPECT_EQ(parts.peak.top(), parts.bar.top());
            EXPECT_EQ(parts.peak.bottom(), parts.bar.bottom());
        }
        // The outline shows the whole track and lies inside the cell.
        EXPECT_NEAR(parts.outline.width(), 100, 1);
        EXPECT_TRUE(kFrame.contains(parts.outline));
    }
}

TEST(TSLevelIndicatorCell, ShowsNothingWithoutALevelOrWithoutRoom)
{
    const TSLevelIndicatorCell some = cell(50, 60);
    EXPECT_TRUE(some.geometry({0, 0, kIndent, 22}).outline.isEmpty());
    EXPECT_TRUE(some.geometry({0, 0, 135, 5}).outline.isEmpty());
    EXPECT_TRUE(painted(cell(-1, 60)).items.empty());
}

TEST(TSLevelIndicatorCell, IsPaintedInTheColorOfItsStateAndItsRow)
{
    struct Case {
        bool isGrayedOut;
        RowHighlight highlight;
        double alpha; // of the bar's own colour
        QRgb color;
    };
    const Case cases[] = {
        {false, RowHighlight::kNone, 0.5, 0x8000ff00},
        {false, RowHighlight::kNone, 0, 0xff00ff00},
        {false, RowHighlight::kInactive, 0.5, 0x80555555},
        {false, RowHighlight::kActive, 0.5, 0xb300ffff},
        {true, RowHighlight::kNone, 0.5, 0x80aaaaaa},
        {true, RowHighlight::kInactive, 0.5, 0x4d555555},
        {true, RowHighlight::kActive, 0.5, 0x4dffffff},
    };
    for (const Case& c : cases) {
        TSLevelIndicatorCell bar = cell(30, 60);
        bar.isGrayedOut = c.isGrayedOut;
        bar.barAlpha = c.alpha;
        EXPECT_EQ(bar.color(c.highlight).rgba(), c.color) << std::hex << c.color;
    }
    // The peak is paler, whatever the state.
    const auto fills = painted(cell(30, 60)).painted(Painted::Kind::kFill);
    ASSERT_EQ(fills.size(), 2U);
    EXPECT_EQ(fills[0].color.rgba(), 0xff00ff00);
    EXPECT_EQ(fills[1].color.rgba(), 0x4000ff00U);
}

TEST(TSLevelIndicatorCell, AsksForRoomBesideItsTextWithinBounds)
{
    EXPECT_EQ(TSLevelIndicatorCell::cellSizeForBounds({40, 15}, {500, 20}), QSizeF(100, 15));
    EXPECT_EQ(TSLevelIndicatorCell::cellSizeForBounds({40, 15}, {70, 20}), QSizeF(70, 15));
}
