#pragma once

#include "elements/BitField.h"
#include "elements/DumpBuffer.h"

#include <string>
#include <vector>

namespace tessara {

/// The lines of a dump that show the fields of one table, finished but for the indent: those of a
/// flag or of a few bits are made once for each value that the bits can have. Most lines of a dump
/// are of this kind.
class BitLines {
public:
    /// Those of a table, made at the first request of a thread and kept.
    static const BitLines& of(const BitFields& bitFields);

    explicit BitLines(const BitFields& bitFields);

    /// Appends the line of each field.
    void append(std::size_t depth, std::uint32_t value, DumpBuffer& lines) const;

private:
    struct Row {
        const BitField* field;
        int shift;                      ///< of the field's bits
        std::vector<std::string> lines; ///< by the number that the bits make; none if they are many
    };

    BitWidth m_width;
    std::vector<Row> m_rows;
    std::size_t m_room = 0; ///< that all lines need at most, in bytes
};

} // namespace tessara
