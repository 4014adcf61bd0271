#include "charts/RadioMerge.h"

#include <map>
#include <utility>

namespace tessara {

const QStringList* RadioMerge::ssids(const TSNetwork& network) const
{
    const auto accessPoint = m_data.constFind(network.apid());
    if (accessPoint == m_data.cend())
        return nullptr;
    static const QStringList kNone;
    const auto channel = accessPoint->constFind(network.channel());
    return channel == accessPoint->cend() ? &kNone : &*channel;
}

std::optional<QString> RadioMerge::labelOf(const TSNetwork& network) const
{
    const QStringList* names = ssids(network);
    if (!names)
        return std::nullopt;
    return names->size() > 1 && !network.isUserHighlighted() ? network.apid() : network.deviceid();
}

RadioMerge mergeNetworksByRadio(const NetworkList& networks)
{
    RadioMerge merge;
    std::map<std::pair<std::int64_t, QString>, NetworkPtr> byChannel;
    for (const NetworkPtr& network : networks) {
        NetworkPtr& chosen = byChannel[{network->channel(), network->apid()}];
        if (!chosen || network->isAssociated() || network->isUserHighlighted() ||
            chosen->rssi() < network->rssi())
            chosen = network;
        QStringList& ssids = merge.m_data[network->apid()][network->channel()];
        if (const QString ssid = network->ssid(); !ssids.contains(ssid))
            ssids.append(ssid);
    }
    for (const auto& [radio, network] : byChannel)
        merge.m_networks.push_back(network);
    return merge;
}

} // namespace tessara
