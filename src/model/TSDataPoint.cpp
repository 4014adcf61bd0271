#include "model/TSDataPoint.h"

#include <algorithm>
#include <limits>

namespace tessara {

namespace {

/// Values of the real world fit with room to spare; a file can hold any number.
template <typename Stored>
Stored clamped(std::int64_t value)
{
    return static_cast<Stored>(std::clamp<std::int64_t>(value, std::numeric_limits<Stored>::min(),
                                                        std::numeric_limits<Stored>::max()));
}

std::int64_t storedNoise(std::int64_t noise)
{
    if (noise == 0)
        return TSDataPoint::kNoiseWithoutMeasurement;
    return std::max(noise, TSDataPoint::kNoData);
}

} // namespace

TSDataPoint::TSDataPoint(std::int64_t rssi, std::int64_t noise, std::int64_t stationCount,
                         std::int64_t channelUtilization, double timestamp)
    : m_timestamp(timestamp)
    , m_stationCount(clamped<std::int32_t>(stationCount))
    , m_rssi(clamped<std::int16_t>(std::max(rssi, kNoData)))
    , m_noise(clamped<std::int16_t>(storedNoise(noise)))
    , m_chUtilization(clamped<std::int16_t>(channelUtilization))
{
}

TSDataPoint::TSDataPoint(const Saved& saved)
    : m_timestamp(saved.timestamp)
    , m_stationCount(clamped<std::int32_t>(saved.stationCount))
    , m_rssi(clamped<std::int16_t>(saved.rssiValue))
    , m_noise(clamped<std::int16_t>(saved.noiseValue))
    , m_chUtilization(clamped<std::int16_t>(saved.chUtilization))
    , m_channel(clamped<std::int16_t>(saved.channel))
{
}

} // namespace tessara
