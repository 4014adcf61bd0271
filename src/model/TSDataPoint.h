#pragma once

#include <cstdint>

namespace tessara {

// Packed to 20 bytes: the alignment of the time alone would cost a fifth more.
#pragma pack(push, 4)
/// One sample of one network, immutable. Kept small, since a day of scanning holds millions.
class TSDataPoint {
public:
    /// The signal of a sample that holds no data, and the lowest noise that is kept.
    static constexpr std::int64_t kNoData = -120;
    /// The noise that stands in where the driver gave no measurement (0).
    static constexpr std::int64_t kNoiseWithoutMeasurement = -96;
    /// Of counts and percentages that the network does not announce.
    static constexpr std::int64_t kNotAnnounced = -1;

    /// @param rssi, noise dBm; a noise of 0 means that the driver gave no measurement
    /// @param stationCount, channelUtilization as announced, -1 if not; the latter in per cent
    /// @param timestamp time of the scan, seconds since 1970
    TSDataPoint(std::int64_t rssi, std::int64_t noise, std::int64_t stationCount,
                std::int64_t channelUtilization, double timestamp);

    /// The fields of a sample that was saved.
    struct Saved {
        std::int64_t rssiValue = 0;
        std::int64_t noiseValue = 0;
        std::int64_t channel = kNotAnnounced;
        std::int64_t stationCount = kNotAnnounced;
        std::int64_t chUtilization = kNotAnnounced;
        double timestamp = 0;
    };
    /// A saved sample, with its fields as they are, if they are of this world.
    explicit TSDataPoint(const Saved& saved);

    std::int64_t rssiValue() const { return m_rssi; }   ///< dBm, -120 for no data
    std::int64_t noiseValue() const { return m_noise; } ///< dBm
    std::int64_t stationCount() const { return m_stationCount; }
    std::int64_t chUtilization() const { return m_chUtilization; }
    /// The channel at the time of the sample: 0 from a scan, -1 from a file of an old version.
    std::int64_t channel() const { return m_channel; }
    double timestamp() const { return m_timestamp; }

    bool hasData() const { return m_rssi != kNoData; }
    /// Signal over noise in dB; 0 for a sample without data.
    std::int64_t snr() const { return std::int64_t{m_rssi} - m_noise; }

    bool operator==(const TSDataPoint&) const = default;

private:
    double m_timestamp;
    std::int32_t m_stationCount;
    std::int16_t m_rssi;
    std::int16_t m_noise;
    std::int16_t m_chUtilization;
    std::int16_t m_channel = 0;
};
#pragma pack(pop)

} // namespace tessara
