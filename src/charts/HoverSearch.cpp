#include "charts/HoverSearch.h"

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

constexpr double kReach = 50; // points

} // namespace

std::optional<HoverPoint> nearestSample(const NetworkList& networks, const ChartScale& scale,
                                        const QPointF& mouse, HoverDistance distance)
{
    if (scale.pointsPerSecond() <= 0)
        return std::nullopt;
    const double newest = scale.timeFor(mouse.x() + kReach);
    const double oldest = scale.timeFor(mouse.x() - kReach);
    const TSDataPoint* found = nullptr;
    const TSNetwork* owner = nullptr;
    double best = kReach;
    for (const NetworkPtr& network : networks) {
        const auto& history = network->history();
        auto sample = std::ranges::upper_bound(history, newest, {}, &TSDataPoint::timestamp);
        while (sample != history.begin() && (--sample)->timestamp() >= oldest) {
            const QPointF point = scale.makePointInRect(*sample, Metric::kSignal);
            const double dx = point.x() - mouse.x();
            const double dy = distance == HoverDistance::kInPlane ? point.y() - mouse.y() : 0;
            const double apart = std::hypot(dx, dy);
            if (apart < best) {
                best = apart;
                found = &*sample;
                owner = network.get();
            }
        }
    }
    if (!found)
        return std::nullopt;
    return HoverPoint{*found, owner->color()};
}

} // namespace tessara
