#include "elements/ManagementElements.h"

#include <cmath>

namespace tessara {

// Mobility Domain: 9.4.2.46 -----------------------------------------------------------------------

namespace {

constexpr std::uint8_t kOverTheDS = 0x01;
constexpr std::string_view kOverTheDSText = "Over-the-DS Fast BSS Transition";
constexpr std::string_view kOverTheAirText = "Over-the-Air Fast BSS Transition";
constexpr auto kFTCapabilityAndPolicy = bitFields<8>({
    flag(kOverTheDS, "Fast BSS Transition over DS", kOverTheDSText, kOverTheAirText),
    bits(0x02, "Resource Request Protocol Capability"),
});

} // namespace

std::span<const Field> parseMobilityDomain(ElementDecoder& e)
{
    const std::uint8_t policy = e.u8(2);
    // As the first of its bits says.
    e.setSummary(policy & kOverTheDS ? kOverTheDSText : kOverTheAirText);
    return e.fields({
        entryWithName("MDID (Mobility Domain Identifier)", e.hex(e.u16(0), 4)),
        e.bitsEntry("FT Capability and Policy", kFTCapabilityAndPolicy, policy),
    });
}

// Time Advertisement: 9.4.2.60 --------------------------------------------------------------------

namespace {

constexpr ValueText kTimingCapabilities[] = {
    {0, "No standardized external time source"},
    {1, "Timestamp offset based on UTC"},
    {2, "UTC time at which the TSF timer is 0"},
};

} // namespace

std::span<const Field> parseTimeAdvertisement(ElementDecoder& e)
{
    FieldList& rows = e.list(2);
    rows.push_back(entryWithName("Timing Capabilities", textFor(kTimingCapabilities, e.u8(0))));
    if (e.length() >= 2)
        rows.push_back(entryWithName("Data", e.hexadecimalString(e.from(1))));
    return rows;
}

// Multiple BSSID: 9.4.2.45 ------------------------------------------------------------------------

std::span<const Field> parseMultipleBSSID(ElementDecoder& e)
{
    const std::uint8_t indicator = e.u8(0);
    FieldList& rows = e.list(2);
    rows.push_back(entryWithName("Max BSSID Indicator", e.hex(indicator, 2),
                                 e.text("({:.0f} BSSIDs)", std::ldexp(1.0, indicator))));
    if (e.length() >= 2) {
        rows.push_back(entryWithName("Data", e.hexadecimalString(e.from(0), 1, e.length() - 1)));
    }
    return rows;
}

} // namespace tessara
