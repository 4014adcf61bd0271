#include "charts/DetailsLayout.h"

#include <algorithm>

namespace tessara {

QRectF qualityArea(const TSNetwork& network, const ChartScale& scale, Metric metric)
{
    const RunningStatistic& values =
        metric == Metric::kSNR ? network.snrStatistic() : network.rssiStatistic();
    return {scale.rect.x(), scale.rect.y(), scale.rect.width(),
            std::max(std::min(scale.heightFor(values.max, metric), scale.rect.height()), 0.0)};
}

} // namespace tessara
