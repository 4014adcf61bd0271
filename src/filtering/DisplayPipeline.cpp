#include "filtering/DisplayPipeline.h"

#include "filtering/FilterLine.h"
#include "foundation/Defaults.h"
#include "foundation/Localized.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace tessara {

ShownKinds ShownKinds::fromDefaults(const Defaults& defaults)
{
    return {defaults.boolForKey(DefaultKey::ShowSecure),
            defaults.boolForKey(DefaultKey::ShowAdHoc)};
}

void DisplayPipeline::setSortDescriptors(std::vector<SortDescriptor> descriptors)
{
    m_sortDescriptors = std::move(descriptors);
}

void DisplayPipeline::setAssociation(std::optional<Association> association)
{
    m_association = std::move(association);
}

void DisplayPipeline::clearUserHighlighted()
{
    for (const NetworkPtr& network : m_filteredNetworks)
        network->setUserHighlighted(false);
}

void DisplayPipeline::selectQuickFilter(QuickFilter filter)
{
    clearUserHighlighted();
    if (isQuickFilter(filter)) // else it stays
        m_quickFilter = filter;
    filterAndSetNetworks(m_networks);
}

void DisplayPipeline::onFilter(const QString& line)
{
    clearUserHighlighted();
    m_filterString = line;
    filterAndSetNetworks(m_networks);
}

bool DisplayPipeline::isKept(const TSNetwork& network) const
{
    return (m_shownKinds.secure || network.isOpen()) &&
           (m_shownKinds.adHoc || !network.isAdHoc()) &&
           passesQuickFilter(network, m_quickFilter) && m_threshold.passes(network.rssi());
}

bool DisplayPipeline::isAssociated(const TSNetwork& network) const
{
    return m_association && m_association->band == network.channelBand() &&
           m_association->ssid == network.ssid() &&
           m_association->bssid.compare(network.bssid(), Qt::CaseInsensitive) == 0;
}

void DisplayPipeline::filterAndSetNetworks(const NetworkList& networks)
{
    m_networks = networks;
    m_filteredColumnIdentifiers = {};

    NetworkList kept;
    std::ranges::copy_if(networks, std::back_inserter(kept),
                         [this](const NetworkPtr& network) { return isKept(*network); });
    if (!m_filterString.isEmpty())
        kept = filterNetworks(kept, m_filterString, m_filteredColumnIdentifiers);
    m_sideViewNetworks = std::move(kept);

    NetworkList shown;
    std::ranges::copy_if(
        m_sideViewNetworks, std::back_inserter(shown),
        [this](const NetworkPtr& network) { return m_sideViewSelection.contains(*network); });
    for (const NetworkPtr& network : shown)
        network->setAssociated(isAssociated(*network)); // of those that are not shown it stays
    m_filteredNetworks = sortedNetworks(shown, m_sortDescriptors);
    computeCollections();
}

void DisplayPipeline::onViewOrganizeNetworksBy(Defaults& defaults)
{
    defaults.setValue(DefaultKey::OrganizeNetworksBy, 0);
    filterAndSetNetworks(m_networks);
}

/// The step in which networks would be grouped, each group one row (`TSNetworkCollection`). It is
/// empty on purpose: the list is flat, and its rows are the filtered networks themselves.
void DisplayPipeline::computeCollections() {}

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
    std::vector<SortKey> keys; // level by level for each network
    keys.reserve(networks.size() * levels);
    for (const NetworkPtr& network : networks) {
        for (const SortDescriptor& descriptor : descriptors)
            keys.emplace_back(*descriptor.column, descriptor.column->sortKey(*network));
    }

    std::vector<std::size_t> order(networks.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) {
        for (std::size_t level = 0; level < levels; ++level) {
            const int comparison =
                SortKey::compare(keys[a * levels + level], keys[b * levels + level]);
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
