#include "charts/HoverSearch.h"

#include "charts/ChartNetworks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace tessara;

namespace {

const ChartScale kScale{.rect = {0, 0, 300, 100},
                        .topMargin = 10,
                        .units = Units::kDBm,
                        .referenceTime = kReferenceTime,
                        .timescale = 300};

/// The same by a walk over everything.
std::optional<HoverPoint> searchedOneByOne(const NetworkList& networks, const QPointF& mouse)
{
    std::optional<HoverPoint> found;
    double best = 50;
    for (const NetworkPtr& network : networks) {
        const auto& history = network->history();
        for (auto sample = history.rbegin(); sample != history.rend(); ++sample) {
            const QPointF apart = kScale.makePointInRect(*sample, Metric::kSignal) - mouse;
            if (const double distance = std::hypot(apart.x(), apart.y()); distance < best) {
                best = distance;
                found = HoverPoint{*sample, network->color()};
            }
        }
    }
    return found;
}

} // namespace

TEST(HoverSearch, FindsWhatAWalkOverAllSamplesFinds)
{
    std::mt19937 random(7);
    const auto between = [&](int low, int high) {
        return std::uniform_int_distribution(low, high)(random);
    };
    NetworkList networks;
    for (int number = 1; number <= 5; ++number) {
        networks.push_back(chartNetwork(number, {}));
        for (int age = 900; age >= 0; age -= between(1, 40))
            networks.back()->addDataPoint(sampleAt(age, between(-120, -20)));
    }
    int found = 0;
    for (int i = 0; i < 500; ++i) {
        const QPointF mouse(between(-60, 360), between(-20, 140));
        const auto expected = searchedOneByOne(networks, mouse);
        EXPECT_EQ(nearestSample(networks, kScale, mouse, HoverDistance::kInPlane), expected);
        found += expected ? 1 : 0;
    }
    EXPECT_GT(found, 100);
    EXPECT_LT(found, 500);
}

TEST(HoverSearch, ReachesFiftyPointsAndPrefersTheFirstOfEquals)
{
    const NetworkList networks = {chartNetwork(1, {{100, -60}, {80, -60}}),
                                  chartNetwork(2, {{100, -60}})};
    const auto at = [&](double x, double y, HoverDistance distance = HoverDistance::kInPlane) {
        return nearestSample(networks, kScale, {x, y}, distance);
    };
    EXPECT_EQ(at(200, 89.9)->sample.timestamp(), kReferenceTime - 100);
    EXPECT_FALSE(at(200, 90));
    EXPECT_EQ(at(200, 90, HoverDistance::kAlongTime)->sample.timestamp(), kReferenceTime - 100);
    EXPECT_FALSE(at(150, 40, HoverDistance::kAlongTime));
    // The newer of two as near, and the network that comes first.
    EXPECT_EQ(at(210, 40)->sample.timestamp(), kReferenceTime - 80);
    EXPECT_EQ(at(200, 40)->color, networks[0]->color());
}
