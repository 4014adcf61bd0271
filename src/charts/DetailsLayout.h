#pragma once

#include "charts/ChartScale.h"
#include "model/TSNetwork.h"

namespace tessara {

/// The part of a chart below the best signal, or the best ratio, that a network ever had; empty
/// where that lies on the floor.
/// @param metric kSignal or kSNR
QRectF qualityArea(const TSNetwork& network, const ChartScale& scale, Metric metric);

} // namespace tessara
