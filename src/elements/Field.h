#pragma once

#include <memory_resource>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tessara {

/// One row of a decoded element. Texts are UTF-8; what has nothing to say is absent, not empty.
/// Texts and subfields live as long as the element that was decoded.
///
/// There are two kinds. An entry has a `fieldName`, such as "Length", and its value. A sub-entry
/// shows some bits of the entry above it: it has the bits as `fieldSubfieldName`, such as
/// ".... ..1.", the name of the bits as `fieldValue` and what they mean as `fieldNotes`.
struct Field {
    std::optional<std::string_view> fieldName;
    std::optional<std::string_view> fieldSubfieldName;
    std::optional<std::string_view> fieldValue;
    std::optional<std::string_view> fieldNotes; ///< unit or meaning
    std::optional<std::span<const Field>> fieldSubfields;
};

/// A list of rows that grows.
using FieldList = std::pmr::vector<Field>;

constexpr Field entryWithName(std::optional<std::string_view> name,
                              std::optional<std::string_view> value = {},
                              std::optional<std::string_view> notes = {},
                              std::optional<std::span<const Field>> subfields = {})
{
    return {.fieldName = name,
            .fieldSubfieldName = {},
            .fieldValue = value,
            .fieldNotes = notes,
            .fieldSubfields = subfields};
}

/// @param name of the bit field
/// @param value the bits as text
constexpr Field subEntryWithName(std::optional<std::string_view> name,
                                 std::optional<std::string_view> value,
                                 std::optional<std::string_view> notes = {})
{
    return {.fieldName = {},
            .fieldSubfieldName = value,
            .fieldValue = name,
            .fieldNotes = notes,
            .fieldSubfields = {}};
}

} // namespace tessara
