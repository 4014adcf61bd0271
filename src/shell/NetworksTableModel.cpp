#include "shell/NetworksTableModel.h"

#include "foundation/Localized.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <vector>

namespace tessara {

namespace {

// More steps than this cost more than one change of the whole layout, and so does a single step
// where views hold more indexes than this: at a move, a selection model takes one for each cell of
// each selected row, and a hundred selected rows make a move last a third of a second.
constexpr std::size_t kMaxSteps = 50;
constexpr qsizetype kMaxIndexes = 16;

constexpr int kGone = -1;

/// Rows that lie next to each other: the first and one past the last.
struct Run {
    int first;
    int end;
};

/// The runs of rows that fulfil a condition, in order.
template <typename Condition>
std::vector<Run> runsOf(std::size_t rows, Condition condition)
{
    std::vector<Run> runs;
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
        if (targets[i] == kGone)
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

int rowOf(const NetworkList& networks, const NetworkPtr& network)
{
    return static_cast<int>(std::ranges::find(networks, network) - networks.begin());
}

} // namespace

/// What leads from the rows shown to a new list.
struct NetworksTableModel::Changes {
    Changes(const NetworkList& from, const NetworkList& to)
        : newRow(from.size(), kGone)
        , isNew(to.size(), true)
    {
        std::unordered_map<const TSNetwork*, std::size_t> rows;
        rows.reserve(to.size());
        for (std::size_t row = 0; row < to.size(); ++row)
            rows.emplace(to[row].get(), row);
        for (std::size_t row = 0; row < from.size(); ++row) {
            const auto found = rows.find(from[row].get());
            if (found == rows.end())
                continue;
            newRow[row] = static_cast<int>(found->second);
            isNew[found->second] = false;
        }
        const std::vector<bool> stays = longestIncreasing(newRow);
        for (std::size_t row = 0; row < from.size(); ++row) {
            if (newRow[row] != kGone && !stays[row])
                moved.push_back(newRow[row]);
        }
        std::ranges::sort(moved);
        removed = runsOf(from.size(), [&](std::size_t row) { return newRow[row] == kGone; });
        inserted = runsOf(to.size(), [&](std::size_t row) { return isNew[row]; });
    }

    std::size_t steps() const { return removed.size() + moved.size() + inserted.size(); }

    std::vector<int> newRow;   ///< of each row shown; kGone for a row that goes
    std::vector<bool> isNew;   ///< of each row to come
    std::vector<Run> removed;  ///< in rows shown
    std::vector<int> moved;    ///< new rows of what changes its place among those that remain
    std::vector<Run> inserted; ///< in rows to come
};

void NetworksTableModel::setNetworks(const NetworkList& networks, const CellContext& context)
{
    m_context = context;
    if (networks != m_networks) {
        const Changes changes(m_networks, networks);
        if (changes.steps() <= kMaxSteps && persistentIndexList().size() <= kMaxIndexes) {
            removeRuns(changes);
            moveRuns(changes, networks);
            insertRuns(changes, networks);
        } else {
            rebuild(changes, networks);
        }
    }
    // Nearly every tick changes a text of nearly every row; views repaint what they show.
    if (!m_networks.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void NetworksTableModel::removeRuns(const Changes& changes)
{
    for (auto run = changes.removed.rbegin(); run != changes.removed.rend(); ++run) {
        beginRemoveRows({}, run->first, run->end - 1);
        m_networks.erase(m_networks.begin() + run->first, m_networks.begin() + run->end);
        endRemoveRows();
    }
}

/// Puts each row that moves right behind the one that it is to follow. Taken from the top of the
/// new list, what it is to follow is in its place already.
void NetworksTableModel::moveRuns(const Changes& changes, const NetworkList& networks)
{
    for (const int target : changes.moved) {
        int predecessor = target - 1;
        while (predecessor >= 0 && changes.isNew[static_cast<std::size_t>(predecessor)])
            --predecessor;
        const int from = rowOf(m_networks, networks[static_cast<std::size_t>(target)]);
        const int to = predecessor < 0
                           ? 0
                           : rowOf(m_networks, networks[static_cast<std::size_t>(predecessor)]) + 1;
        if (to == from || to == from + 1)
            continue; // the moves before this one have brought it there
        beginMoveRows({}, from, from, {}, to);
        const auto row = m_networks.begin() + from;
        if (from < to)
            std::rotate(row, row + 1, m_networks.begin() + to);
        else
            std::rotate(m_networks.begin() + to, row, row + 1);
        endMoveRows();
    }
}

void NetworksTableModel::insertRuns(const Changes& changes, const NetworkList& networks)
{
    for (const Run& run : changes.inserted) {
        beginInsertRows({}, run.first, run.end - 1);
        m_networks.insert(m_networks.begin() + run.first, networks.begin() + run.first,
                          networks.begin() + run.end);
        endInsertRows();
    }
}

/// The way in few steps, however much has changed: what is new comes in at the bottom, all rows
/// take their places at once, and what goes, by then at the bottom, is cut off.
void NetworksTableModel::rebuild(const Changes& changes, const NetworkList& networks)
{
    std::vector<int> places = changes.newRow; // of each row, its row after the rearrangement
    NetworkList gone;
    for (std::size_t row = 0; row < places.size(); ++row) {
        if (places[row] != kGone)
            continue;
        places[row] = static_cast<int>(networks.size() + gone.size());
        gone.push_back(m_networks[row]);
    }
    const std::size_t shown = m_networks.size();
    for (std::size_t row = 0; row < networks.size(); ++row) {
        if (changes.isNew[row])
            places.push_back(static_cast<int>(row));
    }

    if (places.size() > shown) {
        beginInsertRows({}, static_cast<int>(shown), static_cast<int>(places.size()) - 1);
        for (std::size_t row = shown; row < places.size(); ++row)
            m_networks.push_back(networks[static_cast<std::size_t>(places[row])]);
        endInsertRows();
    }

    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& each : before)
        after.append(index(places[static_cast<std::size_t>(each.row())], each.column()));
    m_networks = networks;
    m_networks.insert(m_networks.end(), gone.begin(), gone.end());
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);

    if (!gone.empty()) {
        beginRemoveRows({}, static_cast<int>(networks.size()), rowCount() - 1);
        m_networks.resize(networks.size());
        endRemoveRows();
    }
}

int NetworksTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_networks.size());
}

int NetworksTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columnRegistry().size());
}

QVariant NetworksTableModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Column& column = columnRegistry()[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole:
        return column.text(networkAt(index), m_context);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(
            Qt::AlignVCenter | (column.alignsRight ? Qt::AlignRight : Qt::AlignLeft)));
    default:
        return {};
    }
}

QVariant NetworksTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const Column& column = columnRegistry()[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
        return localized(column.title);
    case Qt::ToolTipRole:
        return localized(column.description);
    default:
        return {};
    }
}

} // namespace tessara
