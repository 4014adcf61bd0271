#include "elements/VHTElements.h"

#include "elements/JoinedText.h"

namespace tessara {

namespace {

// One two-bit field for each number of spatial streams (figure 9-616).
constexpr int kStreamsOfMap = 8;
constexpr ValueText kMCSSupport[] = {
    {0, "MCS 0-7"}, {1, "MCS 0-8"}, {2, "MCS 0-9"}, {3, "Not supported"}};

} // namespace

// VHT Capabilities: 9.4.2.157 ---------------------------------------------------------------------

namespace {

constexpr std::uint32_t kShortGIFor80MHz = 0x00000020;
constexpr std::uint32_t kShortGIFor160MHz = 0x00000040;

// 9.4.2.157.2
constexpr ValueText kMaximumMPDULength[] = {
    {0, "3895 bytes"}, {1, "7991 bytes"}, {2, "11454 bytes"}, {3, "Reserved"}};
constexpr ValueText kChannelWidthSets[] = {{0, "Neither 160 nor 80+80 MHz supported"},
                                           {1, "160 MHz supported"},
                                           {2, "160 and 80+80 MHz supported"},
                                           {3, "Reserved"}};
constexpr ValueText kRxSTBC[] = {{0, "Not supported"},
                                 {1, "1 spatial stream supported"},
                                 {2, "1 to 2 spatial streams supported"},
                                 {3, "1 to 3 spatial streams supported"},
                                 {4, "1 to 4 spatial streams supported"},
                                 {5, "Reserved"},
                                 {6, "Reserved"},
                                 {7, "Reserved"}};
constexpr ValueText kOneToEight[] = {{0, "1"}, {1, "2"}, {2, "3"}, {3, "4"},
                                     {4, "5"}, {5, "6"}, {6, "7"}, {7, "8"}};
constexpr ValueText kMaxAMPDULengthExponent[] = {
    {0, "Maximum A-MPDU size is 8K"},   {1, "Maximum A-MPDU size is 16K"},
    {2, "Maximum A-MPDU size is 32K"},  {3, "Maximum A-MPDU size is 64K"},
    {4, "Maximum A-MPDU size is 128K"}, {5, "Maximum A-MPDU size is 256K"},
    {6, "Maximum A-MPDU size is 512K"}, {7, "Maximum A-MPDU size is 1024K"}};
constexpr ValueText kVHTLinkAdaptation[] = {
    {0, "No feedback"},
    {1, "Reserved (logically only solicited feedback)"},
    {2, "Unsolicited feedback only"},
    {3, "Can provide unsolicited feedback and respond to VHT MRQ"}};
constexpr auto kVHTCapabilitiesInfo = bitFields<32>({
    value(0x00000003, "Maximum MPDU Length", kMaximumMPDULength),
    value(0x0000000c, "Supported Channel Width Set", kChannelWidthSets),
    flag(0x00000010, "Rx LDPC", "Supported", "Not supported"),
    flag(kShortGIFor80MHz, "Short GI for 80 MHz", "Supported", "Not supported"),
    flag(kShortGIFor160MHz, "Short GI for 160 MHz and 80+80 MHz", "Supported", "Not supported"),
    flag(0x00000080, "Tx STBC", "Supported", "Not supported"),
    value(0x00000700, "Rx STBC", kRxSTBC),
    flag(0x00000800, "Single User (SU) Beamformer Capable", "Yes", "No"),
    flag(0x00001000, "Single User (SU) Beamformee Capable", "Yes", "No"),
    value(0x0000e000, "Compressed Steering Number of Beamforming Antennas Supported", kOneToEight),
    value(0x00070000, "Number of Sounding Dimensions", kOneToEight),
    flag(0x00080000, "Multi User (MU) Beamformer Capable", "Yes", "No"),
    flag(0x00100000, "Multi User (MU) Beamformee Capable", "Yes", "No"),
    flag(0x00200000, "VHT TxOP Power-Save", "Supported", "Not supported"),
    flag(0x00400000, "+HTC-VHT Capable", "Yes", "No"),
    value(0x03800000, "Max A-MPDU Length Exponent", kMaxAMPDULengthExponent),
    value(0x0c000000, "VHT Link Adaptation", kVHTLinkAdaptation),
    flag(0x10000000, "Rx Antenna Pattern Consistency", "Supported", "Not supported"),
    flag(0x20000000, "Tx Antenna Pattern Consistency", "Supported", "Not supported"),
    bits(0xc0000000, "Reserved"),
});

// 9.4.2.157.3
constexpr auto kRxMCSMap = bitFields<16>({
    value(0x0003, "Rx 1 SS", kMCSSupport),
    value(0x000c, "Rx 2 SS", kMCSSupport),
    value(0x0030, "Rx 3 SS", kMCSSupport),
    value(0x00c0, "Rx 4 SS", kMCSSupport),
    value(0x0300, "Rx 5 SS", kMCSSupport),
    value(0x0c00, "Rx 6 SS", kMCSSupport),
    value(0x3000, "Rx 7 SS", kMCSSupport),
    value(0xc000, "Rx 8 SS", kMCSSupport),
});
constexpr auto kRxHighestRate =
    bitFields<16>({decimal(0x1fff, "Rx Highest Long GI Data Rate (Mbps)")});

constexpr auto kTxMCSMap = bitFields<16>({
    value(0x0003, "Tx 1 SS", kMCSSupport),
    value(0x000c, "Tx 2 SS", kMCSSupport),
    value(0x0030, "Tx 3 SS", kMCSSupport),
    value(0x00c0, "Tx 4 SS", kMCSSupport),
    value(0x0300, "Tx 5 SS", kMCSSupport),
    value(0x0c00, "Tx 6 SS", kMCSSupport),
    value(0x3000, "Tx 7 SS", kMCSSupport),
    value(0xc000, "Tx 8 SS", kMCSSupport),
});
constexpr auto kTxHighestRate =
    bitFields<16>({decimal(0x1fff, "Tx Highest Long GI Data Rate (Mbps)")});

/// The number of streams whose field does not say "not supported", wherever in the map they are.
int streamsOf(std::uint16_t map)
{
    constexpr int kNotSupported = 3;
    int streams = 0;
    for (int i = 0; i < kStreamsOfMap; ++i) {
        if ((map >> (2 * i) & kNotSupported) != kNotSupported)
            ++streams;
    }
    return streams;
}

/// A map of 16 bits, shown with eight digits, and it is meant so; with its rate behind it.
Field mcsMap(ElementDecoder& e, std::string_view name, std::size_t offset, const BitFields& map,
             const BitFields& highestRate)
{
    FieldList& rows = e.list(kStreamsOfMap + 1);
    for (const BitField& field : map.fields)
        rows.push_back(e.bitItem().item(field, map.width, e.u16(offset)));
    for (const BitField& field : highestRate.fields)
        rows.push_back(e.bitItem().item(field, highestRate.width, e.u16(offset + 2)));
    return entryWithName(name, e.hex(e.u16(offset), 8), {}, rows);
}

} // namespace

std::span<const Field> parseVHTCapability(ElementDecoder& e)
{
    constexpr std::size_t kRxMap = 4;
    constexpr std::size_t kTxMap = 8;

    const std::uint32_t info = e.u32(0);
    JoinedText summary(e, ", ");
    if (info & kShortGIFor80MHz)
        summary.add("Short GI for 80 MHz");
    if (info & kShortGIFor160MHz)
        summary.add("Short GI for 160 MHz");
    summary.add(e.concatenated({e.decimal(streamsOf(e.u16(kRxMap))), " Spatial Streams"}));
    e.setSummary(summary.text());
    return e.fields({
        e.bitsEntry("VHT Capabilities Info", kVHTCapabilitiesInfo, info),
        entryWithName("VHT Supported MCS Set", {}, {},
                      e.fields({
                          mcsMap(e, "Rx MCS Map", kRxMap, kRxMCSMap, kRxHighestRate),
                          mcsMap(e, "Tx MCS Map", kTxMap, kTxMCSMap, kTxHighestRate),
                      })),
    });
}

// VHT Operation: 9.4.2.158 ------------------------------------------------------------------------

namespace {

constexpr ValueText kChannelWidths[] = {
    {0, "20 MHz or 40 MHz"},
    {1, "80 MHz"},
    {2, "160 MHz"},
    {3, "80+80 MHz"},
};

constexpr auto kVHTBasicMCSSet = bitFields<16>({
    value(0x0003, "MCS Support 1 SS", kMCSSupport),
    value(0x000c, "MCS Support 2 SS", kMCSSupport),
    value(0x0030, "MCS Support 3 SS", kMCSSupport),
    value(0x00c0, "MCS Support 4 SS", kMCSSupport),
    value(0x0300, "MCS Support 5 SS", kMCSSupport),
    value(0x0c00, "MCS Support 6 SS", kMCSSupport),
    value(0x3000, "MCS Support 7 SS", kMCSSupport),
    value(0xc000, "MCS Support 8 SS", kMCSSupport),
});

} // namespace

std::span<const Field> parseVHTOperation(ElementDecoder& e)
{
    const auto width = textFor(kChannelWidths, e.u8(0));
    const std::string_view centers[] = {e.decimal(e.u8(1)), e.decimal(e.u8(2))};
    JoinedText summary(e, ", ");
    summary.add(e.concatenated({"Channel Width: ", width.value_or(kNullText)}));
    for (const std::string_view center : centers) {
        if (center != "0")
            summary.add(e.concatenated({"Channel Center Frequency: ", center}));
    }
    e.setSummary(summary.text());

    const std::uint16_t map = e.u16(3);
    return e.fields({
        entryWithName("VHT Operation Information", {}, {},
                      e.fields({
                          entryWithName("Channel Width", width),
                          // Numbers of channels, whatever the names say.
                          entryWithName("Channel Center Frequency 0", centers[0]),
                          entryWithName("Channel Center Frequency 1", centers[1]),
                      })),
        e.bitsEntry("VHT Basic MCS Set", kVHTBasicMCSSet, map),
    });
}

// Transmit Power Envelope: 9.4.2.161 --------------------------------------------------------------

namespace {

constexpr auto kTransmitPowerInformation = bitFields<8>({
    decimal(0x07, "Local Maximum Transmit Power Count"),
    flag(0x38, "Local Maximum Transmit Power Unit Interpretation", "Reserved", "EIRP"),
    bits(0xc0, "Reserved"),
});

constexpr std::string_view kTransmitPowers[] = {
    "Local Maximum Transmit Power for 20 MHz",
    "Local Maximum Transmit Power for 40 MHz",
    "Local Maximum Transmit Power for 80 MHz",
    "Local Maximum Transmit Power for 160/80+80 MHz",
};

} // namespace

std::span<const Field> parseVHTTPE(ElementDecoder& e)
{
    const std::uint8_t information = e.u8(0);
    FieldList& rows = e.list(1 + std::size(kTransmitPowers));
    rows.push_back(entryWithName("Transmit Power Information", {}, {},
                                 e.bitRows(kTransmitPowerInformation, information)));
    // As many powers as the whole byte says, not its three bits of the count and one more, and it
    // is meant so.
    for (std::size_t i = 0; i < information && i < std::size(kTransmitPowers); ++i) {
        rows.push_back(
            entryWithName(kTransmitPowers[i], e.text("{:.1f}", e.i8(1 + i) * 0.5), "dBm"));
    }
    return rows;
}

} // namespace tessara
