#include "shell/TSSideView.h"

#include "foundation/Localized.h"

#include "shell/ImageAndTextCell.h"
#include "shell/TreeViews.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>

#include <utility>

namespace tessara {

TSSideView::TSSideView(QWidget* parent)
    : QTreeView(parent)
{
    setAccessibleName(localized("Results by kind"));
    setModel(&m_model);
    setItemDelegate(new ImageAndTextCell(this));
    setIndentation(fontMetrics().height());
    setFrameShape(QFrame::NoFrame);
    setHeaderHidden(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(SideViewModel::kItemColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(SideViewModel::kDetailColumn, QHeaderView::ResizeToContents);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    connect(this, &QTreeView::expanded, this,
            [this](const QModelIndex& index) { setExpandedWithTitle(index, true); });
    connect(this, &QTreeView::collapsed, this,
            [this](const QModelIndex& index) { setExpandedWithTitle(index, false); });
}

void TSSideView::setItems(const std::vector<TSSideViewItem>& items)
{
    const QModelIndex selected = selectionModel()->hasSelection() ? currentIndex() : QModelIndex();
    const QString title = selected.isValid() ? m_model.itemAt(selected).title : QString();
    m_isUpdating = true;
    m_model.setItems(items);
    m_isUpdating = false;
    setExpandedItems(m_expandedItems);
    if (!title.isEmpty())
        selectLast(title);
}

/// Selects the last row in sight that has a title: values of other facets that are called the same
/// take the selection over, and it is meant so.
void TSSideView::selectLast(const QString& title)
{
    for (int category = m_model.rowCount() - 1; category >= 0; --category) {
        const QModelIndex parent = m_model.index(category, SideViewModel::kItemColumn);
        if (!isExpanded(parent))
            continue;
        for (int row = m_model.rowCount(parent) - 1; row >= 0; --row) {
            const QModelIndex index = m_model.index(row, SideViewModel::kItemColumn, parent);
            if (m_model.itemAt(index).title != title)
                continue;
            const int scrolled = verticalScrollBar()->value();
            setCurrentIndex(index);
            verticalScrollBar()->setValue(scrolled);
            return;
        }
    }
}

void TSSideView::setFontSize(double points)
{
    setFontSizeOf(*this, points);
}

void TSSideView::setExpandedItems(const QStringList& titles)
{
    m_expandedItems = titles;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QModelIndex index = m_model.index(row, SideViewModel::kItemColumn);
        if (titles.contains(m_model.itemAt(index).title))
            expand(index);
    }
}

/// Unlike `expandAll`, this tells of each row.
void TSSideView::setAllExpanded(bool expanded)
{
    for (int row = 0; row < m_model.rowCount(); ++row)
        setExpanded(m_model.index(row, SideViewModel::kItemColumn), expanded);
}

void TSSideView::setExpandedWithTitle(const QModelIndex& index, bool expanded)
{
    const QString& title = m_model.itemAt(index).title;
    if (!expanded)
        m_expandedItems.removeAll(title);
    else if (!m_expandedItems.contains(title))
        m_expandedItems.append(title);
}

void TSSideView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    if (m_isUpdating)
        return;
    const QModelIndexList rows = selectionModel()->selectedRows();
    Q_EMIT selectionDidChange(rows.isEmpty() ? std::nullopt
                                             : std::optional(m_model.itemAt(rows.front())));
}

void TSSideView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last)
{
    // A selected value that goes leaves no selection. The view would take its neighbour.
    const QModelIndex current = currentIndex();
    if (current.isValid() && current.parent() == parent && current.row() >= first &&
        current.row() <= last)
        selectionModel()->clear();
    QTreeView::rowsAboutToBeRemoved(parent, first, last);
}

void TSSideView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return; // another button opens the menu and selects nothing
    const QModelIndex index = indexAt(event->position().toPoint());
    const bool isBeside = !index.isValid() || !m_model.flags(index).testFlag(Qt::ItemIsSelectable);
    if (isBeside)
        Q_EMIT didClickBeside();
    else
        QTreeView::mousePressEvent(event);
}

void TSSideView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && currentIndex().isValid())
        setExpanded(currentIndex(), !isExpanded(currentIndex()));
    else if (isTyping(*event))
        event->ignore(); // it never selects
    else
        QTreeView::keyPressEvent(event);
}

void TSSideView::contextMenuEvent(QContextMenuEvent* event)
{
    const QPersistentModelIndex clicked =
        indexAt(event->pos()).siblingAtColumn(SideViewModel::kItemColumn);
    if (!clicked.isValid())
        return;
    const bool isExpandable = m_model.hasChildren(clicked);
    if (isExpandable)
        setCurrentIndex(clicked);
    QMenu menu;
    menu.addAction(localized("Expand Item"), this, [this, clicked] { expand(clicked); })
        ->setEnabled(isExpandable);
    menu.addAction(localized("Collapse Item"), this, [this, clicked] { collapse(clicked); })
        ->setEnabled(isExpandable);
    menu.addAction(localized("Expand All"), this, [this] { setAllExpanded(true); });
    menu.addAction(localized("Collapse All"), this, [this] { setAllExpanded(false); });
    menu.exec(event->globalPos());
}

} // namespace tessara
