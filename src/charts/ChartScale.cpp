#include "charts/ChartScale.h"

#include "model/SignalPercentage.h"

#include <algorithm>

namespace tessara {

namespace {

constexpr double kRangeInDBm = 90; // from -100 to -10
constexpr double kRangeInPercent = 100;
constexpr double kRangeOfRatio = 90; // dB

/// How far below 0 dBm a value lies, as the scale counts it.
std::int64_t attenuation(std::int64_t dBm)
{
    if (dBm > 0)
        return 1;
    return -std::max<std::int64_t>(dBm, -100);
}

} // namespace

double ChartScale::pointsPerSecond() const
{
    return rect.width() / static_cast<double>(std::max<std::int64_t>(timescale, 1));
}

double ChartScale::xFor(double timestamp) const
{
    return rect.x() + rect.width() - pointsPerSecond() * (referenceTime - timestamp);
}

double ChartScale::timeFor(double x) const
{
    return referenceTime - (rect.x() + rect.width() - x) / pointsPerSecond();
}

double ChartScale::heightFor(std::int64_t value, Metric metric) const
{
    if (metric == Metric::kSNR)
        return plotHeight() * static_cast<double>(value) / kRangeOfRatio;
    if (units == Units::kPercent)
        return plotHeight() * static_cast<double>(signalPercentage(value)) / kRangeInPercent;
    return plotHeight() * static_cast<double>(100 - attenuation(value)) / kRangeInDBm;
}

double ChartScale::yFor(const TSDataPoint& sample, Metric metric) const
{
    if (!sample.hasData())
        return rect.y();
    const std::int64_t value = metric == Metric::kSNR     ? sample.snr()
                               : metric == Metric::kNoise ? sample.noiseValue()
                                                          : sample.rssiValue();
    return rect.y() + std::max(heightFor(value, metric), 0.0);
}

} // namespace tessara
