#include "elements/BitLines.h"

#include "elements/BitItem.h"

#include <algorithm>
#include <bit>
#include <unordered_map>

namespace tessara {

namespace {

/// So many lines are made at most for the values of one field.
constexpr std::uint32_t kMostLines = 16;

/// Whether the bits of a mask stand together and have few values.
bool hasFewValues(std::uint32_t mask)
{
    const std::uint32_t highest = mask >> std::countr_zero(mask);
    return (highest & (highest + 1)) == 0 && highest < kMostLines;
}

/// "..1. .... NAME: NOTES"
char* putRow(char* out, const Field& row)
{
    out = put(put(put(out, *row.fieldSubfieldName), " "), *row.fieldValue);
    return row.fieldNotes ? put(put(out, ": "), *row.fieldNotes) : out;
}

/// No line of a field is longer.
std::size_t longestLine(const BitField& field)
{
    const std::size_t notes =
        std::max({kLongestBitNotes, field.whenSet.size(), field.whenClear.size()});
    return kLongestBits + field.name.size() + notes + 3; // with the punctuation
}

} // namespace

const BitLines& BitLines::of(const BitFields& bitFields)
{
    // The tables are constants: where one lies tells it from the others.
    thread_local std::unordered_map<const BitField*, BitLines> tables;
    return tables.try_emplace(bitFields.fields.data(), bitFields).first->second;
}

BitLines::BitLines(const BitFields& bitFields)
    : m_width(bitFields.width)
{
    BitItem item;
    std::string line;
    for (const BitField& field : bitFields.fields) {
        m_room += kLineStart + longestLine(field);
        Row& row = m_rows.emplace_back(Row{&field, std::countr_zero(field.mask), {}});
        if (!hasFewValues(field.mask))
            continue;
        line.resize(longestLine(field));
        for (std::uint32_t number = 0; number <= field.mask >> row.shift; ++number) {
            const char* end = putRow(line.data(), item.item(field, m_width, number << row.shift));
            row.lines.emplace_back(line, 0, static_cast<std::size_t>(end - line.data()));
        }
    }
}

void BitLines::append(std::size_t depth, std::uint32_t value, DumpBuffer& lines) const
{
    char* out = lines.roomFor(m_room);
    for (const Row& row : m_rows) {
        out = putLineStart(out, depth);
        if (!row.lines.empty()) {
            out = put(out, row.lines[(value & row.field->mask) >> row.shift]);
        } else {
            BitItem item;
            out = putRow(out, item.item(*row.field, m_width, value));
        }
    }
    lines.setEnd(out);
}

} // namespace tessara
