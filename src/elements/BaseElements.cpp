#include "elements/BaseElements.h"

#include "elements/JoinedText.h"

#include <QString>

namespace tessara {

std::span<const Field> parseGeneric(ElementDecoder& e)
{
    return e.fields({entryWithName("Data", e.hexadecimalString(e.from(0)))});
}

// SSID: 9.4.2.2 -----------------------------------------------------------------------------------

std::span<const Field> parseSSID(ElementDecoder& e)
{
    const Bytes bytes = e.from(0);
    const auto name = ElementDecoder::utf8(bytes);
    e.setSummary(name.value_or(""));
    return e.fields({
        entryWithName("SSID", name),
        entryWithName("SSID Data", e.hexadecimalString(bytes, 0, bytes.size(), " ")),
    });
}

// Supported Rates, Extended Supported Rates: 9.4.2.3, 9.4.2.12 ------------------------------------

namespace {

constexpr std::uint8_t kBasicRate = 0x80;
constexpr std::uint8_t kRate = 0x7f; ///< in units of 500 kbit/s

/// The PHY that a rate, in units of 500 kbit/s, belongs to.
constexpr ValueText kRateClasses[] = {
    {2, " (DSSS)"},  {4, " (DSSS)"},  {11, " (HR-DSSS)"}, {22, " (HR-DSSS)"}, {44, " (PBCC)"},
    {66, " (PBCC)"}, {12, " (OFDM)"}, {18, " (OFDM)"},    {24, " (OFDM)"},    {36, " (OFDM)"},
    {48, " (OFDM)"}, {72, " (OFDM)"}, {96, " (OFDM)"},    {108, " (OFDM)"},
};

} // namespace

std::span<const Field> parseSuppRates(ElementDecoder& e)
{
    FieldList& rows = e.list(e.length());
    JoinedText rates(e, ", ");
    for (const std::uint8_t byte : e.from(0)) {
        const bool isBasic = (byte & kBasicRate) != 0;
        const int rate = byte & kRate;
        const std::string_view whole = e.decimal(rate / 2);
        const std::string_view number = rate % 2 == 1 ? e.concatenated({whole, ".5"}) : whole;
        rows.push_back(
            entryWithName("Supported Rate", number,
                          e.concatenated({"Mbps", textFor(kRateClasses, rate).value_or(""),
                                          isBasic ? " (BSS Basic Rate)" : ""})));
        rates.add(number);
        if (isBasic)
            rates.extend("(B)");
    }
    e.setSummary(e.concatenated({rates.text(), " Mbps"}));
    return rows;
}

// DSSS Parameter Set: 9.4.2.4 ---------------------------------------------------------------------

std::span<const Field> parseDSParameter(ElementDecoder& e)
{
    const std::string_view channel = e.decimal(e.u8(0));
    e.setSummary(e.concatenated({"Current channel: ", channel}));
    return e.fields({entryWithName("Current Channel", channel)});
}

// TIM: 9.4.2.5 ------------------------------------------------------------------------------------

namespace {

constexpr auto kBitmapControl =
    bitFields<8>({bits(0x01, "Multicast"), bits(0xfe, "Bitmap Offset")});

} // namespace

std::span<const Field> parseTIM(ElementDecoder& e)
{
    const std::uint8_t control = e.u8(2);
    return e.fields({
        entryWithName("DTIM Count", e.decimal(e.u8(0))),
        entryWithName("DTIM Period", e.decimal(e.u8(1))),
        e.bitsEntry("Bitmap Control", kBitmapControl, control),
        entryWithName("Partial Virtual Bitmap", e.hexadecimalString(e.from(3))),
    });
}

// IBSS Parameter Set: 9.4.2.6 ---------------------------------------------------------------------

std::span<const Field> parseIBSSParameter(ElementDecoder& e)
{
    return e.fields({entryWithName("ATIM Window", e.decimal(e.u16(0)), "Time Units")});
}

// Country: 9.4.2.8 --------------------------------------------------------------------------------

namespace {

constexpr ValueText kEnvironments[] = {{'O', "Outdoor Only"}, {'I', "Indoor Only"}, {' ', "Any"}};

/// First channel, number of channels and highest power, in dBm.
Field countryTriplet(ElementDecoder& e, std::size_t offset)
{
    constexpr int kLast2Dot4GHzChannel = 14;
    constexpr int kChannelStepAbove = 4;

    const int first = e.u8(offset);
    const int count = e.u8(offset + 1);
    const std::string_view power = e.decimal(e.u8(offset + 2));
    const int step = first <= kLast2Dot4GHzChannel ? 1 : kChannelStepAbove;
    const int last = first + step * (count - 1);
    return entryWithName("Country Info",
                         count < 2 ? e.text("Channel {}: {}", first, power)
                                   : e.text("Channels {} to {}: {}", first, last, power),
                         "dBm",
                         e.fields({
                             entryWithName("First Channel", e.decimal(first)),
                             entryWithName("Number of Channels", e.decimal(count)),
                             entryWithName("Maximum Transmit Power Level", power, "dBm"),
                         }));
}

} // namespace

std::span<const Field> parseCountryInfo(ElementDecoder& e)
{
    constexpr std::size_t kTriplets = 3; // offset of the first
    constexpr std::size_t kTripletSize = 3;

    const char16_t letters[] = {e.u8(0), e.u8(1)};
    const std::string_view code =
        e.keep(QStringView(letters, std::size(letters)).toString().toUpper().toStdString());
    const std::string_view environment = textFor(kEnvironments, e.u8(2)).value_or("Unknown");

    FieldList& rows = e.list(2 + e.length() / kTripletSize);
    rows.push_back(entryWithName("Country Code", code));
    rows.push_back(entryWithName("Environment", environment));
    // Triplets of operating classes (201 and more) are shown like those of channels.
    for (std::size_t at = kTriplets; at + kTripletSize <= e.length(); at += kTripletSize)
        rows.push_back(countryTriplet(e, at));
    e.setSummary(e.text("{} ({} Environment)", code, environment));
    return rows;
}

// BSS Load: 9.4.2.27 ------------------------------------------------------------------------------

std::span<const Field> parseQBSSLoad(ElementDecoder& e)
{
    const std::string_view stations = e.decimal(e.u16(0));
    const int percent = static_cast<int>(e.u8(2) / 255.0 * 100.0);
    e.setSummary(e.text("Stations: {}, Channel Utilization: {}%", stations, percent));
    return e.fields({
        entryWithName("Station Count", stations),
        entryWithName("Channel Utilization", e.decimal(e.u8(2)), e.text("({}%)", percent)),
        entryWithName("Available Admission Capacity", e.decimal(e.u16(3))),
    });
}

// EDCA Parameter Set, TPC Request, Quiet: 9.4.2.28, 9.4.2.15, 9.4.2.22 ----------------------------

std::span<const Field> parseEDCAParamSet(ElementDecoder& e)
{
    return parseGeneric(e);
}

std::span<const Field> parseTPCRequest(ElementDecoder& e)
{
    return parseGeneric(e);
}

std::span<const Field> parseQuiet(ElementDecoder& e)
{
    return parseGeneric(e);
}

// Power Constraint, Power Capability, TPC Report: 9.4.2.13, 9.4.2.14, 9.4.2.16 --------------------

std::span<const Field> parsePowerConstraint(ElementDecoder& e)
{
    const std::string_view constraint = e.decimal(e.u8(0));
    e.setSummary(e.concatenated({constraint, " dBm"}));
    return e.fields({entryWithName("Local Power Constraint", constraint, "dBm")});
}

std::span<const Field> parsePowerCapability(ElementDecoder& e)
{
    // The first byte serves as both, and it is meant so.
    const std::string_view power = e.decimal(e.u8(0));
    return e.fields({
        entryWithName("Minimum Transmit Power", power, "dBm"),
        entryWithName("Maximum Transmit Power", power, "dBm"),
    });
}

std::span<const Field> parseTPCReport(ElementDecoder& e)
{
    const std::string_view power = e.decimal(e.u8(0));
    const std::string_view margin = e.decimal(e.u8(1));
    e.setSummary(e.text("Transmit Power: {} dBm, Link Margin: {}", power, margin));
    return e.fields({
        entryWithName("Transmit Power", power, "dBm"),
        entryWithName("Link Margin", margin),
    });
}

// Channel Switch Announcement: 9.4.2.18 -----------------------------------------------------------

std::span<const Field> parseChannelSwitchAnnouncement(ElementDecoder& e)
{
    const std::string_view channel = e.decimal(e.u8(1));
    e.setSummary(e.concatenated({"New Channel Number: ", channel}));
    return e.fields({
        entryWithName("Channel Switch Mode", e.decimal(e.u8(0))),
        entryWithName("New Channel Number", channel),
        entryWithName("Channel Switch Count", e.decimal(e.u8(2)), "TBTTs"),
    });
}

// ERP: 9.4.2.11 -----------------------------------------------------------------------------------

namespace {

constexpr std::uint8_t kNonERPPresent = 0x01;
constexpr std::uint8_t kUseProtection = 0x02;
constexpr std::uint8_t kBarkerPreambleMode = 0x04;

constexpr auto kERPFlags = bitFields<8>({
    flag(kNonERPPresent, "Non ERP Present", "A non-ERP station is associated to the BSS",
         "Not set"),
    flag(kUseProtection, "Use Protection", "Set", "Not set"),
    flag(kBarkerPreambleMode, "Barker Preamble Mode",
         "At least one associated non-ERP station is not capable of using short preambles",
         "Not set"),
    bits(0xf8, "Reserved"),
});

} // namespace

std::span<const Field> parseERPInfo(ElementDecoder& e)
{
    const std::uint8_t flags = e.u8(0);
    JoinedText summary(e, ", ");
    if (flags & kNonERPPresent)
        summary.add("Non-ERP Stations Present");
    if (flags & kUseProtection)
        summary.add("Use Protection Set");
    if (flags & kBarkerPreambleMode)
        summary.add("Barker Preamble Mode Set");
    e.setSummary(summary.text());
    return e.fields({e.bitsEntry("ERP Flags", kERPFlags, flags)});
}

} // namespace tessara
