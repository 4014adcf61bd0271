#include "charts/TimeAxis.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessara {

namespace {

constexpr double kAgeOfNow = 30;       // seconds
constexpr double kShareOfText = 0.9;   // of a tick's room
constexpr double kTooFarRight = -0.15; // of the newest tick

/// The finest division of a range of time.
struct TickStep {
    std::int64_t below; ///< seconds of range
    std::int64_t step;  ///< seconds
    bool hasSeconds;
};

constexpr TickStep kTickSteps[] = {
    {121, 15, true}, {241, 30, true}, {std::numeric_limits<std::int64_t>::max(), 60, false}};

/// The intervals from five minutes on, in seconds.
constexpr std::int64_t kLongIntervals[] = {600, 900, 1800, 3600, 7200};
constexpr std::int64_t kLongestExact = 300;

/// Whether a time can be told: a file may hold any number.
bool isTime(double seconds)
{
    constexpr double kFarthest = 1e12;
    return std::abs(seconds) < kFarthest;
}

const TickStep& stepOf(std::int64_t timescale)
{
    return *std::ranges::find_if(kTickSteps,
                                 [timescale](const TickStep& s) { return timescale < s.below; });
}

} // namespace

std::int64_t tickInterval(double pointsPerSecond, std::int64_t timescale)
{
    const std::int64_t step = stepOf(timescale).step;
    constexpr double kLargest = std::numeric_limits<std::int32_t>::max();
    const double room = static_cast<double>(step) / (kShareOfText * pointsPerSecond);
    const auto raw = static_cast<std::int64_t>(std::clamp(room, -kLargest, kLargest));
    const std::int64_t interval = raw - raw % step + step;
    if (interval <= 0)
        return 60;
    if (interval <= kLongestExact)
        return interval;
    const auto* found = std::ranges::lower_bound(kLongIntervals, interval);
    return found == std::end(kLongIntervals) ? kLongIntervals[std::size(kLongIntervals) - 1]
                                             : *found;
}

TimeTicks timeTicks(const ChartScale& scale)
{
    TimeTicks result;
    result.format =
        stepOf(scale.timescale).hasSeconds ? exactTimeFormat() : QStringLiteral("HH:mm");
    const double perSecond = scale.pointsPerSecond();
    if (perSecond <= 0 || !isTime(scale.referenceTime))
        return result;
    const std::int64_t interval = tickInterval(perSecond, scale.timescale);
    const auto end = static_cast<std::int64_t>(scale.referenceTime);
    const std::int64_t sinceNewest = end % interval;
    bool isNewest = true;
    for (std::int64_t elapsed = 0; elapsed <= scale.timescale - sinceNewest; elapsed += interval) {
        const std::int64_t fromLeft = scale.timescale - sinceNewest - elapsed;
        const double x =
            static_cast<float>(static_cast<double>(fromLeft) * perSecond + scale.rect.x());
        // Meant as it stands, without the x of the rectangle: it leaves "Now" its room.
        const bool isKept = !isNewest || (scale.rect.width() - x) * perSecond > kTooFarRight;
        isNewest = false;
        if (isKept)
            result.ticks.push_back({x, end - sinceNewest - elapsed, fromLeft > 0});
    }
    return result;
}

QString timeStringWithFormat(double time, const QString& format)
{
    if (!isTime(time))
        return {};
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(std::floor(time * 1000)))
        .toString(format);
}

QString exactTimeFormat()
{
    return QStringLiteral("HH:mm:ss");
}

bool isNow(double referenceTime, double now)
{
    return now - referenceTime <= kAgeOfNow;
}

} // namespace tessara
