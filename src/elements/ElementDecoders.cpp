#include "elements/ElementDecoders.h"

#include "elements/BaseElements.h"
#include "elements/HTElements.h"
#include "elements/ManagementElements.h"
#include "elements/SecurityElements.h"
#include "elements/VHTElements.h"
#include "elements/VendorElements.h"

#include <array>

namespace tessara {

namespace {

constexpr auto kDecoders = [] {
    std::array<DecodeElement, 256> decoders{};
    decoders.fill(parseGeneric);
    decoders[0] = parseSSID;
    decoders[1] = parseSuppRates;
    decoders[3] = parseDSParameter;
    decoders[5] = parseTIM;
    decoders[6] = parseIBSSParameter;
    decoders[7] = parseCountryInfo;
    decoders[11] = parseQBSSLoad;
    decoders[12] = parseEDCAParamSet;
    decoders[32] = parsePowerConstraint;
    decoders[33] = parsePowerCapability;
    decoders[34] = parseTPCRequest;
    decoders[35] = parseTPCReport;
    decoders[37] = parseChannelSwitchAnnouncement;
    decoders[40] = parseQuiet;
    decoders[42] = parseERPInfo;
    decoders[45] = parseHTCapability;
    decoders[47] = parseERPInfo;
    decoders[48] = parseRSNIE;
    decoders[50] = parseSuppRates;
    decoders[51] = parseAPChannelReport;
    decoders[54] = parseMobilityDomain;
    decoders[61] = parseHTInfo;
    decoders[62] = parseSecondaryChannelOffset;
    decoders[69] = parseTimeAdvertisement;
    decoders[70] = parseRMEnabledCapability;
    decoders[71] = parseMultipleBSSID;
    decoders[107] = parseInterworking;
    decoders[108] = parseAdvertisementProtocol;
    decoders[111] = parseRoamingConsortium;
    decoders[113] = parseMeshConfiguration;
    decoders[114] = parseMeshID;
    decoders[127] = parseExtendedCapabities;
    decoders[133] = parseCiscoCCX1CKIP;
    decoders[150] = parseVendorSpecificIE;
    decoders[191] = parseVHTCapability;
    decoders[192] = parseVHTOperation;
    decoders[195] = parseVHTTPE;
    decoders[221] = parseVendorSpecificIE;
    return decoders;
}();

} // namespace

DecodeElement decoderForElement(std::uint8_t id)
{
    return kDecoders[id];
}

} // namespace tessara
