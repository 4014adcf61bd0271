#include "shell/ColumnVisibilityModel.h"

#include "foundation/Localized.h"
#include "foundation/TextOrder.h"
#include "shell/TSNetworksView.h"

#include <algorithm>

namespace tessara {

ColumnVisibilityModel::ColumnVisibilityModel(TSNetworksView& networksView, QObject* parent)
    : QAbstractTableModel(parent)
    , m_networksView(networksView)
    , m_columns(allColumns())
{
    std::erase_if(m_columns,
                  [](const Column* column) { return column->cell == CellKind::kMarker; });
    connect(&networksView, &TSNetworksView::columnDidChangeHiddenState, this,
            &ColumnVisibilityModel::columnDidChangeHiddenState);
    sort(kNameColumn, Qt::AscendingOrder);
}

const Column& ColumnVisibilityModel::columnAt(const QModelIndex& index) const
{
    return *m_columns[static_cast<std::size_t>(index.row())];
}

void ColumnVisibilityModel::columnDidChangeHiddenState()
{
    Q_EMIT dataChanged(index(0, kShowColumn), index(rowCount() - 1, kShowColumn),
                       {Qt::CheckStateRole});
}

int ColumnVisibilityModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

int ColumnVisibilityModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumnCount;
}

QVariant ColumnVisibilityModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Column& column = columnAt(index);
    if (index.column() == kShowColumn && role == Qt::CheckStateRole)
        return m_networksView.isColumnShown(column) ? Qt::Checked : Qt::Unchecked;
    if (index.column() == kNameColumn && role == Qt::DisplayRole)
        return localized(column.title);
    if (role == Qt::AccessibleTextRole)
        return localized(column.title);
    return {};
}

bool ColumnVisibilityModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::CheckStateRole || index.column() != kShowColumn)
        return false;
    m_networksView.setColumnShown(columnAt(index), value.value<Qt::CheckState>() == Qt::Checked);
    return true;
}

QVariant ColumnVisibilityModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == kShowColumn ? localized("Show") : localized("Column");
}

Qt::ItemFlags ColumnVisibilityModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    if (index.column() != kShowColumn)
        return flags;
    return TSNetworksView::canBeHidden(columnAt(index)) ? flags | Qt::ItemIsUserCheckable
                                                        : flags & ~Qt::ItemIsEnabled;
}

void ColumnVisibilityModel::sort(int column, Qt::SortOrder order)
{
    const auto comesBefore = [&](const Column* a, const Column* b) {
        if (column == kShowColumn)
            return m_networksView.isColumnShown(*a) > m_networksView.isColumnShown(*b);
        return localizedStandardCompare(localized(a->title), localized(b->title)) < 0;
    };
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    const std::vector<const Column*> columns = m_columns;
    std::ranges::stable_sort(m_columns, [&](const Column* a, const Column* b) {
        return order == Qt::AscendingOrder ? comesBefore(a, b) : comesBefore(b, a);
    });
    QModelIndexList after;
    for (const QModelIndex& each : before) {
        const auto place =
            std::ranges::find(m_columns, columns[static_cast<std::size_t>(each.row())]);
        after.append(index(static_cast<int>(place - m_columns.begin()), each.column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

} // namespace tessara
