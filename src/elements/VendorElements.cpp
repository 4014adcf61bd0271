#include "elements/VendorElements.h"

#include "elements/JoinedText.h"

#include <algorithm>
#include <array>

namespace tessara {

namespace {

struct VendorDecoder {
    std::array<std::uint8_t, 3> oui;
    std::span<const Field> (*decode)(ElementDecoder& e);
};
constexpr VendorDecoder kVendors[] = {
    {{0x00, 0x40, 0x96}, parseVendorCiscoIE},       {{0x00, 0x50, 0xf2}, parseVendorMicrosoftIE},
    {{0x00, 0x0b, 0x86}, parseVendorArubaIE},       {{0x00, 0xa0, 0xf8}, parseVendorZebraIE},
    {{0x00, 0x0c, 0x42}, parseVendorRouterboardIE}, {{0x50, 0x6f, 0x9a}, parseVendorWiFiAllianceIE},
};

std::span<const Field> parseUnknownVendor(ElementDecoder& e)
{
    return e.fields({entryWithName("Vendor Specific Data", e.hexadecimalString(e.from(4)))});
}

Field data(ElementDecoder& e, std::size_t offset)
{
    return entryWithName("Data", e.hexadecimalString(e.from(offset)));
}

} // namespace

std::span<const Field> parseVendorSpecificIE(ElementDecoder& e)
{
    constexpr std::size_t kTypicalRows = 16;
    FieldList& rows = e.list(kTypicalRows);
    rows.push_back(entryWithName("OUI", e.ouiText(0), e.vendorNote(e.from(0))));
    rows.push_back(entryWithName("Vendor Specific Type", e.decimal(e.u8(3))));
    const auto vendor = std::ranges::find_if(kVendors, [&e](const VendorDecoder& known) {
        return std::ranges::equal(known.oui, e.bytes(0, known.oui.size()));
    });
    const auto decode = vendor != std::end(kVendors) ? vendor->decode : parseUnknownVendor;
    for (const Field& row : decode(e))
        rows.push_back(row);
    return rows;
}

// Cisco -------------------------------------------------------------------------------------------

std::span<const Field> parseVendorCiscoIE(ElementDecoder& e)
{
    const std::uint8_t type = e.u8(3);
    switch (type) {
    case 0: {
        const std::string_view level = e.text("{} dBm", e.i8(4));
        e.setSummary(e.concatenated({"DTPC; Power Level: ", level}));
        return e.fields({
            entryWithName("Type", "DTPC", "Dynamic Transmit Power Control"),
            entryWithName("Power Level", level,
                          e.concatenated({"0x", e.hexadecimalString(e.from(4))})),
        });
    }
    case 3: {
        const std::string_view version = e.decimal(e.u8(4));
        e.setSummary(e.concatenated({"CCX Version ", version}));
        return e.fields({
            entryWithName("Type", "CCX Version"),
            entryWithName("CCX Version", version),
        });
    }
    case 14:
        e.setSummary("QBSS V2 - CCA");
        return e.fields({entryWithName("Type", "QBSS V2 - CCA"), data(e, 4)});
    case 20: {
        const std::string_view state = (e.u8(4) & 0x01) != 0 ? "Enabled" : "Disabled";
        e.setSummary(e.concatenated({"Client MFP ", state}));
        return e.fields({
            entryWithName("Type", "Client MFP", "Client Management Frame Protection"),
            entryWithName("Client MFP", state),
        });
    }
    default:
        e.setSummary(e.text("Unknown ({})", type));
        return e.fields({entryWithName("Type", "Unknown"), data(e, 4)});
    }
}

std::span<const Field> parseCiscoCCX1CKIP(ElementDecoder& e)
{
    // The name has 16 bytes; those behind its end are part of it.
    const auto name = ElementDecoder::ascii(e.bytes(10, 16));
    const std::string_view stations = e.decimal(e.u8(26));
    e.setSummary(e.text("Device Name: {}, Stations: {}", name.value_or(kNullText), stations));
    return e.fields({
        entryWithName("Unknown 1", e.hexadecimalString(e.bytes(0, 10))),
        entryWithName("Device Name", name),
        entryWithName("Stations", stations),
        entryWithName("Unknown 2", e.hexadecimalString(e.bytes(27, 3))),
    });
}

// Aruba, Zebra ------------------------------------------------------------------------------------

namespace {

std::span<const Field> unknownSubtype(ElementDecoder& e)
{
    return e.fields({entryWithName("Subtype", e.text("Unknown ({})", e.u8(4))), data(e, 5)});
}

/// The access point's name, up to the end of the element; the summary, too.
Field accessPointName(ElementDecoder& e, std::size_t offset)
{
    const auto name = ElementDecoder::ascii(e.from(offset));
    e.setSummary(e.concatenated({"AP Name: ", name.value_or(kNullText)}));
    return entryWithName("AP Name", name);
}

} // namespace

std::span<const Field> parseVendorArubaIE(ElementDecoder& e)
{
    constexpr std::uint8_t kName = 3;
    if (e.u8(4) != kName)
        return unknownSubtype(e);
    return e.fields({
        entryWithName("Subtype", e.text("AP Name ({})", kName)),
        accessPointName(e, 6), // the byte before it is not known
    });
}

std::span<const Field> parseVendorZebraIE(ElementDecoder& e)
{
    constexpr std::uint8_t kName = 3;
    constexpr std::size_t kHeaderSize = 5;
    constexpr std::size_t kUnknownSize = 7;
    if (e.u8(4) != kName || e.length() < kHeaderSize + kUnknownSize + 1)
        return unknownSubtype(e);
    return e.fields({
        entryWithName("Subtype", e.decimal(kName)),
        entryWithName("Unknown", e.hexadecimalString(e.bytes(kHeaderSize, kUnknownSize))),
        accessPointName(e, kHeaderSize + kUnknownSize),
    });
}

// Routerboard -------------------------------------------------------------------------------------

std::span<const Field> parseVendorRouterboardIE(ElementDecoder& e)
{
    constexpr std::size_t kRecords = 4; // offset of the first
    constexpr std::size_t kRecordHeaderSize = 2;
    constexpr std::uint8_t kName = 1;
    constexpr std::size_t kUnknownSize = 10; // bytes before the name

    FieldList& rows = e.list();
    JoinedText summary(e, ", ");
    std::size_t offset = kRecords;
    while (offset < e.length()) {
        const std::uint8_t type = e.u8(offset);
        const std::size_t size = e.u8(offset + 1);
        offset += kRecordHeaderSize;
        const std::string_view number = e.text("0x{:02X}", type);
        FieldList& parts = e.list(4);
        parts.push_back(entryWithName("Type", number));
        parts.push_back(
            entryWithName("Length", e.decimal(static_cast<std::int64_t>(size)), "bytes"));
        if (type == kName) {
            const std::size_t nameSize = size - std::min(size, kUnknownSize);
            const auto name = ElementDecoder::ascii(e.bytes(offset + kUnknownSize, nameSize));
            parts.push_back(
                entryWithName("Unknown", e.hexadecimalString(e.bytes(offset, kUnknownSize))));
            parts.push_back(entryWithName("Radio Name", name));
            summary.add(e.concatenated({"Radio Name: ", name.value_or(kNullText)}));
        } else if (size != 0) {
            parts.push_back(entryWithName("Data", e.hexadecimalString(e.bytes(offset, size))));
        }
        rows.push_back(entryWithName("Data Element", number, {}, parts));
        offset += size;
    }
    e.setSummary(summary.text());
    return rows;
}

// Wi-Fi Alliance ----------------------------------------------------------------------------------

namespace {

constexpr auto kHotspotIndication = bitFields<8>({flag(0x01, "DGAF Disabled", "Set", "Not set")});

} // namespace

std::span<const Field> parseVendorWiFiAllianceIE(ElementDecoder& e)
{
    switch (e.u8(3)) {
    case 9:
        e.setSummary("P2P");
        return e.fields({entryWithName("Type", "P2P"), data(e, 4)});
    case 10:
        e.setSummary("Wi-Fi Display");
        return e.fields({entryWithName("Type", "Wi-Fi Display"), data(e, 4)});
    case 16:
        e.setSummary("Hotspot 2.0 Indication");
        return e.fields({
            entryWithName("Type", "Hotspot 2.0 Indication"),
            entryWithName("Hotspot 2.0 Indication", {}, {}, e.bitRows(kHotspotIndication, e.u8(4))),
        });
    default:
        return {};
    }
}

} // namespace tessara
