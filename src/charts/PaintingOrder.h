#pragma once

#include "model/TSNetwork.h"

namespace tessara {

/// Networks in the order in which a chart paints them: those with the weakest average signal
/// first, the selected ones last and so on top.
struct PaintingOrder {
    NetworkList networks;
    /// Of these, the networks that are selected themselves.
    NetworkList highlighted;
};

PaintingOrder paintingOrder(const NetworkList& networks);

/// The one network that is selected itself; none if several are.
NetworkPtr selectedNetwork(const NetworkList& networks);

/// Whether a network is selected, itself or as part of a collection.
bool isHighlighted(const TSNetwork& network);
/// Whether it is part of a collection that is selected.
bool isCollectionHighlighted(const TSNetwork& network);

} // namespace tessara
