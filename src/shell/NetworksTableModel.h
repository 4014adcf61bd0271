#pragma once

#include "model/ColumnRegistry.h"
#include "model/TSNetwork.h"

#include <QAbstractTableModel>

namespace tessara {

struct RowChanges;

/// The rows and cell texts of the networks table: one row a network, one column an entry of the
/// column registry, in the registry's order.
///
/// A new list is not a new model: rows come, go and move, so that whatever a view keeps by row
/// (selection, current row, scroll position) stays with the network.
class NetworksTableModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows these networks in this order, and reads every text anew.
    void setNetworks(const NetworkList& networks, const CellContext& context);

    /// Whether the user may write notes.
    void setAnnotationsEditable(bool editable) { m_annotationsEditable = editable; }

    const NetworkList& networks() const { return m_networks; }
    const CellContext& context() const { return m_context; }
    const TSNetwork& networkAt(const QModelIndex& index) const
    {
        return *m_networks[static_cast<std::size_t>(index.row())];
    }
    /// Scanning, and the last scan did not see the network: it is shown in grey.
    bool isMissing(const TSNetwork& network) const
    {
        return m_context.isScanning && network.rssi() == TSDataPoint::kNoData;
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Takes a note.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void removeRuns(const RowChanges& changes);
    void moveRuns(const RowChanges& changes, const NetworkList& networks);
    void insertRuns(const RowChanges& changes, const NetworkList& networks);
    void rebuild(const RowChanges& changes, const NetworkList& networks);

    NetworkList m_networks;
    CellContext m_context;
    bool m_annotationsEditable = false;
};

} // namespace tessara
