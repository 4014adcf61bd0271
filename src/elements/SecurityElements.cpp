#include "elements/SecurityElements.h"

#include "elements/SuiteLists.h"

namespace tessara {

namespace {

constexpr SuiteNames kGroupCipher = {SuiteKind::kCipher, "Group Cipher Suite OUI",
                                     "Group Cipher Suite Type"};
constexpr SuiteNames kPairwiseCiphers = {
    SuiteKind::kCipher, "Pairwise Cipher Suite OUI", "Pairwise Cipher Suite Type",
    "Pairwise Cipher Suite Count", "Pairwise Cipher Suite List"};
constexpr SuiteNames kAuthKeyManagement = {
    SuiteKind::kAuth, "Auth Key Management Suite OUI", "Auth Key Management Suite Type",
    "Auth Key Management Suite Count", "Auth Key Management Suite List"};

// 9.4.2.24.4; bits above 9 are not shown.
constexpr ValueText kReplayCounters[] = {{0, "1 replay counter"},
                                         {1, "2 replay counters"},
                                         {2, "4 replay counters"},
                                         {3, "16 replay counters"}};
constexpr auto kRSNCapabilities = bitFields<16>({
    flag(0x0001, "RSN Pre-Authentication Capabilities", "Supported", "Not supported"),
    flag(0x0002, "RSN No Pairwise Capabilities",
         "STA cannot support WEP default key simultaneously with Pairwise key",
         "STA can support WEP default key simultaneously with Pairwise key"),
    value(0x000c, "RSN PTKSA Replay Counter Capabilities", kReplayCounters),
    value(0x0030, "RSN GTKSA Replay Counter Capabilities", kReplayCounters),
    flag(0x0040, "Management Frame Protection Required", "Yes", "No"),
    flag(0x0080, "Management Frame Protection Capable", "Yes", "No"),
    flag(0x0100, "Joint Multi-band RSNA", "Supported", "Not supported"),
    flag(0x0200, "PeerKey Enabled", "Yes", "No"),
});

} // namespace

std::span<const Field> parseRSNIE(ElementDecoder& e)
{
    const Suite group(e, 2, kGroupCipher);
    const SuiteList pairwise(e, 6, kPairwiseCiphers);
    const SuiteList auth(e, pairwise.end, kAuthKeyManagement);
    const std::uint16_t capabilities = e.u16(auth.end);
    e.setSummary(e.concatenated({"Group Cipher: ", group.text, "; Pairwise Cipher(s): ",
                                 pairwise.texts, "; AKM Suite(s): ", auth.texts}));
    return e.fields({
        entryWithName("RSN Version", e.decimal(e.u16(0))),
        group.oui,
        group.type,
        pairwise.count,
        pairwise.list,
        auth.count,
        auth.list,
        e.bitsEntry("RSN Capabilities", kRSNCapabilities, capabilities),
    });
}

} // namespace tessara
