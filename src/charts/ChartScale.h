#pragma once

#include "model/TSDataPoint.h"

#include <QPointF>
#include <QRectF>

#include <cstdint>

namespace tessara {

// Charts are computed as they are read: points, the origin at the lower left, y growing upward. A
// rectangle's x and y are those of its lower left corner. Painting turns it upright.

/// What of a sample a chart shows.
enum class Metric { kSignal, kNoise, kSNR };

/// In what signals and noises are shown.
enum class Units { kPercent, kDBm };

/// The unit that the setting `Units` means.
constexpr Units unitsOfSetting(std::int64_t setting)
{
    return setting == 0 ? Units::kPercent : Units::kDBm;
}

/// Where samples lie in the rectangle of a chart. The scales do not follow the data: dBm go from
/// -100 to -10, per cent from 0 to 100, ratios of signal to noise from 0 to 90 dB, and time ends
/// at the reference time.
struct ChartScale {
    QRectF rect;
    double topMargin = 0; ///< the part of the height above the top of the scale
    Units units = Units::kPercent;
    double referenceTime = 0;     ///< seconds since 1970, at the right edge
    std::int64_t timescale = 300; ///< seconds from edge to edge

    /// The height that the scale takes.
    double plotHeight() const { return rect.height() - topMargin; }
    double pointsPerSecond() const;

    /// @param timestamp seconds since 1970
    double xFor(double timestamp) const;
    /// The time at an x.
    double timeFor(double x) const;
    /// How far above the floor a value lies, in points; may be negative or beyond the top of the
    /// scale.
    /// @param value in dBm, whatever the units of the chart; a ratio in dB
    double heightFor(std::int64_t value, Metric metric = Metric::kSignal) const;
    /// Never below the floor, where samples without data lie.
    double yFor(const TSDataPoint& sample, Metric metric) const;
    QPointF makePointInRect(const TSDataPoint& sample, Metric metric) const
    {
        return {xFor(sample.timestamp()), yFor(sample, metric)};
    }
};

} // namespace tessara
