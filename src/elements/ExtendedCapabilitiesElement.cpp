#include "elements/ManagementElements.h"

#include <algorithm>

namespace tessara {

namespace {

// 9.4.2.26, table 9-153, eight bits of it in each octet.

constexpr ValueText kServiceIntervals[] = {{0, "5 ms"},  {1, "10 ms"}, {2, "15 ms"}, {3, "20 ms"},
                                           {4, "25 ms"}, {5, "30 ms"}, {6, "35 ms"}, {7, "40 ms"}};
constexpr auto kOctet1 = bitFields<8>({
    flag(0x01, "20/40 BSS Coexistence Management Support", "Supported", "Not supported"),
    flag(0x02, "On-Demand Beacon", "Supported", "Not supported"),
    flag(0x04, "Extended Channel Switching", "Supported", "Not supported"),
    flag(0x08, "WAVE Indication", "Supported", "Not supported"),
    flag(0x10, "PSMP Capability", "Supported", "Not supported"),
    bits(0x20, "Reserved"),
    flag(0x40, "S-PSMP Support", "Supported", "Not supported"),
    flag(0x80, "Event", "Supported", "Not supported"),
});

constexpr auto kOctet2 = bitFields<8>({
    flag(0x01, "Diagnostics", "Supported", "Not supported"),
    flag(0x02, "Multicast Diagnostics", "Supported", "Not supported"),
    flag(0x04, "Location Tracking", "Supported", "Not supported"),
    flag(0x08, "FMS", "Supported", "Not supported"),
    flag(0x10, "Proxy ARP Service", "Supported", "Not supported"),
    flag(0x20, "Collocated Interference Reporting", "Supported", "Not supported"),
    flag(0x40, "Civic Location", "Supported", "Not supported"),
    flag(0x80, "Geospatial Location", "Supported", "Not supported"),
});

constexpr auto kOctet3 = bitFields<8>({
    flag(0x01, "TFS", "Supported", "Not supported"),
    flag(0x02, "WNM-Speep Mode", "Supported", "Not supported"),
    flag(0x04, "TIM Broadcast", "Supported", "Not supported"),
    flag(0x08, "BSS Transition", "Supported", "Not supported"),
    flag(0x10, "QoS Traffic Capability", "Supported", "Not supported"),
    flag(0x20, "AC Station Count", "Supported", "Not supported"),
    flag(0x40, "Multiple BSSID", "Supported", "Not supported"),
    flag(0x80, "Timing Measurement", "Supported", "Not supported"),
});

constexpr auto kOctet4 = bitFields<8>({
    flag(0x01, "Channel Usage", "Supported", "Not supported"),
    flag(0x02, "SSID List", "Supported", "Not supported"),
    flag(0x04, "DMS", "Supported", "Not supported"),
    flag(0x08, "UTC TSF Offset", "Supported", "Not supported"),
    flag(0x10, "Peer U-APSD Buffer STA Support", "Supported", "Not supported"),
    flag(0x20, "TDLS Peer PSM Support", "Supported", "Not supported"),
    flag(0x40, "TDLS Channel Switching", "Supported", "Not supported"),
    flag(0x80, "Interworking", "Supported", "Not supported"),
});

constexpr auto kOctet5 = bitFields<8>({
    flag(0x01, "QoS Map", "Supported", "Not supported"),
    flag(0x02, "EBR", "Supported", "Not supported"),
    flag(0x04, "SSPN Interface", "Supported", "Not supported"),
    bits(0x08, "Reserved"),
    flag(0x10, "MSGCF Capability", "Supported", "Not supported"),
    flag(0x20, "TDLS Support", "Supported", "Not supported"),
    flag(0x40, "TDLS Prohibited", "Supported", "Not supported"),
    flag(0x80, "TDLS Channel Switching Prohibited", "Supported", "Not supported"),
});

constexpr auto kOctet6 = bitFields<8>({
    flag(0x01, "Rejected Unadmitted Frame", "Supported", "Not supported"),
    value(0x0e, "Service Interval Granularity", kServiceIntervals),
    flag(0x10, "Identifier Location", "Supported", "Not supported"),
    flag(0x20, "U-APSD Coexistence", "Supported", "Not supported"),
    flag(0x40, "WNM-Notification", "Supported", "Not supported"),
    bits(0x80, "Reserved"),
});

constexpr auto kOctet7 = bitFields<8>({
    flag(0x01, "UTF-8 SSID", "SSID is interpreted using UTF-8 encoding",
         "SSID is not interpreted using UTF-8 encoding"),
    bits(0xfe, "Reserved"),
});

constexpr auto kOctet8 = bitFields<8>({
    bits(0x1f, "Reserved"),
    flag(0x20, "TDLS Wider Bandwidth", "Supported", "Not supported"),
    flag(0x40, "Operating Mode Notification", "Supported", "Not supported"),
    bits(0x80, "Max Number of MSDUs in A-MSDU (bit63)"),
});

constexpr auto kOctet9 = bitFields<8>({
    bits(0x01, "Max Number of MSDUs in A-MSDU (bit64)"),
    bits(0xfe, "Reserved"),
});

struct Octet {
    std::string_view name;
    BitFields bitFields;
};
constexpr Octet kOctets[] = {
    {"Extended Capabilities (octet 1)", kOctet1}, {"Extended Capabilities (octet 2)", kOctet2},
    {"Extended Capabilities (octet 3)", kOctet3}, {"Extended Capabilities (octet 4)", kOctet4},
    {"Extended Capabilities (octet 5)", kOctet5}, {"Extended Capabilities (octet 6)", kOctet6},
    {"Extended Capabilities (octet 7)", kOctet7}, {"Extended Capabilities (octet 8)", kOctet8},
    {"Extended Capabilities (octet 9)", kOctet9},
};

} // namespace

std::span<const Field> parseExtendedCapabities(ElementDecoder& e)
{
    // Octets behind the ninth are not shown.
    const std::size_t octets = std::min(e.length(), std::size(kOctets));
    FieldList& rows = e.list(octets);
    for (std::size_t i = 0; i < octets; ++i) {
        const std::uint8_t octet = e.u8(i);
        rows.push_back(e.bitsEntry(kOctets[i].name, kOctets[i].bitFields, octet));
    }
    return rows;
}

} // namespace tessara
