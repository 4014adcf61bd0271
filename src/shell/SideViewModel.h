#pragma once

#include "filtering/TSSideViewItem.h"

#include <QAbstractItemModel>

namespace tessara {

struct RowChanges;

/// The tree of the side view: a heading, facets, and their values. A new tree is not a new model:
/// values come and go, so that what a view keeps by row stays with the value.
class SideViewModel final : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { kItemColumn, kDetailColumn, kColumnCount };

    explicit SideViewModel(QObject* parent = nullptr);

    void setItems(const std::vector<TSSideViewItem>& items);
    const TSSideViewItem& itemAt(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void setCategories(const std::vector<TSSideViewItem>& items);
    void setValues(int category, const std::vector<TSSideViewItem>& values);
    void follow(const RowChanges& changes, int category, const std::vector<TSSideViewItem>& values);
    void rebuild(const RowChanges& changes, int category,
                 const std::vector<TSSideViewItem>& values);

    std::vector<TSSideViewItem> m_items;
};

} // namespace tessara
