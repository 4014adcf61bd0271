#pragma once

#include "elements/BitField.h"
#include "elements/Field.h"

#include <array>

namespace tessara {

/// The longest texts of a row of bits, in bytes: its bits, and a number with its text.
inline constexpr std::size_t kLongestBits = 39;
inline constexpr std::size_t kLongestBitNotes = kLongestValueText + 16;

/// The bits of a value under a mask, most significant first, with a blank after each four: "."
/// where the mask has none.
/// @param room takes the text
std::string_view stringForBitMask(BitWidth width, std::uint32_t mask, std::uint32_t value,
                                  std::array<char, kLongestBits>& room);

/// Makes the row of some bits of a value. The row's texts live in this.
class BitItem {
public:
    Field boolItemWithBitMask(BitWidth width, std::uint32_t mask, std::string_view description,
                              std::uint32_t value, std::string_view trueString,
                              std::string_view falseString);
    /// A number without a text is shown as "(null)", and as number.
    Field valueItemWithBitMask(BitWidth width, std::uint32_t mask, std::string_view description,
                               std::uint32_t value, std::span<const ValueText> valueString);
    Field decimalItemWithBitMask(BitWidth width, std::uint32_t mask, std::string_view description,
                                 std::uint32_t value);
    Field hexItemWithBitMask(BitWidth width, std::uint32_t mask, std::string_view description,
                             std::uint32_t value);
    Field bitsItemWithBitMask(BitWidth width, std::uint32_t mask, std::string_view description,
                              std::uint32_t value, FieldText notes = {});

    Field item(const BitField& field, BitWidth width, std::uint32_t value);

private:
    std::string_view textAndNumber(BitWidth width, std::string_view text, std::uint32_t number);

    std::array<char, kLongestBits> m_bits;
    std::array<char, kLongestBitNotes> m_notes;
};

} // namespace tessara
