#pragma once

#include <cstddef>
#include <vector>

namespace tessara {

/// What leads from the rows that a model shows to other ones, so that views follow row by row.
struct RowChanges {
    static constexpr int kGone = -1;

    /// Rows that lie next to each other: the first and one past the last.
    struct Run {
        int first;
        int end;
    };

    /// @param newRow of each row shown its new row; kGone for a row that goes
    /// @param count how many rows there are to be
    RowChanges(std::vector<int> newRow, std::size_t count);

    std::size_t steps() const { return removed.size() + moved.size() + inserted.size(); }

    /// For a change of all rows at once: of each row shown, and then of each that is new, the place
    /// it takes when what goes stands at the end.
    std::vector<int> places() const;

    std::vector<int> newRow;
    std::vector<bool> isNew;   ///< of each row to come
    std::vector<Run> removed;  ///< in rows shown
    std::vector<int> moved;    ///< new rows of what changes its place among those that remain
    std::vector<Run> inserted; ///< in rows to come
};

} // namespace tessara
