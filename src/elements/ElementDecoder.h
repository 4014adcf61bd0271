#pragma once

#include "elements/BitItem.h"
#include "elements/FieldArena.h"

namespace tessara {

/// The longest content that the length byte can tell (IEEE Std 802.11-2020, 9.4.2.1).
inline constexpr std::size_t kLongestContent = 255;

/// What the decoder of an element works with: it reads the element's bytes, makes rows of them and
/// sets the summary. One of these serves the elements of a run one after the other; all their rows
/// live as long as this.
///
/// Offsets count from the first byte after the length. Numbers are little-endian unless they say
/// otherwise. Decoders believe the offsets and the counts they find: an element is shown as if
/// the bytes it lacks were there, and zero, up to the longest element that can be.
class ElementDecoder final : public FieldArena {
public:
    using FieldArena::FieldArena;

    /// Turns to an element. @param value stays where it is as long as this
    void begin(Bytes value);

    // Bytes -----------------------------------------------------------------------------------

    std::size_t length() const { return m_length; }
    std::uint8_t u8(std::size_t offset) const { return m_value.u8OrZero(offset); }
    std::int8_t i8(std::size_t offset) const { return static_cast<std::int8_t>(u8(offset)); }
    std::uint16_t u16(std::size_t offset) const
    {
        return static_cast<std::uint16_t>(u8(offset) | u8(offset + 1) << 8);
    }
    std::uint32_t u32(std::size_t offset) const
    {
        return u16(offset) | std::uint32_t{u16(offset + 2)} << 16;
    }
    std::uint16_t u16BigEndian(std::size_t offset) const
    {
        return static_cast<std::uint16_t>(u8(offset) << 8 | u8(offset + 1));
    }
    /// So many bytes, also where the element has ended.
    Bytes bytes(std::size_t offset, std::size_t count)
    {
        return offset + count <= m_length ? m_value.slice(offset, count)
                                          : paddedValue().slice(offset, count);
    }
    /// The bytes up to the end of the element; none behind it.
    Bytes from(std::size_t offset) const
    {
        return offset < m_length ? m_value.slice(offset, m_length - offset) : Bytes{};
    }

    // Texts -----------------------------------------------------------------------------------

    /// Absent if the bytes are no UTF-8.
    static std::optional<std::string_view> utf8(Bytes bytes);
    /// Absent if one of the bytes is no ASCII.
    static std::optional<std::string_view> ascii(Bytes bytes);
    /// "00-0F-AC"
    std::string_view ouiText(std::size_t offset);
    /// The maker that an OUI stands for, in brackets.
    std::string_view vendorNote(Bytes oui);

    // Rows ------------------------------------------------------------------------------------

    /// The bits of a value, with a row for each of the bit fields.
    static BitRows bitRows(const BitFields& bitFields, std::uint32_t value)
    {
        return {bitFields, value};
    }
    /// The value in hexadecimal, with as many digits as it has room for, and its bits below.
    Field bitsEntry(std::string_view name, const BitFields& bitFields, std::uint32_t value);
    /// Makes a row of bits and keeps its texts.
    BitItem& bitItem();

    std::string_view summary() const { return m_summary; }
    void setSummary(std::string_view summary) { m_summary = summary; }

private:
    /// The element with zeros for the bytes that it lacks of the longest content.
    ByteReader paddedValue();

    std::size_t m_length = 0;
    ByteReader m_value{Bytes()};
    Bytes m_paddedValue; ///< empty until it is asked for
    std::string_view m_summary = "";
};

} // namespace tessara
