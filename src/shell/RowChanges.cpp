#include "shell/RowChanges.h"

#include <algorithm>
#include <iterator>

namespace tessara {

namespace {

/// The runs of rows that fulfil a condition, in order.
template <typename Condition>
std::vector<RowChanges::Run> runsOf(std::size_t rows, Condition condition)
{
    std::vector<RowChanges::Run> runs;
    for (std::size_t row = 0; row < rows; ++row) {
        if (!condition(row))
            continue;
        const int number = static_cast<int>(row);
        if (!runs.empty() && runs.back().end == number)
            ++runs.back().end;
        else
            runs.push_back({number, number + 1});
    }
    return runs;
}

/// Marks the members of a longest increasing subsequence of the targets, leaving out those that
/// are gone: the rows that can stay where they are while the others move around them.
std::vector<bool> longestIncreasing(const std::vector<int>& targets)
{
    std::vector<std::size_t> tails; // of the best subsequence of each length, its last member
    std::vector<std::ptrdiff_t> previous(targets.size(), -1);
    for (std::size_t i = 0; i < targets.size(); ++i) {
        if (targets[i] == RowChanges::kGone)
            continue;
        const auto place =
            std::ranges::lower_bound(tails, targets[i], {}, [&](auto j) { return targets[j]; });
        if (place != tails.begin())
            previous[i] = static_cast<std::ptrdiff_t>(*std::prev(place));
        if (place == tails.end())
            tails.push_back(i);
        else
            *place = i;
    }
    std::vector<bool> member(targets.size(), false);
    for (std::ptrdiff_t i = tails.empty() ? -1 : static_cast<std::ptrdiff_t>(tails.back()); i >= 0;
         i = previous[static_cast<std::size_t>(i)])
        member[static_cast<std::size_t>(i)] = true;
    return member;
}

} // namespace

RowChanges::RowChanges(std::vector<int> rows, std::size_t count)
    : newRow(std::move(rows))
    , isNew(count, true)
{
    for (const int row : newRow) {
        if (row != kGone)
            isNew[static_cast<std::size_t>(row)] = false;
    }
    const std::vector<bool> stays = longestIncreasing(newRow);
    for (std::size_t row = 0; row < newRow.size(); ++row) {
        if (newRow[row] != kGone && !stays[row])
            moved.push_back(newRow[row]);
    }
    std::ranges::sort(moved);
    removed = runsOf(newRow.size(), [&](std::size_t row) { return newRow[row] == kGone; });
    inserted = runsOf(count, [&](std::size_t row) { return isNew[row]; });
}

std::vector<int> RowChanges::places() const
{
    std::vector<int> places = newRow;
    int end = static_cast<int>(isNew.size());
    for (int& place : places) {
        if (place == kGone)
            place = end++;
    }
    for (std::size_t row = 0; row < isNew.size(); ++row) {
        if (isNew[row])
            places.push_back(static_cast<int>(row));
    }
    return places;
}

} // namespace tessara
