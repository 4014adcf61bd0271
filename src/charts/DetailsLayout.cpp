#include "charts/DetailsLayout.h"

namespace tessara {

QRectF qualityArea(const TSNetwork& network, const ChartScale& scale, Metric metric)
{
    const RunningStatistic& values =
        metric == Metric::kSNR ? network.snrStatistic() : network.rssiStatistic();
    return {scale.rect.x(), scale.rect.y(), scale.rect.width(),
            scale.heightFor(values.max, metric)};
}

} // namespace tessara
