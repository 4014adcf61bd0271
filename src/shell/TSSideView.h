#pragma once

#include "shell/SideViewModel.h"

#include <QTreeView>

#include <optional>

namespace tessara {

/// The side view: a click on a value of a facet narrows the list to it.
class TSSideView final : public QTreeView {
    Q_OBJECT

public:
    explicit TSSideView(QWidget* parent = nullptr);

    void setItems(const std::vector<TSSideViewItem>& items);
    /// @param points size of the font of the rows
    void setFontSize(double points);

    /// The titles of the items that are expanded, now or when they come.
    QStringList expandedItems() const { return m_expandedItems; }
    void setExpandedItems(const QStringList& titles);

Q_SIGNALS:
    /// The user has selected another item, or none.
    void selectionDidChange(const std::optional<TSSideViewItem>& item);
    /// The user has clicked where no item is.
    void didClickBeside();

protected:
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void selectLast(const QString& title);
    void setAllExpanded(bool expanded);
    void setExpandedWithTitle(const QModelIndex& index, bool expanded);

    SideViewModel m_model;
    QStringList m_expandedItems;
    bool m_isUpdating = false; ///< what happens to the selection is not the user's doing
};

} // namespace tessara
