#include "shell/NetworksTableModel.h"

#include "charts/TSThemeHelper.h"
#include "foundation/Localized.h"
#include "shell/LegibleColor.h"
#include "shell/RowChanges.h"

#include <QGuiApplication>

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace tessara {

namespace {

// More steps than this cost more than one change of the whole layout, and so does a single step
// where views hold more indexes than this: at a move, a selection model takes one for each cell of
// each selected row, and a hundred selected rows make a move last a third of a second.
constexpr std::size_t kMaxSteps = 50;
constexpr qsizetype kMaxIndexes = 16;

bool isAnnotations(const QModelIndex& index)
{
    return columnRegistry()[static_cast<std::size_t>(index.column())].identifier ==
           QLatin1String("ANNOTATIONS");
}

int rowOf(const NetworkList& networks, const NetworkPtr& network)
{
    return static_cast<int>(std::ranges::find(networks, network) - networks.begin());
}

RowChanges changesBetween(const NetworkList& shown, const NetworkList& networks)
{
    std::unordered_map<const TSNetwork*, int> rows;
    rows.reserve(networks.size());
    for (const NetworkPtr& network : networks)
        rows.emplace(network.get(), static_cast<int>(rows.size()));
    std::vector<int> newRow;
    newRow.reserve(shown.size());
    for (const NetworkPtr& network : shown) {
        const auto found = rows.find(network.get());
        newRow.push_back(found == rows.end() ? RowChanges::kGone : found->second);
    }
    return {std::move(newRow), networks.size()};
}

} // namespace

void NetworksTableModel::setNetworks(const NetworkList& networks, const CellContext& context)
{
    m_context = context;
    if (networks != m_networks) {
        const RowChanges changes = changesBetween(m_networks, networks);
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

void NetworksTableModel::removeRuns(const RowChanges& changes)
{
    for (auto run = changes.removed.rbegin(); run != changes.removed.rend(); ++run) {
        beginRemoveRows({}, run->first, run->end - 1);
        m_networks.erase(m_networks.begin() + run->first, m_networks.begin() + run->end);
        endRemoveRows();
    }
}

/// Puts each row that moves right behind the one that it is to follow. Taken from the top of the
/// new list, what it is to follow is in its place already.
void NetworksTableModel::moveRuns(const RowChanges& changes, const NetworkList& networks)
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

void NetworksTableModel::insertRuns(const RowChanges& changes, const NetworkList& networks)
{
    for (const RowChanges::Run& run : changes.inserted) {
        beginInsertRows({}, run.first, run.end - 1);
        m_networks.insert(m_networks.begin() + run.first, networks.begin() + run.first,
                          networks.begin() + run.end);
        endInsertRows();
    }
}

/// The way in few steps, however much has changed: what is new comes in at the bottom, all rows
/// take their places at once, and what goes, by then at the bottom, is cut off.
void NetworksTableModel::rebuild(const RowChanges& changes, const NetworkList& networks)
{
    const std::vector<int> places = changes.places();
    const std::size_t shown = m_networks.size();
    NetworkList gone;
    for (std::size_t row = 0; row < shown; ++row) {
        if (changes.newRow[row] == RowChanges::kGone)
            gone.push_back(m_networks[row]);
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
    case Qt::EditRole:
        return isAnnotations(index) ? networkAt(index).annotations() : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::Alignment(
            Qt::AlignVCenter | (column.alignsRight ? Qt::AlignRight : Qt::AlignLeft)));
    default:
        return {};
    }
}

Qt::ItemFlags NetworksTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isEditable = m_annotationsEditable && index.isValid() && isAnnotations(index);
    return isEditable ? flags | Qt::ItemIsEditable : flags;
}

bool NetworksTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    m_networks[static_cast<std::size_t>(index.row())]->setAnnotations(value.toString());
    Q_EMIT dataChanged(index, index);
    return true;
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
    case Qt::ForegroundRole:
        return legible(TSThemeHelper::textColorForTableHeader(), QGuiApplication::palette());
    default:
        return {};
    }
}

} // namespace tessara
