#pragma once

#include "model/TSNetwork.h"

#include <cstddef>

namespace tessara {

/// The networks that a bar chart shows beside the selected one.
struct CoNetworks {
    NetworkList networks;  ///< from left to right, at most 16
    std::size_t total = 0; ///< without that limit

    /// A chart of one network alone tells nothing.
    bool willDraw() const { return networks.size() > 1; }
};

/// The selected network first, then the others of its name: those of its band before those of
/// others, the strongest of each first. Of more than 15 others the weakest are left out.
CoNetworks coSSIDNetworks(const NetworkList& networks, const NetworkPtr& selected);

/// The networks on the channel of the selected one, the strongest first.
/// @param networks in painting order: of more than 15 the first ones stay
CoNetworks coChannelNetworks(const NetworkList& networks, const NetworkPtr& selected);

} // namespace tessara
