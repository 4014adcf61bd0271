#include "shell/SideViewModel.h"

#include <QFont>
#include <QSet>

#include <utility>

namespace tessara {

namespace {

// An index says by its number whose child it is: 0 for the rows at the top, else one more than the
// row of its category.
constexpr quintptr kTop = 0;

/// What tells two values of a category apart.
std::pair<QString, QString> keyOf(const TSSideViewItem& item)
{
    return {item.title, item.filterString};
}

QSet<std::pair<QString, QString>> keysOf(const std::vector<TSSideViewItem>& items)
{
    QSet<std::pair<QString, QString>> keys;
    for (const TSSideViewItem& item : items)
        keys.insert(keyOf(item));
    return keys;
}

/// The end of the run of items from `first` on whose keys are, or are not, among some.
std::size_t runEnd(const std::vector<TSSideViewItem>& items, std::size_t first,
                   const QSet<std::pair<QString, QString>>& keys, bool areAmong)
{
    std::size_t end = first;
    while (end < items.size() && keys.contains(keyOf(items[end])) == areAmong)
        ++end;
    return end;
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

void SideViewModel::setItems(std::vector<TSSideViewItem> items)
{
    setCategories(items);
    for (std::size_t category = 0; category < items.size(); ++category)
        setValues(static_cast<int>(category), std::move(items[category].children));
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

void SideViewModel::setValues(int category, std::vector<TSSideViewItem> values)
{
    std::vector<TSSideViewItem>& shown = m_items[static_cast<std::size_t>(category)].children;
    const std::size_t before = shown.size();
    const QModelIndex parent = index(category, kItemColumn);

    const auto wanted = keysOf(values);
    for (std::size_t row = 0; row < shown.size();) {
        const std::size_t end = runEnd(shown, row, wanted, false);
        if (end == row) {
            ++row;
            continue;
        }
        beginRemoveRows(parent, static_cast<int>(row), static_cast<int>(end) - 1);
        shown.erase(shown.begin() + static_cast<std::ptrdiff_t>(row),
                    shown.begin() + static_cast<std::ptrdiff_t>(end));
        endRemoveRows();
    }

    // Both lists are in one order: what is left of the old one lies in the new one as it is.
    const auto kept = keysOf(shown);
    for (std::size_t row = 0; row < values.size();) {
        const std::size_t end = runEnd(values, row, kept, false);
        if (end == row) {
            ++row;
            continue;
        }
        beginInsertRows(parent, static_cast<int>(row), static_cast<int>(end) - 1);
        shown.insert(shown.begin() + static_cast<std::ptrdiff_t>(row),
                     values.begin() + static_cast<std::ptrdiff_t>(row),
                     values.begin() + static_cast<std::ptrdiff_t>(end));
        endInsertRows();
        row = end;
    }

    if (shown.size() != before) {
        const QModelIndex count = index(category, kDetailColumn);
        Q_EMIT dataChanged(count, count);
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
        return isDetail ? QVariant() : QVariant(item.title.toHtmlEscaped());
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
        return Qt::ItemIsEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

} // namespace tessara
