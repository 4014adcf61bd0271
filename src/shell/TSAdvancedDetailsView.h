#pragma once

#include "model/TSNetwork.h"
#include "shell/InfoElementsModel.h"

#include <QSet>
#include <QTreeView>

class QMenu;

namespace tessara {

/// The decoded elements of the selected network as a tree.
///
/// What is expanded is remembered by kind of element and field, not by network: an element that is
/// open for one network is open for the next.
class TSAdvancedDetailsView final : public QTreeView {
    Q_OBJECT

public:
    explicit TSAdvancedDetailsView(QWidget* parent = nullptr);

    /// Shows the elements of a network, or those of none.
    void setNetwork(const NetworkPtr& network);
    /// What is shown instead where there is nothing to show.
    void setPlaceholderText(const QString& text);
    /// @param points size of the font of the rows
    void setFontSize(double points);

    /// Order, widths and hidden states of the columns, to be stored.
    QByteArray layoutState() const;
    void restoreLayout(const QByteArray& state);

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    int sizeHintForColumn(int column) const override;

private:
    bool isExpandable(const QModelIndex& index) const { return m_model.rowCount(index) > 0; }
    void setUpHeader();
    void expandRemembered(const QModelIndex& parent = {});
    void setExpandedWithChildren(const QModelIndex& index, bool expanded);
    void setAllExpanded(bool expanded);
    void showHeaderMenu(const QPoint& position);

    InfoElementsModel m_model;
    QSet<QString> m_expandedItems;
    QString m_placeholderText;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    bool m_isReloading = false; ///< what collapses is not collapsed by the user
};

} // namespace tessara
