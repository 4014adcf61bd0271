#include "shell/SideViewModel.h"

#include "shell/ToolTipText.h"

#include "shell/RowChanges.h"

#include <QFont>
#include <QHash>

#include <utility>

namespace tessara {

namespace {

// An index says by its number whose child it is: 0 for the rows at the top, else one more than the
// row of its category.
constexpr quintptr kTop = 0;

// More steps than this cost more than one change of the whole category.
constexpr std::size_t kMaxSteps = 50;

/// What tells two values of a category apart.
std::pair<QStringView, QStringView> keyOf(const TSSideViewItem& item)
{
    return {item.title, item.filterString};
}

RowChanges changesBetween(const std::vector<TSSideViewItem>& shown,
                          const std::vector<TSSideViewItem>& values)
{
    QHash<std::pair<QStringView, QStringView>, int> rows;
    rows.reserve(static_cast<qsizetype>(values.size()));
    for (const TSSideViewItem& value : values)
        rows.insert(keyOf(value), static_cast<int>(rows.size()));
    std::vector<int> newRow;
    newRow.reserve(shown.size());
    for (const TSSideViewItem& value : shown)
        newRow.push_back(rows.value(keyOf(value), RowChanges::kGone));
    return {std::move(newRow), values.size()};
}

} // namespace

SideViewModel::SideViewModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_items(emptySideView())
{
}

const TSSideViewItem& SideViewModel::itemAt(const QModelIndex& index) const
{
    const auto row = static_cast<std::size_t>(index.row());
    if (index.internalId() == kTop)
        return m_items[row];
    return m_items[index.internalId() - 1].children[row];
}

void SideViewModel::setItems(const std::vector<TSSideViewItem>& items)
{
    setCategories(items);
    for (std::size_t category = 0; category < items.size(); ++category)
        setValues(static_cast<int>(category), items[category].children);
}

/// The rows at the top: those that stay keep their values for now.
void SideViewModel::setCategories(const std::vector<TSSideViewItem>& items)
{
    const auto old = static_cast<int>(m_items.size());
    const auto count = static_cast<int>(items.size());
    if (count < old) {
        beginRemoveRows({}, count, old - 1);
        m_items.resize(items.size());
        endRemoveRows();
    } else if (count > old) {
        beginInsertRows({}, old, count - 1);
        for (std::size_t row = m_items.size(); row < items.size(); ++row) {
            m_items.push_back(items[row]);
            m_items.back().children.clear();
        }
        endInsertRows();
    }
}

void SideViewModel::setValues(int category, const std::vector<TSSideViewItem>& values)
{
    std::vector<TSSideViewItem>& shown = m_items[static_cast<std::size_t>(category)].children;
    const std::size_t before = shown.size();
    const RowChanges changes = changesBetween(shown, values);
    if (changes.moved.empty() && changes.steps() <= kMaxSteps)
        follow(changes, category, values);
    else
        rebuild(changes, category, values);
    if (shown.size() != before) {
        const QModelIndex count = index(category, kDetailColumn);
        Q_EMIT dataChanged(count, count);
    }
}

void SideViewModel::follow(const RowChanges& changes, int category,
                           const std::vector<TSSideViewItem>& values)
{
    std::vector<TSSideViewItem>& shown = m_items[static_cast<std::size_t>(category)].children;
    const QModelIndex parent = index(category, kItemColumn);
    for (auto run = changes.removed.rbegin(); run != changes.removed.rend(); ++run) {
        beginRemoveRows(parent, run->first, run->end - 1);
        shown.erase(shown.begin() + run->first, shown.begin() + run->end);
        endRemoveRows();
    }
    for (const RowChanges::Run& run : changes.inserted) {
        beginInsertRows(parent, run.first, run.end - 1);
        shown.insert(shown.begin() + run.first, values.begin() + run.first,
                     values.begin() + run.end);
        endInsertRows();
    }
}

/// The way in few steps, however much has changed: what is new comes in at the end, all values
/// take their places at once, and what goes, by then at the end, is cut off.
void SideViewModel::rebuild(const RowChanges& changes, int category,
                            const std::vector<TSSideViewItem>& values)
{
    std::vector<TSSideViewItem>& shown = m_items[static_cast<std::size_t>(category)].children;
    const QModelIndex parent = index(category, kItemColumn);
    const std::vector<int> places = changes.places();
    const std::size_t before = shown.size();
    if (places.size() > before) {
        beginInsertRows(parent, static_cast<int>(before), static_cast<int>(places.size()) - 1);
        for (std::size_t row = before; row < places.size(); ++row)
            shown.push_back(values[static_cast<std::size_t>(places[row])]);
        endInsertRows();
    }

    Q_EMIT layoutAboutToBeChanged({parent}, VerticalSortHint);
    QModelIndexList from;
    QModelIndexList to;
    for (const QModelIndex& each : persistentIndexList()) {
        if (each.parent() != parent)
            continue;
        from.append(each);
        to.append(index(places[static_cast<std::size_t>(each.row())], each.column(), parent));
    }
    std::vector<TSSideViewItem> arranged(places.size());
    for (std::size_t row = 0; row < places.size(); ++row)
        arranged[static_cast<std::size_t>(places[row])] = std::move(shown[row]);
    shown = std::move(arranged);
    changePersistentIndexList(from, to);
    Q_EMIT layoutChanged({parent}, VerticalSortHint);

    if (shown.size() > values.size()) {
        beginRemoveRows(parent, static_cast<int>(values.size()),
                        static_cast<int>(shown.size()) - 1);
        shown.resize(values.size());
        endRemoveRows();
    }
}

QModelIndex SideViewModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : kTop);
}

QModelIndex SideViewModel::parent(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == kTop)
        return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, kItemColumn, kTop);
}

int SideViewModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_items.size());
    if (parent.column() != kItemColumn || parent.internalId() != kTop)
        return 0;
    return static_cast<int>(itemAt(parent).children.size());
}

int SideViewModel::columnCount(const QModelIndex&) const
{
    return kColumnCount;
}

QVariant SideViewModel::data(const QModelIndex& index, int role) const
{
    const TSSideViewItem& item = itemAt(index);
    const bool isDetail = index.column() == kDetailColumn;
    switch (role) {
    case Qt::DisplayRole:
        if (!isDetail)
            return item.title;
        return item.showCount && item.hasChildren()
                   ? QVariant(QString::number(item.children.size()))
                   : QVariant();
    case Qt::ToolTipRole:
        return isDetail ? QVariant() : QVariant(toolTipOf(item.title));
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter | (isDetail ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::FontRole: {
        QFont font; // the rest of it comes from the view
        font.setBold(item.identifier == QLatin1String("group"));
        return font;
    }
    default:
        return {};
    }
}

Qt::ItemFlags SideViewModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    if (itemAt(index).identifier == QLatin1String("group"))
        return Qt::NoItemFlags; // the keys pass it by, too
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.internalId() == kTop ? flags : flags | Qt::ItemNeverHasChildren;
}

} // namespace tessara
