#pragma once

#include "elements/BitField.h"
#include "elements/FieldText.h"

#include <memory_resource>
#include <optional>
#include <span>
#include <variant>
#include <vector>

namespace tessara {

struct Field;

/// The bits of a value, one row for each bit field of a table.
struct BitRows {
    BitFields bitFields;
    std::uint32_t value;
};

/// The rows below a row. Those of bits are most of what an element shows: they are made when they
/// are looked at (`forEachSubfield`).
using Subfields = std::variant<std::span<const Field>, BitRows>;

/// One row of a decoded element. Texts are UTF-8; what has nothing to say is absent, not empty.
///
/// There are two kinds. An entry has a `fieldName`, such as "Length", and its value. A sub-entry
/// shows some bits of the entry above it: it has the bits as `fieldSubfieldName`, such as
/// ".... ..1.", the name of the bits as `fieldValue` and what they mean as `fieldNotes`.
struct Field {
    FieldText fieldName;
    FieldText fieldSubfieldName;
    FieldText fieldValue;
    FieldText fieldNotes; ///< unit or meaning
    std::optional<Subfields> fieldSubfields;
};

/// A list of rows that grows.
using FieldList = std::pmr::vector<Field>;

inline Field entryWithName(FieldText name, FieldText value = {}, FieldText notes = {},
                           std::optional<Subfields> subfields = {})
{
    return {.fieldName = name,
            .fieldSubfieldName = {},
            .fieldValue = value,
            .fieldNotes = notes,
            .fieldSubfields = subfields};
}

/// @param name of the bit field
/// @param value the bits as text
inline Field subEntryWithName(FieldText name, FieldText value, FieldText notes = {})
{
    return {.fieldName = {},
            .fieldSubfieldName = value,
            .fieldValue = name,
            .fieldNotes = notes,
            .fieldSubfields = {}};
}

} // namespace tessara
