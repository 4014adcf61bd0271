#include "charts/Bubble.h"

#include <QPolygonF>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

constexpr QRectF kChart(45, 35, 880, 300);
constexpr QSizeF kText(50, 12);
const WindowScale kFresh{1, 1};

} // namespace

TEST(Bubble, StaysInTheChartWithItsTextInside)
{
    struct Case {
        const char* where;
        QPointF point;
        QRectF body; ///< without the tip
    };
    const Case cases[] = {
        {"in the middle", {500, 150}, {422, 156, 68, 16}},
        {"at the left", {100, 150}, {110, 156, 68, 16}},
        {"at the top", {500, 320}, {422, 298, 68, 16}},
        {"in the corner", {60, 330}, {70, 308, 68, 16}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.where);
        const BubbleGeometry bubble = bubbleGeometry(kChart, c.point, kText, kFresh);
        EXPECT_EQ(bubble.outline.boundingRect(),
                  QPolygonF({c.body.topLeft(), c.body.bottomRight(), c.point}).boundingRect());
        EXPECT_EQ(QPointF(bubble.outline.elementAt(0)), c.point); // the tip
        EXPECT_TRUE(bubble.outline.contains(c.body.center()));
        // Text stands on its baseline, in the middle.
        EXPECT_EQ(bubble.textOrigin, c.body.center() - QPointF(0, 3));
        EXPECT_EQ(bubble.dot.center(), c.point);
        EXPECT_EQ(bubble.guide.x1(), c.point.x());
    }
}

TEST(Bubble, TurnsExactlyWhereItWouldLeaveTheChart)
{
    // It takes 78 points beside the point and 22 above it.
    const auto center = [](double x, double y) {
        return bubbleGeometry(kChart, {x, y}, kText, kFresh).textOrigin;
    };
    EXPECT_GT(center(45 + 78, 150).x(), 45 + 78);
    EXPECT_LT(center(45 + 78.1, 150).x(), 45 + 78);
    EXPECT_LT(center(500, 335 - 22).y(), 335 - 22);
    EXPECT_GT(center(500, 335 - 22.1).y(), 335 - 22);
}

TEST(Bubble, GrowsWithTheWindowUpToAFifth)
{
    const auto height = [](double scale) {
        return bubbleGeometry(kChart, {500, 150}, kText, {scale, scale}).outline.boundingRect();
    };
    EXPECT_LT(height(0.8).width(), height(1).width());
    EXPECT_EQ(height(1.2), height(3));
    EXPECT_EQ(bubbleFontSize({0, 0}), 9); // without a window
    EXPECT_EQ(bubbleFontSize({1, 1}), 10);
}
