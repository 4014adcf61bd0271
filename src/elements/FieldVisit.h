#pragma once

#include "elements/BitItem.h"

namespace tessara {

/// Calls `visit(const Field&)` for each row below a row, in order. The row that it gets, and the
/// row's texts, may be gone after the call.
template <typename Visit>
void forEachSubfield(const Field& field, Visit&& visit)
{
    if (!field.fieldSubfields)
        return;
    if (const auto* bits = std::get_if<BitRows>(&*field.fieldSubfields)) {
        BitItem item;
        for (const BitField& bitField : bits->bitFields.fields)
            visit(item.item(bitField, bits->bitFields.width, bits->value));
        return;
    }
    for (const Field& row : std::get<std::span<const Field>>(*field.fieldSubfields))
        visit(row);
}

} // namespace tessara
