#include "scanning/CWNetwork.h"

#include "elements/ElementRun.h"
#include "model/SecurityMode.h"

namespace tessara {

namespace {

constexpr std::uint32_t kMicrosoftOUI = 0x0050F2;
constexpr std::uint8_t kWPAType = 1;

} // namespace

bool CWNetwork::supportsSecurity(CWSecurity security) const
{
    const ElementRun elements(informationElementData);
    return security == CWSecurity::kWEP && privacy && !elements.find(ElementID::kRSN) &&
           !elements.hasVendorElement(kMicrosoftOUI, kWPAType);
}

std::optional<NetworkKey> CWNetwork::key() const
{
    if (!bssid)
        return std::nullopt;
    return NetworkKey{*bssid, wlanChannel.channelBand};
}

ScanDictionary CWNetwork::dictionary() const
{
    const SecurityMode security =
        supportsSecurity(CWSecurity::kWEP) ? SecurityMode::kWEP : SecurityMode::kUnknown;
    ScanDictionary result;
    result.bssid = bssid;
    result.channelNumber = wlanChannel.channelNumber;
    result.ssid = ssid;
    result.rssiValue = rssiValue;
    result.noiseMeasurement = noiseMeasurement;
    result.informationElementData = informationElementData;
    result.ibss = ibss;
    result.beaconInterval = beaconInterval;
    result.phyMode = 0;
    result.securityMode = static_cast<std::int64_t>(security);
    return result;
}

} // namespace tessara
