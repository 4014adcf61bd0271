#pragma once

#include "charts/ChartScale.h"
#include "model/TSNetwork.h"

#include <QColor>

#include <optional>

namespace tessara {

/// A sample under the mouse, and the colour of its network.
struct HoverPoint {
    TSDataPoint sample;
    QColor color;

    bool operator==(const HoverPoint&) const = default;
};

/// How the nearest sample is found.
enum class HoverDistance {
    kInPlane,
    kAlongTime, ///< by the time alone
};

/// The sample whose signal lies nearest to a point, and nearer than 50 points; of equals the
/// first found: networks in their order, the newest sample first. It looks only at samples of
/// about the right time, and expects histories to be ordered by time.
std::optional<HoverPoint> nearestSample(const NetworkList& networks, const ChartScale& scale,
                                        const QPointF& mouse, HoverDistance distance);

} // namespace tessara
