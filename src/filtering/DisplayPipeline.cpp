#include "filtering/DisplayPipeline.h"

#include "foundation/Localized.h"

#include <algorithm>
#include <numeric>

namespace tessara {

void DisplayPipeline::setSortDescriptors(std::vector<SortDescriptor> descriptors)
{
    m_sortDescriptors = std::move(descriptors);
}

void DisplayPipeline::setAssociation(std::optional<Association> association)
{
    m_association = std::move(association);
}

void DisplayPipeline::filterAndSetNetworks(const NetworkList& networks)
{
    m_networks = networks;
    for (const NetworkPtr& network : m_networks) {
        network->setAssociated(
            m_association && m_association->band == network->channelBand() &&
            m_association->ssid == network->ssid() &&
            m_association->bssid.compare(network->bssid(), Qt::CaseInsensitive) == 0);
    }
    m_filteredNetworks = sortedNetworks(m_networks, m_sortDescriptors);
}

QString DisplayPipeline::footerText() const
{
    const std::size_t found = m_networks.size();
    const std::size_t displayed = m_filteredNetworks.size();
    return localized("Networks Found: %1, Displayed: %2 (%3%)")
        .arg(found)
        .arg(displayed)
        .arg(found == 0 ? 0 : displayed * 100 / found);
}

NetworkList sortedNetworks(const NetworkList& networks,
                           const std::vector<SortDescriptor>& descriptors)
{
    const std::size_t levels = descriptors.size();
    std::vector<QVariant> keys; // level by level for each network
    keys.reserve(networks.size() * levels);
    for (const NetworkPtr& network : networks) {
        for (const SortDescriptor& descriptor : descriptors)
            keys.push_back(descriptor.column->sortKey(*network));
    }

    std::vector<std::size_t> order(networks.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
        for (std::size_t level = 0; level < levels; ++level) {
            const int comparison = compareSortKeys(
                *descriptors[level].column, keys[a * levels + level], keys[b * levels + level]);
            if (comparison != 0)
                return descriptors[level].ascending == (comparison < 0);
        }
        return false;
    });

    NetworkList sorted;
    sorted.reserve(networks.size());
    for (const std::size_t place : order)
        sorted.push_back(networks[place]);
    return sorted;
}

} // namespace tessara
