#pragma once

#include "elements/ValueText.h"

#include <array>
#include <cstddef>

namespace tessara {

/// The bits of the field that a mask is for.
enum class BitWidth { k8 = 8, k16 = 16, k32 = 32 };

/// Some bits of a field and how they are shown.
struct BitField {
    enum class Kind {
        kBool,        ///< one of two texts
        kValue,       ///< the text of the number that the bits make, and the number
        kDecimal,     ///< the number, in decimal and hexadecimal
        kHexadecimal, ///< the number in hexadecimal
        kBitsOnly,    ///< nothing but the bits
    };

    std::uint32_t mask;
    std::string_view name;
    Kind kind;
    std::string_view whenSet = {};
    std::string_view whenClear = {};
    std::span<const ValueText> values = {};
};

consteval BitField flag(std::uint32_t mask, std::string_view name, std::string_view whenSet,
                        std::string_view whenClear)
{
    return {mask, name, BitField::Kind::kBool, whenSet, whenClear};
}

consteval BitField value(std::uint32_t mask, std::string_view name,
                         std::span<const ValueText> values)
{
    for (const ValueText& row : values) {
        if (row.text.size() > kLongestValueText)
            throw "a text is too long";
    }
    return {mask, name, BitField::Kind::kValue, {}, {}, values};
}

consteval BitField decimal(std::uint32_t mask, std::string_view name)
{
    return {mask, name, BitField::Kind::kDecimal};
}

consteval BitField hexadecimal(std::uint32_t mask, std::string_view name)
{
    return {mask, name, BitField::Kind::kHexadecimal};
}

consteval BitField bits(std::uint32_t mask, std::string_view name)
{
    return {mask, name, BitField::Kind::kBitsOnly};
}

/// The bit fields of a field, in the order in which they are shown.
template <std::size_t Count>
struct BitFieldTable {
    BitWidth width;
    std::array<BitField, Count> fields;
};

/// Does not compile if a mask is empty, wider than the field, or shares a bit with another.
template <int Width, std::size_t Count>
consteval BitFieldTable<Count> bitFields(const BitField (&fields)[Count])
{
    static_assert(Width == 8 || Width == 16 || Width == 32);
    BitFieldTable<Count> table{BitWidth{Width}, {}};
    std::uint64_t seen = 0;
    for (std::size_t i = 0; i < Count; ++i) {
        const std::uint64_t mask = fields[i].mask;
        if (mask == 0 || mask >> Width != 0 || (mask & seen) != 0)
            throw "a mask is empty, too wide, or shares a bit with another";
        seen |= mask;
        table.fields[i] = fields[i];
    }
    return table;
}

/// Such a table, of whatever length.
struct BitFields {
    template <std::size_t Count>
    constexpr BitFields(const BitFieldTable<Count>& table)
        : width(table.width)
        , fields(table.fields)
    {
    }

    BitWidth width;
    std::span<const BitField> fields;
};

} // namespace tessara
