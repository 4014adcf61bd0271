#include "elements/FieldVisit.h"
#include "elements/JoinedText.h"
#include "elements/ManagementElements.h"

namespace tessara {

// RM Enabled Capabilities: 9.4.2.44 ---------------------------------------------------------------

namespace {

constexpr auto kOctet1 = bitFields<8>({
    flag(0x01, "Link Measurement", "Enabled", "Not enabled"),
    flag(0x02, "Neighbor Report", "Enabled", "Not enabled"),
    flag(0x04, "Parallel Measurements", "Enabled", "Not enabled"),
    flag(0x08, "Repeated Measurements", "Enabled", "Not enabled"),
    flag(0x10, "Beacon Passive Measurement", "Enabled", "Not enabled"),
    flag(0x20, "Beacon Active Measurement", "Enabled", "Not enabled"),
    flag(0x40, "Beacon Table Measurement", "Enabled", "Not enabled"),
    flag(0x80, "Beacon Measurement Reporting Conditions", "Enabled", "Not enabled"),
});

constexpr auto kOctet2 = bitFields<8>({
    flag(0x01, "Frame Measurement", "Enabled", "Not enabled"),
    flag(0x02, "Channel Load Measurement", "Enabled", "Not enabled"),
    flag(0x04, "Noise Histogram Measurement", "Enabled", "Not enabled"),
    flag(0x08, "Statistics Measurement", "Enabled", "Not enabled"),
    flag(0x10, "LCI Measurement", "Enabled", "Not enabled"),
    flag(0x20, "LCI Azimuth", "Enabled", "Not enabled"),
    flag(0x40, "Transmit Stream/Category Measurement", "Enabled", "Not enabled"),
    flag(0x80, "Triggered Transmit Stream/Category Measurement", "Enabled", "Not enabled"),
});

constexpr auto kOctet3 = bitFields<8>({
    flag(0x01, "AP Channel Report", "Enabled", "Not enabled"),
    flag(0x02, "RM MIB", "Enabled", "Not enabled"),
    decimal(0x1c, "Operating Channel Max Measurement Duration"),
    decimal(0xe0, "Non-operating Channel Max Measurement Duration"),
});

constexpr auto kOctet4 = bitFields<8>({
    decimal(0x07, "Measurement Pilot"),
    flag(0x08, "Measurement Pilot Transmission Information", "Enabled", "Not enabled"),
    flag(0x10, "Neighbor Report TSF Offset", "Enabled", "Not enabled"),
    flag(0x20, "RCPI Measurement", "Enabled", "Not enabled"),
    flag(0x40, "RSNI Measurement", "Enabled", "Not enabled"),
    flag(0x80, "BSS Average Access Delay", "Enabled", "Not enabled"),
});

constexpr auto kOctet5 = bitFields<8>({
    flag(0x01, "BSS Available Admission Capacity", "Enabled", "Not enabled"),
    flag(0x02, "Antenna Information", "Enabled", "Not enabled"),
    bits(0xfc, "Reserved"),
});

struct Octet {
    std::string_view name;
    BitFields bitFields;
};
constexpr Octet kOctets[] = {
    {"RM Enabled Capabilities (octet 1)", kOctet1}, {"RM Enabled Capabilities (octet 2)", kOctet2},
    {"RM Enabled Capabilities (octet 3)", kOctet3}, {"RM Enabled Capabilities (octet 4)", kOctet4},
    {"RM Enabled Capabilities (octet 5)", kOctet5},
};

} // namespace

std::span<const Field> parseRMEnabledCapability(ElementDecoder& e)
{
    FieldList& rows = e.list(std::size(kOctets));
    JoinedText enabled(e, ", ");
    for (std::size_t i = 0; i < std::size(kOctets); ++i) {
        const std::uint8_t octet = e.u8(i);
        rows.push_back(e.bitsEntry(kOctets[i].name, kOctets[i].bitFields, octet));
        forEachSubfield(rows.back(), [&enabled](const Field& item) {
            if (item.fieldNotes == "Enabled")
                enabled.add(*item.fieldValue);
        });
    }
    e.setSummary(enabled.isEmpty() ? "No capabilities enabled" : enabled.text());
    return rows;
}

// AP Channel Report: 9.4.2.35 ---------------------------------------------------------------------

std::span<const Field> parseAPChannelReport(ElementDecoder& e)
{
    JoinedText channels(e, ", ");
    for (const std::uint8_t channel : e.from(1))
        channels.add(e.decimal(channel));
    return e.fields({
        entryWithName("Operating Class", e.decimal(e.u8(0))),
        entryWithName("Channel List", channels.text()),
    });
}

} // namespace tessara
