#include "elements/BitItem.h"

#include <algorithm>
#include <bit>
#include <charconv>

namespace tessara {

namespace {

/// The text of four bits, by mask and value.
constexpr auto kNibbles = [] {
    std::array<std::array<std::array<char, 4>, 16>, 16> texts{};
    for (unsigned mask = 0; mask < 16; ++mask) {
        for (unsigned value = 0; value < 16; ++value) {
            for (unsigned i = 0; i < 4; ++i) {
                const unsigned bit = 8U >> i;
                texts[mask][value][i] = !(mask & bit) ? '.' : value & bit ? '1' : '0';
            }
        }
    }
    return texts;
}();

/// What the masked bits make when they stand alone.
constexpr std::uint32_t maskedNumber(std::uint32_t mask, std::uint32_t value)
{
    return mask == 0 ? 0 : (value & mask) >> std::countr_zero(mask);
}

char* putHex(char* out, std::uint32_t number, BitWidth width)
{
    *out++ = '0';
    *out++ = 'x';
    for (int shift = static_cast<int>(width) - 4; shift >= 0; shift -= 4)
        *out++ = "0123456789abcdef"[number >> shift & 0xf];
    return out;
}

} // namespace

std::string_view stringForBitMask(BitWidth width, std::uint32_t mask, std::uint32_t value,
                                  std::array<char, kLongestBits>& room)
{
    char* out = room.data();
    for (int shift = static_cast<int>(width) - 4; shift >= 0; shift -= 4) {
        out = std::ranges::copy(kNibbles[mask >> shift & 0xf][value >> shift & 0xf], out).out;
        if (shift > 0)
            *out++ = ' ';
    }
    return {room.data(), out};
}

/// "TEXT (0x0f)"
std::string_view BitItem::textAndNumber(BitWidth width, std::string_view text, std::uint32_t number)
{
    char* out = std::ranges::copy(text, m_notes.data()).out;
    out = std::ranges::copy(std::string_view(" ("), out).out;
    out = putHex(out, number, width);
    *out++ = ')';
    return {m_notes.data(), out};
}

Field BitItem::bitsItemWithBitMask(BitWidth width, std::uint32_t mask, std::string_view description,
                                   std::uint32_t value, FieldText notes)
{
    return subEntryWithName(description, stringForBitMask(width, mask, value, m_bits), notes);
}

Field BitItem::boolItemWithBitMask(BitWidth width, std::uint32_t mask, std::string_view description,
                                   std::uint32_t value, std::string_view trueString,
                                   std::string_view falseString)
{
    return bitsItemWithBitMask(width, mask, description, value,
                               (value & mask) != 0 ? trueString : falseString);
}

Field BitItem::valueItemWithBitMask(BitWidth width, std::uint32_t mask,
                                    std::string_view description, std::uint32_t value,
                                    std::span<const ValueText> valueString)
{
    const std::uint32_t number = maskedNumber(mask, value);
    const std::string_view text = textFor(valueString, number).value_or(kNullText);
    return bitsItemWithBitMask(width, mask, description, value, textAndNumber(width, text, number));
}

Field BitItem::decimalItemWithBitMask(BitWidth width, std::uint32_t mask,
                                      std::string_view description, std::uint32_t value)
{
    const std::uint32_t number = maskedNumber(mask, value);
    std::array<char, 10> digits;
    const char* end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    return bitsItemWithBitMask(width, mask, description, value,
                               textAndNumber(width, {digits.begin(), end}, number));
}

Field BitItem::hexItemWithBitMask(BitWidth width, std::uint32_t mask, std::string_view description,
                                  std::uint32_t value)
{
    const char* end = putHex(m_notes.data(), maskedNumber(mask, value), width);
    return bitsItemWithBitMask(width, mask, description, value,
                               std::string_view(m_notes.data(), end));
}

Field BitItem::item(const BitField& field, BitWidth width, std::uint32_t value)
{
    switch (field.kind) {
    case BitField::Kind::kBool:
        return boolItemWithBitMask(width, field.mask, field.name, value, field.whenSet,
                                   field.whenClear);
    case BitField::Kind::kValue:
        return valueItemWithBitMask(width, field.mask, field.name, value, field.values);
    case BitField::Kind::kDecimal:
        return decimalItemWithBitMask(width, field.mask, field.name, value);
    case BitField::Kind::kHexadecimal:
        return hexItemWithBitMask(width, field.mask, field.name, value);
    case BitField::Kind::kBitsOnly:
        break;
    }
    return bitsItemWithBitMask(width, field.mask, field.name, value);
}

} // namespace tessara
