#include "filtering/SideViewSelection.h"

#include "foundation/Localized.h"

#include <algorithm>
#include <limits>

namespace tessara {

namespace {

bool isInBand(const TSNetwork& network, const QString& band)
{
    return (band == QLatin1String("2.4 GHz") && network.is2Dot4GHz()) ||
           (band == QLatin1String("5 GHz") && network.is5GHz());
}

bool hasName(const TSNetwork& network, const QString& name)
{
    return network.ssid() == name;
}

bool hasPhyMode(const TSNetwork& network, const QString& mode)
{
    return network.phyMode() == mode;
}

bool hasSecurity(const TSNetwork& network, const QString& security)
{
    const QString mode = network.shortSecurityMode();
    return security == localized("Open") ? mode.isEmpty() : mode == security;
}

bool isOfAccessPoint(const TSNetwork& network, const QString& apid)
{
    return network.apid() == apid;
}

bool isOfVendor(const TSNetwork& network, const QString& vendor)
{
    const auto known = network.vendor();
    return vendor == QLatin1String("Unknown") ? !known : known == vendor;
}

struct SignalLevel {
    QLatin1String name;
    std::int64_t weakest; ///< dBm
    std::int64_t strongest;
};
constexpr std::int64_t kNoLimit = std::numeric_limits<std::int64_t>::max();
constexpr SignalLevel kSignalLevels[] = {
    {QLatin1String("rssi-green"), -70, kNoLimit},
    {QLatin1String("rssi-yellow"), -80, -71},
    {QLatin1String("rssi-orange"), -90, -81},
    {QLatin1String("rssi-red"), -kNoLimit, -91},
};

bool hasSignalLevel(const TSNetwork& network, const QString& name)
{
    const std::int64_t rssi = network.rssi();
    return std::ranges::any_of(kSignalLevels, [&](const SignalLevel& level) {
        return level.name == name && rssi >= level.weakest && rssi <= level.strongest;
    });
}

struct Facet {
    QLatin1String identifier;
    bool (*contains)(const TSNetwork& network, const QString& string);
};
constexpr Facet kFacets[] = {
    {QLatin1String("item-frequencyband"), isInBand},
    {QLatin1String("item-networkname"), hasName},
    {QLatin1String("item-phymode"), hasPhyMode},
    {QLatin1String("item-securitymode"), hasSecurity},
    {QLatin1String("item-accesspoint"), isOfAccessPoint},
    {QLatin1String("item-vendor"), isOfVendor},
    {QLatin1String("item-signallevel"), hasSignalLevel},
};

} // namespace

bool SideViewSelection::contains(const TSNetwork& network) const
{
    const auto* facet = std::ranges::find(kFacets, identifier, &Facet::identifier);
    return facet == std::end(kFacets) || facet->contains(network, string);
}

} // namespace tessara
