#include "model/TSDataPoint.h"

#include <gtest/gtest.h>

using namespace tessara;

TEST(TSDataPoint, KeepsReadingsInRangeAndStandsInForMissingOnes)
{
    struct Case {
        std::int64_t rssi, noise, storedRSSI, storedNoise;
        bool hasData;
    };
    const Case cases[] = {
        {-65, -90, -65, -90, true},
        {-130, -120, -120, -120, false}, // below the floor there is no data
        {-65, 0, -65, -96, true},        // the driver measured no noise
        {-65, -121, -65, -120, true},
        {-120, -120, -120, -120, false},
        {1'000'000, 1'000'000, 32767, 32767, true}, // only a file can hold such a value
    };
    for (const Case& c : cases) {
        const TSDataPoint sample(c.rssi, c.noise, 7, 40, 1700000000.25);
        EXPECT_EQ(sample.rssiValue(), c.storedRSSI);
        EXPECT_EQ(sample.noiseValue(), c.storedNoise);
        EXPECT_EQ(sample.hasData(), c.hasData);
        EXPECT_EQ(sample.snr(), c.storedRSSI - c.storedNoise);
        EXPECT_EQ(sample.stationCount(), 7);
        EXPECT_EQ(sample.chUtilization(), 40);
        EXPECT_EQ(sample.timestamp(), 1700000000.25);
    }
}
