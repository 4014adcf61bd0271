#include "elements/BitFieldItems.h"

#include <algorithm>
#include <bit>

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

} // namespace

std::string_view stringForBitMask(FieldArena& arena, BitWidth width, std::uint32_t mask,
                                  std::uint32_t value)
{
    const int bits = static_cast<int>(width);
    const std::span<char> text = arena.allocateText(bits + bits / 4 - 1);
    auto out = text.begin();
    for (int shift = bits - 4; shift >= 0; shift -= 4) {
        out = std::ranges::copy(kNibbles[mask >> shift & 0xf][value >> shift & 0xf], out).out;
        if (shift > 0)
            *out++ = ' ';
    }
    return {text.data(), text.size()};
}

/// What the masked bits make when they stand alone.
std::uint32_t BitFieldItems::number(std::uint32_t mask) const
{
    return mask == 0 ? 0 : (m_value & mask) >> std::countr_zero(mask);
}

std::string_view BitFieldItems::hex(std::uint32_t number) const
{
    return m_arena.hex(number, static_cast<int>(m_width) / 4);
}

Field BitFieldItems::boolItemWithBitMask(std::uint32_t mask, std::string_view description,
                                         std::string_view trueString,
                                         std::string_view falseString) const
{
    return subEntryWithName(description, bits(mask),
                            (m_value & mask) != 0 ? trueString : falseString);
}

Field BitFieldItems::valueItemWithBitMask(std::uint32_t mask, std::string_view description,
                                          std::span<const ValueText> valueString) const
{
    const std::uint32_t n = number(mask);
    const std::string_view text = textFor(valueString, n).value_or(kNullText);
    return subEntryWithName(description, bits(mask),
                            m_arena.concatenated({text, " (", hex(n), ")"}));
}

Field BitFieldItems::decimalItemWithBitMask(std::uint32_t mask, std::string_view description) const
{
    const std::uint32_t n = number(mask);
    return subEntryWithName(description, bits(mask),
                            m_arena.concatenated({m_arena.decimal(n), " (", hex(n), ")"}));
}

Field BitFieldItems::hexItemWithBitMask(std::uint32_t mask, std::string_view description) const
{
    return subEntryWithName(description, bits(mask), hex(number(mask)));
}

Field BitFieldItems::bitsItemWithBitMask(std::uint32_t mask, std::string_view description) const
{
    return subEntryWithName(description, bits(mask));
}

Field BitFieldItems::item(const BitField& field) const
{
    switch (field.kind) {
    case BitField::Kind::kBool:
        return boolItemWithBitMask(field.mask, field.name, field.whenSet, field.whenClear);
    case BitField::Kind::kValue:
        return valueItemWithBitMask(field.mask, field.name, field.values);
    case BitField::Kind::kDecimal:
        return decimalItemWithBitMask(field.mask, field.name);
    case BitField::Kind::kHexadecimal:
        return hexItemWithBitMask(field.mask, field.name);
    case BitField::Kind::kBitsOnly:
        break;
    }
    return bitsItemWithBitMask(field.mask, field.name);
}

} // namespace tessara
