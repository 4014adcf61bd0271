#pragma once

#include "charts/ChartScale.h"

#include <QPainterPath>

#include <deque>
#include <limits>
#include <vector>

namespace tessara {

/// A stretch of a line of samples, and what lies below it.
struct LineStretch {
    QPainterPath line; ///< in one piece, or in several with gaps between
    QPainterPath area; ///< empty where none was asked for
};

/// The shape of a line.
struct LineShape {
    Metric metric = Metric::kSignal;
    /// Areas are wanted; the line then has one stretch for each piece.
    bool hasArea = false;
    int maxElements = std::numeric_limits<int>::max(); ///< a stretch that has more ends there
};

/// The line of the samples that are visible, newest first, and of the first beyond the left edge.
/// Samples more than a minute apart are not joined.
/// @param history oldest first
std::vector<LineStretch> sampleLine(const std::deque<TSDataPoint>& history, const ChartScale& scale,
                                    const LineShape& shape);

} // namespace tessara
