#include "elements/SuiteLists.h"
#include "elements/VendorElements.h"
#include "elements/WPSElement.h"

#include <array>

namespace tessara {

namespace {

// WPA: the security element of before RSN, of the same shape
// ---------------------------------------

constexpr SuiteNames kMulticastCipher = {SuiteKind::kCipher, "Multicast Cipher Suite OUI",
                                         "Multicast Cipher Suite Type"};
constexpr SuiteNames kUnicastCiphers = {SuiteKind::kCipher, "Unicast Cipher Suite OUI",
                                        "Unicast Cipher Suite Type", "Unicast Cipher Suite Count",
                                        "Unicast Cipher Suite List"};
constexpr SuiteNames kAuthKeyManagement = {
    SuiteKind::kAuth, "Auth Key Management Suite OUI", "Auth Key Management Suite Type",
    "Auth Key Management Suite Count", "Auth Key Management Suite List"};

std::span<const Field> parseWPA(ElementDecoder& e)
{
    const Suite multicast(e, 6, kMulticastCipher);
    const SuiteList unicast(e, 10, kUnicastCiphers);
    const SuiteList auth(e, unicast.end, kAuthKeyManagement);
    e.setSummary(
        e.concatenated({"Wi-Fi Protected Access (WPA); Multicast Cipher: ", multicast.text,
                        "; Unicast Cipher(s): ", unicast.texts, "; AKM Suite(s): ", auth.texts}));
    return e.fields({
        entryWithName("Type", "WPA"),
        entryWithName("WPA Version", e.decimal(e.u16(4))),
        multicast.oui,
        multicast.type,
        unicast.count,
        unicast.list,
        auth.count,
        auth.list,
    });
}

// WMM (Wi-Fi Alliance, WMM 1.2, 2.2) --------------------------------------------------------------

constexpr std::uint8_t kInformation = 0;
constexpr std::uint8_t kParameter = 1;
constexpr std::uint8_t kTSPEC = 2;
constexpr ValueText kSubtypes[] = {
    {kInformation, "Information Element"},
    {kParameter, "Parameter Element"},
    {kTSPEC, "TSPEC Element"},
};

constexpr auto kQoSInfo = bitFields<8>({
    flag(0x80, "U-APSD", "Enabled", "Disabled"),
    decimal(0x0f, "Parameter Set Count"),
    hexadecimal(0x70, "Reserved"),
});

constexpr ValueText kAccessCategories[] = {
    {0, "Best Effort"}, {1, "Background"}, {2, "Video"}, {3, "Voice"}};
constexpr auto kACIAndAIFSN = bitFields<8>({
    value(0x60, "ACI", kAccessCategories),
    flag(0x10, "Admission Control Mandatory", "Yes", "No"),
    decimal(0x0f, "AIFSN"),
    hexadecimal(0x80, "Reserved"),
});
constexpr auto kECW = bitFields<8>({decimal(0xf0, "ECW Max"), decimal(0x0f, "ECW Min")});

/// The parameters of one access category, named by their place, not by the index that they hold.
Field accessCategory(ElementDecoder& e, const ValueText& category, std::size_t offset)
{
    const std::uint8_t aci = e.u8(offset);
    const std::uint8_t ecw = e.u8(offset + 1);
    return entryWithName(e.concatenated({"Access Category - ", category.text}), {}, {},
                         e.fields({
                             e.bitsEntry("ACI / AIFSN Field", kACIAndAIFSN, aci),
                             e.bitsEntry("ECW", kECW, ecw),
                             entryWithName("TXOP Limit", e.decimal(e.u16(offset + 2))),
                         }));
}

std::span<const Field> parseWMM(ElementDecoder& e)
{
    constexpr std::size_t kParameters = 8; // offset of the first
    constexpr std::size_t kParametersSize = 4;

    const std::uint8_t subtype = e.u8(4);
    const std::uint8_t info = e.u8(6);
    e.setSummary("Wireless Multimedia (WMM)");
    FieldList& rows = e.list(5 + std::size(kAccessCategories));
    rows.push_back(entryWithName("Type", "WMM/WME"));
    rows.push_back(entryWithName("WMM Subtype", textFor(kSubtypes, subtype)));
    rows.push_back(entryWithName("WMM Version", e.decimal(e.u8(5))));
    if (subtype == kInformation || subtype == kParameter)
        rows.push_back(e.bitsEntry("WMM QoS Info", kQoSInfo, info));
    if (subtype == kParameter) {
        rows.push_back(entryWithName("Reserved", e.hex(e.u8(7), 2)));
        for (const ValueText& category : kAccessCategories) {
            rows.push_back(
                accessCategory(e, category, kParameters + category.number * kParametersSize));
        }
    }
    if (subtype == kTSPEC)
        rows.push_back(entryWithName("Data", e.hexadecimalString(e.from(6))));
    return rows;
}

} // namespace

std::span<const Field> parseVendorMicrosoftIE(ElementDecoder& e)
{
    switch (e.u8(3)) {
    case 1:
        return parseWPA(e);
    case 2:
        return parseWMM(e);
    case 4:
        return parseWPS(e);
    default:
        return e.fields({
            entryWithName("Type", "Unknown"),
            entryWithName("Data", e.hexadecimalString(e.from(4))),
        });
    }
}

} // namespace tessara
