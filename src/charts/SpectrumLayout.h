#pragma once

#include "model/TSNetwork.h"

#include <QRectF>

namespace tessara {

/// What of the bands the spectrum may leave out, as set by the user.
struct SpectrumSettings {
    bool hideDFSChannels = false;
    bool hideChannelGraphs = false; ///< the chart of a band without networks

    static SpectrumSettings fromDefaults();
};

/// Where the charts of the bands lie; one that is not shown is empty.
struct SpectrumLayout {
    QRectF rect2Dot4GHz;
    QRectF rect5GHz;
    bool skipsDFS = false;
    /// Between the two charts, covering the frame that they share; empty with one chart.
    QRectF divider;
};

/// Divides a chart among the bands, 2.4 GHz on the left. A network on a channel of radar brings
/// these channels back, and without any network both bands are shown: nothing is ever lost.
SpectrumLayout spectrumLayout(const QRectF& chart, const NetworkList& networks,
                              const SpectrumSettings& settings);

} // namespace tessara
