#include "elements/SuiteLists.h"

#include "elements/JoinedText.h"

#include <algorithm>

namespace tessara {

namespace {

// Table 9-149.
constexpr ValueText kCipherTypes[] = {
    {0, "None"},      {1, "WEP (40-bit)"},  {2, "TKIP"}, {3, "AES (OCB)"},
    {4, "AES (CCM)"}, {5, "WEP (104-bit)"}, {6, "BIP"},  {7, "Group addressed traffic not allowed"},
    {8, "GCMP"},
};

// Table 9-151.
constexpr ValueText kAuthTypes[] = {
    {0, "None"},         {1, "802.1X"},       {2, "PSK"},          {3, "FT over IEEE 802.1X"},
    {4, "FT using PSK"}, {5, "WPA (SHA256)"}, {6, "PSK (SHA256)"}, {7, "TDLS / TPK Handshake"},
};

} // namespace

std::string_view stringForCipherType(std::uint8_t type)
{
    return textFor(kCipherTypes, type).value_or("Unknown");
}

std::string_view stringForAuthType(std::uint8_t type)
{
    return textFor(kAuthTypes, type).value_or("Unknown");
}

Suite::Suite(ElementDecoder& e, std::size_t offset, const SuiteNames& names)
    : oui(entryWithName(names.oui, e.ouiText(offset), e.vendorNote(e.bytes(offset, 3))))
{
    const std::uint8_t number = e.u8(offset + 3);
    text =
        names.kind == SuiteKind::kCipher ? stringForCipherType(number) : stringForAuthType(number);
    type = entryWithName(names.type, text, e.concatenated({"(", e.decimal(number), ")"}));
}

SuiteList::SuiteList(ElementDecoder& e, std::size_t offset, const SuiteNames& names)
{
    const std::size_t suites = e.u16(offset);
    const std::size_t first = offset + 2;
    end = first + suites * Suite::kSize;

    // A count may lie: past the longest element there is nothing, not even zeros.
    const std::size_t present = e.bytes(first, suites * Suite::kSize).size() / Suite::kSize;
    FieldList& rows = e.list(2 * present);
    JoinedText joined(e, ", ");
    for (std::size_t i = 0; i < present; ++i) {
        const Suite suite(e, first + i * Suite::kSize, names);
        rows.push_back(suite.oui);
        rows.push_back(suite.type);
        joined.add(suite.text);
    }
    count = entryWithName(names.count, e.decimal(static_cast<std::int64_t>(suites)));
    list = entryWithName(names.list, {}, {}, rows);
    texts = joined.text();
}

} // namespace tessara
