#include "charts/SpectrumLayout.h"

#include "charts/ChannelAxis.h"
#include "foundation/Defaults.h"

#include <algorithm>

namespace tessara {

SpectrumSettings SpectrumSettings::fromDefaults()
{
    const Defaults& defaults = Defaults::standard();
    return {.hideDFSChannels = defaults.boolForKey(DefaultKey::HideDFSChannels),
            .hideChannelGraphs = defaults.boolForKey(DefaultKey::HideChannelGraphs)};
}

SpectrumLayout spectrumLayout(const QRectF& chart, const NetworkList& networks,
                              const SpectrumSettings& settings)
{
    constexpr double kDivider = 4;
    bool has2Dot4GHz = false;
    bool has5GHz = false;
    bool hasDFS = false;
    for (const NetworkPtr& network : networks) {
        has2Dot4GHz = has2Dot4GHz || network->is2Dot4GHz();
        has5GHz = has5GHz || network->is5GHz();
        hasDFS = hasDFS || isDFSChannel(network->channel());
    }

    SpectrumLayout layout;
    layout.skipsDFS = settings.hideDFSChannels && !hasDFS;
    if (settings.hideChannelGraphs && has2Dot4GHz != has5GHz) {
        (has2Dot4GHz ? layout.rect2Dot4GHz : layout.rect5GHz) = chart;
        return layout;
    }
    const double part = layout.skipsDFS ? 0.6 : 0.45; // of 2.4 GHz
    layout.rect2Dot4GHz = {chart.x(), chart.y(), part * chart.width() - kDivider / 2,
                           chart.height()};
    layout.divider = {chart.x() + layout.rect2Dot4GHz.width(), chart.y() - 1, kDivider,
                      chart.height() + 2};
    layout.rect5GHz = {layout.divider.x() + kDivider, chart.y(),
                       (1 - part) * chart.width() - kDivider / 2, chart.height()};
    return layout;
}

} // namespace tessara
