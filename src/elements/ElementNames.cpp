#include "elements/ElementNames.h"

#include "elements/ValueText.h"

#include <array>

namespace tessara {

namespace {

constexpr ValueText kNameTable[] = {
    {0, "Service Set Identifier"},
    {1, "Supported Rates"},
    {2, "FH Parameter Set"},
    {3, "DS Parameter Set"},
    {4, "CF Parameter Set"},
    {5, "Traffic Indication Map"},
    {6, "IBSS Parameter Set"},
    {7, "Country Information"},
    {8, "Hopping Pattern Parameters"},
    {9, "Hopping Pattern Table"},
    {10, "Request"},
    {11, "QBSS Load"},
    {12, "EDCA Parameter Set"},
    {13, "Traffic Specification"},
    {14, "Traffic Classification"},
    {15, "Schedule"},
    {16, "Challenge Text"},
    {32, "Power Constraint"},
    {33, "Power Capability"},
    {34, "TPC Request"},
    {35, "TPC Report"},
    {36, "Supported Channels"},
    {37, "Channel Switch Announcement"},
    {38, "Measurement Request"},
    {39, "Measurement Response"},
    {40, "Quiet"},
    {41, "IBSS DFS"},
    {42, "ERP Information"},
    {43, "TS Delay"},
    {44, "TCLAS Processing"},
    {45, "HT Capabilities"},
    {46, "QoS Capability"},
    {47, "ERP Information"},
    {48, "RSN Information"},
    {50, "Extended Supported Rates"},
    {51, "AP Channel Report"},
    {52, "Neighbor Report"},
    {53, "RCPI"},
    {54, "Mobility Domain"},
    {55, "Fast BSS Transition"},
    {56, "Timeout Interval"},
    {57, "RIC Data"},
    {58, "DSE Registered Location"},
    {60, "Extended Channel Switch Announcement"},
    {61, "HT Operation"},
    {62, "Seconday Channel Offset"},
    {63, "BSS Average Access Delay"},
    {64, "Antenna"},
    {65, "RSNI"},
    {66, "Measurement Pilot Transmission"},
    {67, "BSS Available Admission Capacity"},
    {69, "Time Advertisement"},
    {70, "RM Enabled Capabilities"},
    {71, "Multiple BSSID"},
    {72, "20/40 BSS Coexistence"},
    {73, "20/40 BSS Intolerant Channel Report"},
    {74, "Overlapping BSS Scan Parameters"},
    {107, "Interworking"},
    {108, "Advertisement Protocol"},
    {111, "Roaming Consortium"},
    {113, "Mesh Configuration"},
    {114, "Mesh ID"},
    {127, "Extended Capabilities"},
    {133, "Cisco CCX1 CKIP + Device Name"},
    {136, "Cisco CCX2"},
    {144, "Extended Schedule"},
    {149, "Cisco Unknown 95"},
    {150, "Cisco Vendor Specific"},
    {173, "Symbol Proprietary"},
    {191, "VHT Capabilities"},
    {192, "VHT Operation"},
    {195, "VHT Transmit Power Envelope"},
};

/// The same by identifier.
constexpr auto kNames = [] {
    std::array<std::string_view, 256> names{};
    for (const auto& [id, name] : kNameTable)
        names[id] = name;
    return names;
}();

struct Description {
    std::uint8_t id;
    const char* text;
};
constexpr Description kDescriptions[] = {
    {0, "Identifies the service set identifier (SSID) or network name."},
    {1, "Identifies the supported and basic (mandatory) data rates."},
    {2, "Identifies the necessary parameters to join a frequency-hopping (FH) 802.11 network."},
    {3, "Identifies the current channel number used by a direct-sequence (DS) 802.11 network."},
    {4, "Identifies the contention-free (CF) options supported by the BSS."},
    {5, "Identifies which sleeping stations have buffered traffic waiting to be picked up."},
    {6, "Identifies the number of time units (TUs) between ATIM frames in an IBSS."},
    {7, "Identifies the constraints of the regulatory domain in which the BSS is located."},
    {10, "Identifies requested information elements."},
    {11, "Identifies information on the cell load from the AP point of view."},
    {12, "Identifies information needed by STAs for proper operation of the QoS capabilities."},
    {32, "Identifies the maximum transmit power to stations."},
    {33, "Identifies the station's minimum and maximum transmit power."},
    {34, "Identifies a request for radio link management information."},
    {35, "Identifies the transmit power and link margin parameters used by stations to adapt its "
         "transmission power."},
    {36, "Identifies supported sub-bands."},
    {37, "Identifies an impending channel change."},
    {40, "Identifies quiet periods to improve quality of measurements for radar detection."},
    {41, "Identifies the station responsible for maintaining DFS information in an IBSS."},
    {42, "Identifies whether stations should use protection mechanisms when other non-802.11g "
         "stations join the network."},
    {45, "Identifies capabilities for High Throughput (HT, 802.11n) operation."},
    {47, "Identifies whether stations should use protection mechanisms when other non-802.11g "
         "stations join the network."},
    {48, "Identifies the RSN parameters for establishing secure communications over an 802.11 "
         "network."},
    {50, "Identifies additional supported and basic (mandatory) data rates."},
    {51, "Identifies a list of channels where a station is likely to find an AP."},
    {52, "Identifies neighboring APs"},
    {54, "Identifies the existence of a mobility domain and the method of fast BSS transition."},
    {61, "Identifies operational parameters of an HT station within a BSS."},
    {62, "Identifies position of the secondary channel relative to the primary channel."},
    {70, "Identifies support for radio measurements."},
    {74, "Identifies values to be used by BSS members when performing overlapping BSS scan "
         "operations."},
    {107, "Identifies interworking service capabilities of a station."},
    {108,
     "Identifies a particular advertisement protocol and its corresponding Advertisement Control."},
    {113, "Identifies the mesh capabilities of the local mesh station."},
    {114, "Identifies the MBSS."},
    {127, "Identifies additional station capabilities."},
    {133, "Identifies proprietary Cisco Client eXtension (CCX) information."},
    {191, "Identifies capabilities for Very High Throughput (VHT, 802.11ac) operation."},
    {192, "Identifies additional VHT operational parameters."},
    {195, "Identifies transmission power limits for available channel bandwidths."},
};

} // namespace

std::optional<std::string_view> nameOfElement(std::uint8_t id)
{
    const std::string_view name = kNames[id];
    return name.empty() ? std::nullopt : std::optional(name);
}

const char* descriptionOfElement(std::uint8_t id)
{
    for (const auto& [known, text] : kDescriptions) {
        if (known == id)
            return text;
    }
    return nullptr;
}

} // namespace tessara
