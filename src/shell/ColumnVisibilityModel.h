#pragma once

#include <QAbstractTableModel>

#include <vector>

namespace tessara {

class TSNetworksView;
struct Column;

/// The columns of the networks table as rows that can be checked: shown or hidden.
class ColumnVisibilityModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum ModelColumn { kShowColumn, kNameColumn, kColumnCount };

    /// @param networksView the table; must outlive the model
    explicit ColumnVisibilityModel(TSNetworksView& networksView, QObject* parent = nullptr);

    const Column& columnAt(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    void columnDidChangeHiddenState();

    TSNetworksView& m_networksView;
    std::vector<const Column*> m_columns;
};

} // namespace tessara
