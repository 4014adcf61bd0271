#pragma once

#include "charts/ChannelAxis.h"
#include "charts/ChartScale.h"
#include "charts/WindowScale.h"
#include "model/TSNetwork.h"

#include <QPainterPath>

#include <optional>

namespace tessara {

/// The chart of one band in the spectrum.
struct SpectrumBand {
    ChannelAxis axis;
    ChartScale scale; ///< its rectangle is the axis's
    bool isAlone;     ///< no other band is shown
};

/// The shape of a network over the channels that it occupies; it ends at the edges of the chart.
struct SpectrumShape {
    double center; ///< x of its middle
    double top;    ///< y of its last signal
    QPainterPath area;
    QPainterPath outline; ///< open at the floor
};

/// The channel positions of 5 MHz that a network reaches to on each side of its centre.
int halfWidthInPositions(ChannelWidth width);

/// A bell for a network of DSSS alone (IEEE Std 802.11-2020, clauses 15 and 16), or else the flat
/// top of OFDM.
/// @return none for a network that is not on the band's axis
std::optional<SpectrumShape> spectrumShape(const TSNetwork& network, const SpectrumBand& band,
                                           const WindowScale& window);

} // namespace tessara
