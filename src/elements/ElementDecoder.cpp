#include "elements/ElementDecoder.h"

#include "elements/ElementVendor.h"
#include "foundation/Utf8.h"

#include <QUtf8StringView>

#include <algorithm>

namespace tessara {

void ElementDecoder::begin(Bytes value)
{
    m_length = value.size();
    m_value = ByteReader(value);
    m_paddedValue = {};
    m_summary = "";
}

ByteReader ElementDecoder::paddedValue()
{
    if (m_paddedValue.empty())
        m_paddedValue = zeroPadded(from(0), std::max(m_length, kLongestContent));
    return ByteReader(m_paddedValue);
}

std::optional<std::string_view> ElementDecoder::utf8(Bytes bytes)
{
    const QUtf8StringView text(bytes.data(), static_cast<qsizetype>(bytes.size()));
    if (!text.isValidUtf8())
        return std::nullopt;
    return charactersOf(bytes);
}

std::optional<std::string_view> ElementDecoder::ascii(Bytes bytes)
{
    if (std::ranges::any_of(bytes, [](std::uint8_t byte) { return byte > 0x7f; }))
        return std::nullopt;
    return charactersOf(bytes);
}

std::string_view ElementDecoder::ouiText(std::size_t offset)
{
    return hexadecimalString(bytes(offset, 3), 0, 3, "-");
}

std::string_view ElementDecoder::vendorNote(Bytes oui)
{
    const auto vendor = vendorOfOUI(oui);
    return vendor ? concatenated({"(", vendor->toStdString(), ")"}) : "((null))";
}

Field ElementDecoder::bitsEntry(std::string_view name, const BitFields& bitFields,
                                std::uint32_t value)
{
    return entryWithName(name, hex(value, static_cast<int>(bitFields.width) / 4), {},
                         bitRows(bitFields, value));
}

BitItem& ElementDecoder::bitItem()
{
    return make<BitItem>();
}

} // namespace tessara
