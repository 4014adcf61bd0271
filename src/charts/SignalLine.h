#pragma once

#include "charts/ChartScale.h"
#include "model/TSNetwork.h"

#include <QPainterPath>
#include <QPen>

#include <deque>
#include <limits>
#include <vector>

namespace tessara {

/// A line of samples in its parts, the newest first.
struct SampleLine {
    /// To be stroked. A stretch may be in several pieces, with gaps between.
    std::vector<QPainterPath> stretches;
    /// What lies below, one for each piece between two gaps; none where none is asked for. It
    /// covers the same without an end at each stretch, where seams would show.
    std::vector<QPainterPath> areas;
};

/// The shape of a line.
struct LineShape {
    Metric metric = Metric::kSignal;
    /// Areas are wanted; the line then has a stretch for each piece.
    bool hasArea = false;
    int maxElements = std::numeric_limits<int>::max(); ///< a stretch that has more ends there
};

/// The line of the samples that are visible, newest first, and on to the first beyond the left
/// edge, where it ends with the chart. Samples more than a minute apart are not joined.
/// @param history oldest first
SampleLine sampleLine(const std::deque<TSDataPoint>& history, const ChartScale& scale,
                      const LineShape& shape);

/// How a line of samples is stroked: dashed where the network is an ad hoc one.
/// @param width points
QPen linePen(const TSNetwork& network, const QColor& color, double width);

} // namespace tessara
