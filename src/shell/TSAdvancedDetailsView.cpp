#include "shell/TSAdvancedDetailsView.h"

#include "foundation/Localized.h"
#include "persistence/ClipboardText.h"
#include "shell/HeaderMenu.h"
#include "shell/InfoElementDelegate.h"
#include "shell/TableHeader.h"
#include "shell/TreeViews.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace tessara {

namespace {

// Widths of a fresh tree, in characters of a font of this size in points.
constexpr double kWidthFont = 12;
constexpr int kIDWidth = 6;
constexpr int kLengthWidth = 11;
constexpr int kElementWidth = 36;
constexpr int kRoomBesideContents = 17; // pixels, of a column that is fitted to its contents

void copyText(const QString& text)
{
    QGuiApplication::clipboard()->setMimeData(clipboardData(text).release());
}

} // namespace

TSAdvancedDetailsView::TSAdvancedDetailsView(QWidget* parent)
    : QTreeView(parent)
{
    setAccessibleName(localized("Information Elements"));
    setModel(&m_model);
    setItemDelegate(new InfoElementDelegate(this));
    setTreePosition(InfoElementsModel::kElementColumn);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setFrameShape(QFrame::NoFrame);
    setHeader(new TableHeader);
    setUpHeader();
    connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        m_expandedItems.insert(InfoElementsModel::rowAt(index).identifier);
    });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        if (!m_isReloading)
            m_expandedItems.remove(InfoElementsModel::rowAt(index).identifier);
    });
    connect(&m_model, &QAbstractItemModel::modelAboutToBeReset, this,
            [this] { m_isReloading = true; });
    connect(&m_model, &QAbstractItemModel::modelReset, this, [this] {
        expandRemembered();
        m_isReloading = false;
    });
}

void TSAdvancedDetailsView::setUpHeader()
{
    QHeaderView& header = *this->header();
    header.setFirstSectionMovable(true);
    header.setStretchLastSection(true);
    header.setSortIndicatorClearable(true); // back to the order of the beacon
    connect(&header, &QHeaderView::sortIndicatorChanged, this,
            [this, &header](int column, Qt::SortOrder order) {
                if (column == InfoElementsModel::kFieldsColumn) // which the model does not sort by
                    header.setSortIndicator(m_sortColumn, m_sortOrder);
                else
                    std::tie(m_sortColumn, m_sortOrder) = std::tuple(column, order);
            });
    header.setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    QFont font = this->font();
    font.setPointSizeF(kWidthFont);
    const int character = QFontMetrics(font).averageCharWidth();
    header.resizeSection(InfoElementsModel::kIDColumn, kIDWidth * character);
    header.resizeSection(InfoElementsModel::kLengthColumn, kLengthWidth * character);
    header.resizeSection(InfoElementsModel::kElementColumn, kElementWidth * character);
    connect(&header, &QHeaderView::customContextMenuRequested, this,
            &TSAdvancedDetailsView::showHeaderMenu);
}

void TSAdvancedDetailsView::setNetwork(const NetworkPtr& network)
{
    const int scrolled = verticalScrollBar()->value();
    m_model.setElements(network ? network->network().informationElementData.value_or(QByteArray())
                                : QByteArray());
    verticalScrollBar()->setValue(scrolled);
    header()->setVisible(network != nullptr);
}

void TSAdvancedDetailsView::setPlaceholderText(const QString& text)
{
    m_placeholderText = text;
    viewport()->update();
}

void TSAdvancedDetailsView::setFontSize(double points)
{
    setFontSizeOf(*this, points);
}

QByteArray TSAdvancedDetailsView::layoutState() const
{
    return header()->saveState();
}

void TSAdvancedDetailsView::restoreLayout(const QByteArray& state)
{
    if (!state.isEmpty())
        header()->restoreState(state);
}

int TSAdvancedDetailsView::sizeHintForColumn(int column) const
{
    return QTreeView::sizeHintForColumn(column) + kRoomBesideContents;
}

// Expansion ---------------------------------------------------------------------------------------

void TSAdvancedDetailsView::expandRemembered(const QModelIndex& parent)
{
    for (int row = 0; row < m_model.rowCount(parent); ++row) {
        const QModelIndex index = m_model.index(row, 0, parent);
        if (m_expandedItems.contains(InfoElementsModel::rowAt(index).identifier))
            setExpanded(index, true);
        expandRemembered(index);
    }
}

/// Unlike `expandRecursively`, this tells of each row.
void TSAdvancedDetailsView::setExpandedWithChildren(const QModelIndex& index, bool expanded)
{
    for (int row = 0; row < m_model.rowCount(index); ++row)
        setExpandedWithChildren(m_model.index(row, 0, index), expanded);
    if (index.isValid() && isExpandable(index))
        setExpanded(index, expanded);
}

void TSAdvancedDetailsView::setAllExpanded(bool expanded)
{
    setExpandedWithChildren({}, expanded);
}

// Menus and keys ----------------------------------------------------------------------------------

void TSAdvancedDetailsView::contextMenuEvent(QContextMenuEvent* event)
{
    // While the menu is open, a new beacon may take the row away.
    const QPersistentModelIndex clicked = indexAt(event->pos()).siblingAtColumn(0);
    if (!clicked.isValid())
        return;
    const bool expandable = isExpandable(clicked);
    if (expandable)
        setCurrentIndex(clicked);
    const bool expanded = isExpanded(clicked);
    const bool isElement = !clicked.parent().isValid();
    QPersistentModelIndex element = clicked;
    while (element.parent().isValid())
        element = element.parent();

    QMenu menu;
    menu.addAction(localized("Expand Item"), this, [this, clicked] { expand(clicked); })
        ->setEnabled(expandable && !expanded);
    menu.addAction(localized("Expand All Items"), this, [this] { setAllExpanded(true); });
    // Of a field it is meant to close the whole element.
    menu.addAction(localized("Collapse Item"), this, [this, element] { collapse(element); })
        ->setEnabled(expandable && expanded);
    menu.addAction(localized("Collapse All Items"), this, [this] { setAllExpanded(false); });
    menu.addSeparator();
    menu.addAction(localized("Copy Element"), this,
                   [this, clicked] {
                       if (clicked.isValid())
                           copyText(m_model.dumpOf(clicked));
                   })
        ->setEnabled(isElement);
    menu.addAction(localized("Copy All Elements"), this, [this] { copyText(m_model.dump()); });
    menu.exec(event->globalPos());
}

void TSAdvancedDetailsView::showHeaderMenu(const QPoint& position)
{
    QMenu menu;
    menu.setToolTipsVisible(true);
    addAutoSizeItems(menu, *this, header()->logicalIndexAt(position));
    menu.addSeparator();
    // The name of a row and what it says are always there.
    addColumnItems(
        menu, *this, [](int column) { return column < InfoElementsModel::kElementColumn; },
        [this](int column, bool shown) { setColumnHidden(column, !shown); });
    menu.exec(header()->mapToGlobal(position));
}

void TSAdvancedDetailsView::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex current = currentIndex().siblingAtColumn(0);
    if (event->key() == Qt::Key_Space && current.isValid())
        setExpanded(current, !isExpanded(current));
    else if (isTyping(*event))
        event->ignore(); // it never selects
    else
        QTreeView::keyPressEvent(event);
}

void TSAdvancedDetailsView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    paintPlaceholder(*this, m_placeholderText);
}

} // namespace tessara
