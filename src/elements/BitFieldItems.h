#pragma once

#include "elements/BitField.h"
#include "elements/FieldArena.h"

namespace tessara {

/// The bits of a value under a mask, most significant first, with a blank after each four: "."
/// where the mask has none.
std::string_view stringForBitMask(FieldArena& arena, BitWidth width, std::uint32_t mask,
                                  std::uint32_t value);

/// Makes the items that show the bits of one field. Their texts live in the arena.
class BitFieldItems {
public:
    BitFieldItems(FieldArena& arena, BitWidth width, std::uint32_t value)
        : m_arena(arena)
        , m_width(width)
        , m_value(value)
    {
    }

    Field boolItemWithBitMask(std::uint32_t mask, std::string_view description,
                              std::string_view trueString, std::string_view falseString) const;
    /// A number without a text is shown as "(null)", and as number.
    Field valueItemWithBitMask(std::uint32_t mask, std::string_view description,
                               std::span<const ValueText> valueString) const;
    Field decimalItemWithBitMask(std::uint32_t mask, std::string_view description) const;
    Field hexItemWithBitMask(std::uint32_t mask, std::string_view description) const;
    Field bitsItemWithBitMask(std::uint32_t mask, std::string_view description) const;

    Field item(const BitField& field) const;

private:
    std::string_view bits(std::uint32_t mask) const
    {
        return stringForBitMask(m_arena, m_width, mask, m_value);
    }
    std::uint32_t number(std::uint32_t mask) const;
    std::string_view hex(std::uint32_t number) const;

    FieldArena& m_arena;
    BitWidth m_width;
    std::uint32_t m_value;
};

} // namespace tessara
