#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tessara {

/// What elements are called and what they are for, by their identifiers (IEEE Std 802.11-2020,
/// table 9-92, and some vendors' own).

/// Absent for an identifier without a name of its own.
std::optional<std::string_view> nameOfElement(std::uint8_t id);
/// One sentence, the key of its translation; absent for an element that has none.
const char* descriptionOfElement(std::uint8_t id);

} // namespace tessara
