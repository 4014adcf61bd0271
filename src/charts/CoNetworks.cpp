#include "charts/CoNetworks.h"

#include <algorithm>
#include <functional>

namespace tessara {

namespace {

constexpr std::size_t kMaxNetworks = 15;

void sortByRSSI(NetworkList& networks)
{
    std::ranges::stable_sort(networks, std::ranges::greater(),
                             [](const NetworkPtr& network) { return network->rssi(); });
}

void keepFirst(NetworkList& networks)
{
    if (networks.size() > kMaxNetworks)
        networks.resize(kMaxNetworks);
}

} // namespace

CoNetworks coSSIDNetworks(const NetworkList& networks, const NetworkPtr& selected)
{
    const QString ssid = selected->ssid();
    NetworkList others;
    std::ranges::copy_if(networks, std::back_inserter(others), [&](const NetworkPtr& network) {
        return network != selected && !network->isUserHidden() && network->ssid() == ssid;
    });
    CoNetworks result{{selected}, others.size() + 1};
    sortByRSSI(others);
    keepFirst(others);
    const bool isLowFirst = selected->is2Dot4GHz();
    std::ranges::stable_sort(others, [&](const NetworkPtr& a, const NetworkPtr& b) {
        return isLowFirst ? a->channelBand() < b->channelBand()
                          : a->channelBand() > b->channelBand();
    });
    result.networks.insert(result.networks.end(), others.begin(), others.end());
    return result;
}

CoNetworks coChannelNetworks(const NetworkList& networks, const NetworkPtr& selected)
{
    CoNetworks result;
    std::ranges::copy_if(
        networks, std::back_inserter(result.networks), [&](const NetworkPtr& network) {
            return network->channel() == selected->channel() && !network->isUserHidden();
        });
    result.total = result.networks.size();
    // The selected ones are painted last, and so may be left out with the strongest: it is meant
    // so.
    keepFirst(result.networks);
    sortByRSSI(result.networks);
    return result;
}

} // namespace tessara
