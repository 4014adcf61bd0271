#include "elements/HTElements.h"

#include "elements/JoinedText.h"
#include "elements/MCSSet.h"

namespace tessara {

// HT Capabilities: 9.4.2.55 -----------------------------------------------------------------------

namespace {

constexpr std::uint32_t kSupportedChannelWidthSet = 0x0002;
constexpr std::uint32_t kShortGIFor20MHz = 0x0020;
constexpr std::uint32_t kShortGIFor40MHz = 0x0040;

// 9.4.2.55.2
constexpr ValueText kSMPowerSave[] = {{0, "Static SM Power Save mode"},
                                      {1, "Dynamic SM Power Save Mode"},
                                      {3, "SM Power Save mode disabled"}};
constexpr ValueText kRxSTBC[] = {{0, "Disabled"},
                                 {1, "Supported for one spatial stream"},
                                 {2, "Supported for two spatial streams"},
                                 {3, "Supported for three spatial streams"}};
constexpr auto kHTCapabilitiesInfo = bitFields<16>({
    flag(0x0001, "LDPC Coding Capability", "STA is capable of receiving LDPC-coded packets",
         "STA is not capable of receiving LDPC-coded packets"),
    flag(kSupportedChannelWidthSet, "Supported Channel Width Set",
         "STA supports both 20 MHz and 40 MHz channels", "STA supports only 20 MHz channels"),
    value(0x000c, "SM Power Save", kSMPowerSave),
    flag(0x0010, "HT Greenfield", "STA is capable of receiving HT Greenfield PPDUs",
         "STA is not capable of receiving HT Greenfield PPDUs"),
    flag(kShortGIFor20MHz, "Short GI for 20 MHz", "Supported", "Not supported"),
    flag(kShortGIFor40MHz, "Short GI for 40 MHz", "Supported", "Not supported"),
    flag(0x0080, "Tx STBC", "Enabled", "Disabled"),
    value(0x0300, "Rx STBC", kRxSTBC),
    flag(0x0400, "HT Delayed Block ACK", "Supported", "Not supported"),
    flag(0x0800, "Maximum A-MSDU Length", "7935 bytes", "3839 bytes"),
    flag(0x1000, "DSSS/CCK Mode in 40 MHz", "Supported", "Not supported"),
    flag(0x2000, "PSMP", "Supported", "Not supported"),
    flag(0x4000, "Forty MHz Intolerant", "Use of 40 MHz transmissions restricted/disallowed",
         "Use of 40 MHz transmissions unrestricted/allowed"),
    flag(0x8000, "L-SIG TXOP Protection Support", "Supported", "Not supported"),
});

// 9.4.2.55.3
constexpr ValueText kMaximumAMPDULengthExponent[] = {{0, "Maximum A-MPDU size is 8K"},
                                                     {1, "Maximum A-MPDU size is 16K"},
                                                     {2, "Maximum A-MPDU size is 32K"},
                                                     {3, "Maximum A-MPDU size is 64K"}};
constexpr ValueText kMinimumMPDUStartSpacing[] = {
    {0, "No restriction"}, {1, "1/4 usec"}, {2, "1/2 usec"}, {3, "1 usec"},
    {4, "2 usec"},         {5, "4 usec"},   {6, "8 usec"},   {7, "16 usec"}};
constexpr auto kAMPDUParameters = bitFields<8>({
    value(0x03, "Maximum A-MPDU Length Exponent", kMaximumAMPDULengthExponent),
    value(0x1c, "Minimum MPDU Start Spacing", kMinimumMPDUStartSpacing),
    bits(0xe0, "Reserved"),
});

// 9.4.2.55.5; bits 3 to 7 and those above 11 are not shown.
constexpr ValueText kPCOTransitionTime[] = {
    {0, "No transition"}, {1, "400 usec"}, {2, "1.5 msec"}, {3, "5 msec"}};
constexpr ValueText kMCSFeedback[] = {
    {0, "STA does not provide MCS feedback"},
    {1, "Reserved"},
    {2, "STA provides only unsolicited MCS feedback"},
    {3, "STA can provide unsolicited feedback and respond to an MRQ"}};
constexpr auto kHTExtendedCapabilities = bitFields<16>({
    flag(0x0001, "PCO", "Supported", "Not supported"),
    value(0x0006, "PCO Transition Time", kPCOTransitionTime),
    value(0x0300, "MCS Feedback", kMCSFeedback),
    flag(0x0400, "+HTC Support", "Yes", "No"),
    flag(0x0800, "RD (Reverse Direction) Responder", "Supported", "Not supported"),
});

// 9.4.2.55.6
constexpr ValueText kCalibration[] = {{0, "Not capable"},
                                      {1, "Limited involvement, cannot initiate"},
                                      {2, "Limited involvement, can initiate"},
                                      {3, "Fully capable"}};
constexpr ValueText kFeedback[] = {{0, "Not supported"},
                                   {1, "Delayed feedback capable"},
                                   {2, "Immediate feedback capable"},
                                   {3, "Delayed and immediate feedback capable"}};
constexpr ValueText kMinimalGrouping[] = {{0, "No grouping supported"},
                                          {1, "Groups of 1 or 2 supported"},
                                          {2, "Groups of 1 or 4 supported"},
                                          {3, "Groups of 1, 2 or 4 supported"}};
constexpr ValueText kTxAntennas[] = {
    {0, "1 Tx antenna"}, {1, "2 Tx antennas"}, {2, "3 Tx antennas"}, {3, "4 Tx antennas"}};
constexpr ValueText kCSIRows[] = {
    {0, "1 CSI row"}, {1, "2 CSI rows"}, {2, "3 CSI rows"}, {3, "4 CSI rows"}};
constexpr ValueText kSpaceTimeStreams[] = {{0, "1 space-time stream"},
                                           {1, "2 space-time streams"},
                                           {2, "3 space-time streams"},
                                           {3, "4 space-time streams"}};
constexpr auto kTransmitBeamformingCapabilities = bitFields<32>({
    flag(0x00000001, "Implicit TxBF Receiving", "Supported", "Not supported"),
    flag(0x00000002, "Receive Staggered Sounding", "Supported", "Not supported"),
    flag(0x00000004, "Transmit Staggered Sounding", "Supported", "Not supported"),
    flag(0x00000008, "Receive NDP (Null Data Packet)", "Supported", "Not supported"),
    flag(0x00000010, "Transmit NDP (Null Data Packet)", "Supported", "Not supported"),
    flag(0x00000020, "Implicit TxBF", "Supported", "Not supported"),
    value(0x000000c0, "Calibration", kCalibration),
    flag(0x00000100, "Explicit CSI TxBF", "Supported", "Not supported"),
    flag(0x00000200, "Explicit Noncompressed Steering", "Supported", "Not supported"),
    flag(0x00000400, "Explicit Compressed Steering", "Supported", "Not supported"),
    value(0x00001800, "Explicit TxBF CSI Feedback", kFeedback),
    value(0x00006000, "Explicit Noncompressed BF Feedback", kFeedback),
    value(0x00018000, "Explicit Compressed BF Feedback", kFeedback),
    value(0x00060000, "Minimal Grouping", kMinimalGrouping),
    value(0x00180000, "CSI Number of BF Antennas Supported", kTxAntennas),
    value(0x00600000, "Noncompressed Steering Number of BF Antennas Supported", kTxAntennas),
    value(0x01800000, "Compressed Steering Number of BF Antennas Supported", kTxAntennas),
    value(0x06000000, "CSI Max Number of Rows Beamformer Supported", kCSIRows),
    value(0x18000000, "Channel Estimation", kSpaceTimeStreams),
    bits(0xe0000000, "Reserved"),
});

// 9.4.2.55.7
constexpr auto kASELCapabilities = bitFields<8>({
    flag(0x01, "Antenna Selection", "Supported", "Not supported"),
    flag(0x02, "Explicit CSI Feedback Based Tx ASEL", "Supported", "Not supported"),
    flag(0x04, "Antenna Indices Feedback Based Tx ASEL", "Supported", "Not supported"),
    flag(0x08, "Explicit CSI Feedback", "Supported", "Not supported"),
    flag(0x10, "Antenna Indices Feedback", "Supported", "Not supported"),
    flag(0x20, "Rx ASEL", "Supported", "Not supported"),
    flag(0x40, "Tx Sounding PPDUs", "Supported", "Not supported"),
    bits(0x80, "Reserved"),
});

} // namespace

std::span<const Field> parseHTCapability(ElementDecoder& e)
{
    constexpr std::size_t kMCSSet = 3;

    const std::uint16_t info = e.u16(0);
    const std::uint8_t parameters = e.u8(2);
    FieldList& rows = e.list(6);
    JoinedText summary(e, ", ");
    summary.add(info & kSupportedChannelWidthSet ? "20/40 MHz" : "20 MHz");
    if (info & kShortGIFor20MHz)
        summary.add("Short GI for 20 MHz");
    if (info & kShortGIFor40MHz)
        summary.add("Short GI for 40 MHz");

    // Two digits are asked for, though the field has 16 bits, and it is meant so.
    rows.push_back(entryWithName("HT Capabilities Info", e.hex(info, 2), {},
                                 e.bitRows(kHTCapabilitiesInfo, info)));
    rows.push_back(e.bitsEntry("A-MPDU Parameters", kAMPDUParameters, parameters));
    const std::size_t behind = kMCSSet + parseMCSSetIntoArray(e, kMCSSet, false, rows, summary);

    const std::uint16_t extended = e.u16(behind);
    const std::uint32_t beamforming = e.u32(behind + 2);
    const std::uint8_t antennas = e.u8(behind + 6);
    rows.push_back(e.bitsEntry("HT Extended Capabilities", kHTExtendedCapabilities, extended));
    rows.push_back(e.bitsEntry("Transmit Beamforming (TxBF) Capabilities",
                               kTransmitBeamformingCapabilities, beamforming));
    rows.push_back(
        e.bitsEntry("ASEL (Antenna Selection) Capabilities", kASELCapabilities, antennas));
    e.setSummary(summary.text());
    return rows;
}

// HT Operation: 9.4.2.56 --------------------------------------------------------------------------

namespace {

constexpr std::uint32_t kOffsetBits = 0x03;
constexpr std::uint32_t kAnyWidth = 0x04;
constexpr std::uint32_t kProtectionBits = 0x0003;

constexpr ValueText kSecondaryChannelOffset[] = {{0, "No secondary channel (20 MHz BSS)"},
                                                 {1, "Secondary channel is above primary channel"},
                                                 {2, "Reserved"},
                                                 {3, "Secondary channel is below primary channel"}};
constexpr ValueText kSTAChannelWidth[] = {{0, "20 MHz channel width only"},
                                          {1, "Channel of any width supported"}};
constexpr ValueText kServiceIntervals[] = {{0, "5 ms"},  {1, "10 ms"}, {2, "15 ms"}, {3, "20 ms"},
                                           {4, "25 ms"}, {5, "30 ms"}, {6, "35 ms"}, {7, "40 ms"}};
constexpr auto kHTInformationSubset1 = bitFields<8>({
    value(kOffsetBits, "Secondary Channel Offset", kSecondaryChannelOffset),
    value(kAnyWidth, "STA Channel Width", kSTAChannelWidth),
    flag(0x08, "Reduced Interframe Spacing (RIFS) Mode", "Permitted", "Prohibited"),
    flag(0x10, "Power Save Multi-Poll (PSMP) Stations Only",
         "Association requests accepted only from PSMP capable STA",
         "Association requests accepted regardless of PSMP capability"),
    value(0xe0, "Shortest Service Interval", kServiceIntervals),
});

constexpr ValueText kHTProtection[] = {{0, "Greenfield Mode (No Protection)"},
                                       {1, "Non Member Protection Mode"},
                                       {2, "20 MHz Protection Mode"},
                                       {3, "Non-HT Mixed Protection Mode"}};
constexpr auto kHTInformationSubset2 = bitFields<16>({
    value(kProtectionBits, "HT Protection", kHTProtection),
    flag(0x0004, "Non-Greenfield HT STAs Present",
         "One or more associated STAs are not greenfield capable",
         "All associated STAs are greenfield capable"),
    flag(0x0008, "Transmit Burst Limit", "6.16 ms for 2.4 GHz, all other bands 3.08 ms",
         "No limit"),
    flag(0x0010, "OBSS Non-HT STAs Present",
         "Use of protection for non-HT STAs by overlapping BSSs is needed",
         "Use of protection for non-HT STAs by overlapping BSSs is not needed"),
    bits(0xffe0, "Reserved"),
});

constexpr auto kHTInformationSubset3 = bitFields<16>({
    bits(0x003f, "Reserved"),
    flag(0x0040, "Dual Beacon", "Yes", "No"),
    flag(0x0080, "Dual Clear-to-Send (CTS) Protection", "Required", "Not required"),
    flag(0x0100, "STBC Beacon", "Secondary", "Primary"),
    flag(0x0200, "L-SIG TXOP Protection Full Support",
         "All HT STAs in the BSS support L-SIG TXOP protection",
         "One or more HT STAs in the BSS do not support L-SIG TXOP protection"),
    flag(0x0400, "Phased Coexistence Operation (PCO) Active", "Set", "Not set"),
    flag(0x0800, "Phased Coexistence Operation (PCO) Phase", "Switch to or continue 40 MHz phase",
         "Switch to or continue 20 MHz phase"),
    bits(0xf000, "Reserved"),
});

} // namespace

std::span<const Field> parseHTInfo(ElementDecoder& e)
{
    const std::string_view channel = e.decimal(e.u8(0));
    const std::uint8_t subset1 = e.u8(1);
    const std::uint16_t subset2 = e.u16(2);
    const std::uint16_t subset3 = e.u16(4);
    JoinedText summary(e, ", ");
    summary.add(e.concatenated(
        {"Primary Channel: ", channel,
         subset1 & kAnyWidth ? " (Any Width Supported)" : " (20 MHz Channel Width Only)"}));
    if ((subset1 & kOffsetBits) == 1)
        summary.add("Secondary Channel Offset: +1");
    else if ((subset1 & kOffsetBits) == 3)
        summary.add("Secondary Channel Offset: -1");
    summary.add(textFor(kHTProtection, subset2 & kProtectionBits).value_or(kNullText));

    FieldList& rows = e.list(5);
    rows.push_back(entryWithName("Primary Channel", channel));
    rows.push_back(e.bitsEntry("HT Information Subset (1 of 3)", kHTInformationSubset1, subset1));
    rows.push_back(e.bitsEntry("HT Information Subset (2 of 3)", kHTInformationSubset2, subset2));
    rows.push_back(e.bitsEntry("HT Information Subset (3 of 3)", kHTInformationSubset3, subset3));
    parseMCSSetIntoArray(e, 6, true, rows, summary);
    e.setSummary(summary.text());
    return rows;
}

// Secondary Channel Offset: 9.4.2.19 --------------------------------------------------------------

std::span<const Field> parseSecondaryChannelOffset(ElementDecoder& e)
{
    return e.fields(
        {entryWithName("Secondary Channel Offset", textFor(kSecondaryChannelOffset, e.u8(0)))});
}

} // namespace tessara
