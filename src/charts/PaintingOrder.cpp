#include "charts/PaintingOrder.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace tessara {

PaintingOrder paintingOrder(const NetworkList& networks)
{
    NetworkList sorted = networks;
    std::ranges::stable_sort(sorted, std::ranges::greater(), [](const NetworkPtr& network) {
        return network->rssiStatistic().avg;
    });
    // The others turn round; the selected ones keep the order of their averages.
    PaintingOrder order;
    order.networks.reserve(sorted.size());
    std::copy_if(sorted.rbegin(), sorted.rend(), std::back_inserter(order.networks),
                 [](const NetworkPtr& network) { return !isHighlighted(*network); });
    for (const NetworkPtr& network : sorted) {
        if (!isHighlighted(*network))
            continue;
        order.networks.push_back(network);
        if (network->isUserHighlighted())
            order.highlighted.push_back(network);
    }
    return order;
}

NetworkPtr selectedNetwork(const NetworkList& networks)
{
    const auto isSelected = [](const NetworkPtr& network) { return network->isUserHighlighted(); };
    const auto found = std::ranges::find_if(networks, isSelected);
    if (found == networks.end() || std::any_of(found + 1, networks.end(), isSelected))
        return nullptr;
    return *found;
}

bool isHighlighted(const TSNetwork& network)
{
    return network.isUserHighlighted() || isCollectionHighlighted(network);
}

bool isCollectionHighlighted(const TSNetwork& network)
{
    const auto collection = network.parentCollection();
    return collection && collection->isUserHighlighted();
}

} // namespace tessara
