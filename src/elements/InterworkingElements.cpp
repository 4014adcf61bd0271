#include "elements/BaseElements.h"
#include "elements/JoinedText.h"
#include "elements/ManagementElements.h"
#include "elements/VenueTypes.h"

namespace tessara {

// Interworking: 9.4.2.91 --------------------------------------------------------------------------

namespace {

constexpr std::uint8_t kNetworkType = 0x0f;
constexpr std::uint8_t kInternet = 0x10;

constexpr ValueText kAccessNetworkTypes[] = {{0, "Private Network"},
                                             {1, "Private Network with Guest Access"},
                                             {2, "Chargeable Public Network"},
                                             {3, "Free Public Network"},
                                             {4, "Personal Device Network"},
                                             {5, "Emergency Services Only Network"},
                                             {6, "Reserved"},
                                             {7, "Reserved"},
                                             {8, "Reserved"},
                                             {9, "Reserved"},
                                             {10, "Reserved"},
                                             {11, "Reserved"},
                                             {12, "Reserved"},
                                             {13, "Reserved"},
                                             {14, "Test or Experimental"},
                                             {15, "Wilcard"}};
constexpr auto kAccessNetworkOptions = bitFields<8>({
    value(kNetworkType, "Access Network Type", kAccessNetworkTypes),
    flag(kInternet, "Internet", "Provides connectivity to the Internet",
         "Connectivity to the Internet is unspecified"),
    flag(0x20, "ASRA", "Network requires a further step for access",
         "Does not require a further step for access"),
    flag(0x40, "ESR", "Emergency services are reachable through the AP",
         "Emergency services reachability is unspecified"),
    flag(0x80, "UESA",
         "Higher layer unauthenticated emergency services are reachable through the AP.",
         "No unauthenticated emergency services are reachable through the AP"),
});

} // namespace

std::span<const Field> parseInterworking(ElementDecoder& e)
{
    constexpr std::size_t kOptionsSize = 1;
    constexpr std::size_t kVenueSize = 2;
    constexpr std::size_t kHESSIDSize = 6;
    // The length tells what is there.
    const std::size_t optional = e.length() - kOptionsSize;
    const bool hasVenue = optional == kVenueSize || optional == kVenueSize + kHESSIDSize;
    const bool hasHESSID = optional == kHESSIDSize || optional == kVenueSize + kHESSIDSize;

    FieldList& rows = e.list(3);
    JoinedText summary(e, ", ");

    const std::uint8_t options = e.u8(0);
    rows.push_back(e.bitsEntry("Access Network Options", kAccessNetworkOptions, options));
    summary.add(textFor(kAccessNetworkTypes, options & kNetworkType).value_or(kNullText));
    if (options & kInternet)
        summary.add("Provides Internet Connectivity");

    std::size_t offset = kOptionsSize;
    if (hasVenue) {
        const std::uint8_t group = e.u8(offset);
        const std::uint8_t type = e.u8(offset + 1);
        const auto groupText = textForVenueGroup(group);
        const auto typeText = textFor(venueTypesForVenueGroup(group), type);
        rows.push_back(
            entryWithName("Venue Info", {}, {},
                          e.fields({
                              entryWithName("Venue Group", groupText, e.text("({})", group)),
                              entryWithName("Venue Type", typeText, e.text("({})", type)),
                          })));
        summary.add(e.text("{} ({})", groupText.value_or(kNullText), typeText.value_or(kNullText)));
        offset += kVenueSize;
    }
    if (hasHESSID) {
        JoinedText octets(e, ":");
        for (const std::uint8_t octet : e.bytes(offset, kHESSIDSize))
            octets.add(e.text("0x{:02X}", octet));
        rows.push_back(entryWithName("Homogeneous ESS Identifier (HESSID)", octets.text()));
    }
    e.setSummary(summary.text());
    return rows;
}

// Advertisement Protocol: 9.4.2.92 ----------------------------------------------------------------

std::span<const Field> parseAdvertisementProtocol(ElementDecoder& e)
{
    return parseGeneric(e);
}

// Roaming Consortium: 9.4.2.95 --------------------------------------------------------------------

std::span<const Field> parseRoamingConsortium(ElementDecoder& e)
{
    constexpr std::size_t kFirst = 2; // offset of the first identifier
    const std::uint8_t lengths = e.u8(1);
    const std::uint8_t firstLength = lengths & 0x0f;
    const std::uint8_t secondLength = lengths >> 4;
    const std::size_t second = kFirst + firstLength;
    const std::size_t third = second + secondLength;

    FieldList& rows = e.list(4);
    // The bits of both are those of the first length, and it is meant so.
    rows.push_back(
        entryWithName("Number of ANQP OIs", e.decimal(e.u8(0)), {},
                      e.fields({
                          e.bitItem().bitsItemWithBitMask(BitWidth::k8, 0x0f, "OI #1 Length",
                                                          firstLength, e.decimal(firstLength)),
                          e.bitItem().bitsItemWithBitMask(BitWidth::k8, 0xf0, "OI #2 Length",
                                                          firstLength, e.decimal(secondLength)),
                      })));
    const Bytes all = e.from(0);
    rows.push_back(entryWithName("OI #1", e.hexadecimalString(all, kFirst, firstLength)));
    if (secondLength > 0)
        rows.push_back(entryWithName("OI #2", e.hexadecimalString(all, second, secondLength)));
    if (e.length() > third)
        rows.push_back(entryWithName("OI #3", e.hexadecimalString(all, third, e.length() - third)));
    return rows;
}

} // namespace tessara
