#include "model/NetworkColors.h"

#include <gtest/gtest.h>

#include <set>

using namespace tessara;

TEST(NetworkColors, GivesNineNamedColoursAndThenVariationsOfThem)
{
    double random = 0.25;
    NetworkColors colors([&random] { return random; });
    std::set<QRgb> named;
    for (int i = 0; i < 9; ++i)
        named.insert(colors.next().rgba());
    EXPECT_EQ(named.size(), 9U);

    // Blue stands at two thirds of the circle: a quarter on, and with 0.25 + 0.3 and 0.25 + 0.6.
    const QColor varied = colors.next();
    EXPECT_NEAR(varied.hsvHueF(), 0.916, 0.002);
    EXPECT_NEAR(varied.hsvSaturationF(), 0.55, 0.01);
    EXPECT_NEAR(varied.valueF(), 0.85, 0.01);

    // At both ends of the random range every colour is one.
    for (const double end : {0.0, 1.0}) {
        random = end;
        for (int i = 0; i < 18; ++i)
            EXPECT_TRUE(colors.next().isValid());
    }
}
