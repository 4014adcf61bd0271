#pragma once

#include "charts/ChartScale.h"

#include <QString>

#include <vector>

namespace tessara {

/// One time told below a chart.
struct TimeTick {
    double x;          ///< of its line and of the middle of its text
    std::int64_t time; ///< seconds since 1970
    bool hasLine;      ///< none at the very left

    bool operator==(const TimeTick&) const = default;
};

/// The ticks of a time axis.
struct TimeTicks {
    std::vector<TimeTick> ticks; ///< the newest first
    QString format;              ///< of their texts
};

/// Seconds from one tick to the next, so that their texts have room.
std::int64_t tickInterval(double pointsPerSecond, std::int64_t timescale);

/// Ticks at whole multiples of their interval since 1970, so that they move with the data.
TimeTicks timeTicks(const ChartScale& scale);

/// A time of day in the local time zone; empty for a time beyond all reason.
/// @param time seconds since 1970
/// @param format as `QDateTime::toString` reads it
QString timeStringWithFormat(double time, const QString& format);

/// The format that tells a time to the second.
QString exactTimeFormat();

/// Whether a reference time, at most 30 seconds old, is told as "Now".
bool isNow(double referenceTime, double now);

} // namespace tessara
