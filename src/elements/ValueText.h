#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tessara {

/// A row of a table that gives a number its text.
struct ValueText {
    std::uint32_t number;
    std::string_view text;
};

/// The longest text of such a table that is shown beside its number.
inline constexpr std::size_t kLongestValueText = 112;

/// What stands where there is no text for a number but something has to stand.
inline constexpr std::string_view kNullText = "(null)";

constexpr std::optional<std::string_view> textFor(std::span<const ValueText> table,
                                                  std::uint32_t number)
{
    for (const ValueText& row : table) {
        if (row.number == number)
            return row.text;
    }
    return std::nullopt;
}

} // namespace tessara
