#include "shell/LevelBar.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

constexpr QRectF kCell(100, 50, 135, 22);
constexpr double kIndent = 30; // so that the track is 100 wide: one pixel a per cent

LevelBarGeometry geometry(std::int64_t level, std::int64_t levelMax)
{
    return levelBarGeometry(kCell, {level, levelMax, Qt::green, kIndent});
}

} // namespace

TEST(LevelBar, ReachesAsFarAsItsLevelAndPalerAsFarAsItsPeak)
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
        const auto parts = geometry(c.level, c.levelMax);
        EXPECT_EQ(parts.bar.left(), kCell.left() + kIndent);
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
        EXPECT_TRUE(kCell.contains(parts.outline));
    }
}

TEST(LevelBar, ShowsNothingWithoutALevelOrWithoutRoom)
{
    const LevelBar none{-1, -1, Qt::green, kIndent};
    const LevelBar some{50, 60, Qt::green, kIndent};
    EXPECT_TRUE(levelBarGeometry(kCell, none).outline.isEmpty());
    EXPECT_TRUE(levelBarGeometry({0, 0, kIndent, 22}, some).outline.isEmpty());
    EXPECT_TRUE(levelBarGeometry({0, 0, 135, 5}, some).outline.isEmpty());

    QImage image(200, 100, QImage::Format_ARGB32);
    image.fill(Qt::white);
    const QImage blank = image;
    QPainter painter(&image);
    paintLevelBar(painter, kCell, none);
    painter.end();
    EXPECT_EQ(image, blank);
}

TEST(LevelBar, PaintsLevelPeakAndTrackInFallingStrength)
{
    QImage image(300, 100, QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintLevelBar(painter, kCell, {30, 60, QColor(0, 0, 0, 178), kIndent});
    painter.end();
    const auto darkness = [&](int percent) {
        return 255 - qGray(image.pixel(static_cast<int>(kCell.left() + kIndent) + percent, 60));
    };
    EXPECT_GT(darkness(15), darkness(45));
    EXPECT_GT(darkness(45), darkness(80));
    EXPECT_EQ(darkness(80), 0);
}
