#include "elements/ManagementElements.h"

namespace tessara {

// Mesh Configuration: 9.4.2.97 --------------------------------------------------------------------

namespace {

constexpr ValueText kPathSelectionProtocols[] = {
    {1, "Hybrid wireless mesh protocol (default)"},
    {255, "Vendor specific path selection protocol"},
};
constexpr ValueText kPathSelectionMetrics[] = {
    {1, "Airtime link metric (default)"},
    {255, "Vendor specific path selection metric"},
};
constexpr ValueText kCongestionControlModes[] = {
    {0, "Congestion control is not activated"},
    {2, "Congestion control signaling protocol"},
    {255, "Vendor specific congestion control protocol"},
};
constexpr ValueText kSynchronizationMethods[] = {
    {1, "Neighbor offset synchronization method (default)"},
    {255, "Vendor specific synchronization method"},
};
constexpr ValueText kAuthenticationProtocols[] = {
    {0, "No authentication method is required"},
    {1, "Simultaneous Authentication of Equals (SAE)"},
    {2, "IEEE 802.1X"},
    {255, "Vendor specific authentication protocol"},
};

/// The bytes that name a method, in their order.
struct Method {
    std::string_view name;
    std::span<const ValueText> texts;
};
constexpr Method kMethods[] = {
    {"Path Selection Protocol", kPathSelectionProtocols},
    {"Path Selection Metric", kPathSelectionMetrics},
    {"Congestion Control Mode", kCongestionControlModes},
    {"Synchronization Method", kSynchronizationMethods},
    {"Authentication Protocol", kAuthenticationProtocols},
};

constexpr auto kMeshFormationInfo = bitFields<8>({
    flag(0x01, "Connected to Mesh Gate", "Yes", "No"),
    decimal(0x7e, "Number of Peerings"),
    flag(0x80, "Connected to Authentication Server", "Yes", "No"),
});

constexpr auto kMeshCapability = bitFields<8>({
    flag(0x01, "Accepting Additional Mesh Peerings", "Yes", "No"),
    flag(0x02, "MCCA Supported", "Yes", "No"),
    flag(0x04, "MCCA Enabled", "Yes", "No"),
    flag(0x08, "Forwarding", "Yes", "No"),
    flag(0x10, "MBCA Enabled", "Yes", "No"),
    flag(0x20, "TBTT Adjusting", "Yes", "No"),
    flag(0x40, "Mesh Power Save Level",
         "At least one of the peer-specific mesh power modes is deep sleep mode",
         "None of the peer-specific mesh power modes is deep sleep mode"),
});

} // namespace

std::span<const Field> parseMeshConfiguration(ElementDecoder& e)
{
    constexpr std::size_t kFormationInfo = std::size(kMethods);
    constexpr std::size_t kCapability = kFormationInfo + 1;
    if (e.length() != kCapability + 1)
        return {};

    FieldList& rows = e.list(e.length());
    for (std::size_t i = 0; i < std::size(kMethods); ++i) {
        rows.push_back(entryWithName(kMethods[i].name, e.text("0x{:02X}", e.u8(i)),
                                     textFor(kMethods[i].texts, e.u8(i))));
    }
    const std::uint8_t formation = e.u8(kFormationInfo);
    const std::uint8_t capability = e.u8(kCapability);
    rows.push_back(entryWithName("Mesh Formation Info", e.text("0x{:02X}", formation), {},
                                 e.bitRows(kMeshFormationInfo, formation)));
    rows.push_back(entryWithName("Mesh Capability", e.text("0x{:02X}", capability), {},
                                 e.bitRows(kMeshCapability, capability)));
    return rows;
}

// Mesh ID: 9.4.2.98 -------------------------------------------------------------------------------

std::span<const Field> parseMeshID(ElementDecoder& e)
{
    const auto name = ElementDecoder::utf8(e.from(0));
    e.setSummary(name.value_or(""));
    return e.fields({entryWithName("Mesh ID", name)});
}

} // namespace tessara
