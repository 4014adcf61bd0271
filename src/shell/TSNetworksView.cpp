#include "shell/TSNetworksView.h"

#include "foundation/Localized.h"
#include "shell/ColumnLayout.h"
#include "shell/HeaderMenu.h"
#include "shell/NetworkCellDelegate.h"
#include "shell/TableHeader.h"
#include "shell/TreeViews.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

/// More levels would cost time at each tick and say nothing that a user still remembers.
constexpr std::size_t kSortLevels = 3;
constexpr int kRoomBesideContents = 17; // pixels, of a column that is fitted to its contents
// The registry's widths are meant for a font of this size in points.
constexpr double kWidthFont = 11;
constexpr double kDefaultWidth = 80; // of a column that the registry leaves to the table
constexpr char kLongestTime[] = "2029/09/29 09:59:59 PM";
constexpr char kLongestRate[] = "6933.3 ";
constexpr int kFirstColumn = 1; // behind the marker

std::span<const Column> columns()
{
    return columnRegistry();
}

const Column& columnOf(int column)
{
    return columns()[static_cast<std::size_t>(column)];
}

int indexOf(const Column& column)
{
    return static_cast<int>(&column - columns().data());
}

const Column& annotationsColumn()
{
    return *columnWithIdentifier(u"ANNOTATIONS");
}

/// A text that is as wide as any of the column can be, where it is known beforehand.
QString longestText(const Column& column)
{
    if (column.identifier.endsWith(QLatin1String("SEEN")))
        return QString::fromLatin1(kLongestTime);
    if (column.identifier == QLatin1String("MIN_RATE") ||
        column.identifier == QLatin1String("MAX_RATE"))
        return QLatin1String(kLongestRate) + localized("Mbps");
    return {};
}

} // namespace

TSNetworksView::TSNetworksView(QWidget* parent)
    : QTreeView(parent)
    , m_delegate(new NetworkCellDelegate(m_model, this))
    , m_widths(columns().size(), 0)
{
    setAccessibleName(localized("Networks"));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setEditTriggers(DoubleClicked);
    setFrameShape(QFrame::NoFrame);
    setItemDelegate(m_delegate);
    setModel(&m_model);
    setHeader(new TableHeader);
    setUpHeader();
    setDefaultLayout();
}

void TSNetworksView::setUpHeader()
{
    QHeaderView& header = *this->header();
    header.setSectionsClickable(true);
    header.setSortIndicatorShown(true);
    header.setStretchLastSection(false);
    // The marker stays at the left edge and as narrow as it is.
    header.setFirstSectionMovable(false);
    header.setMinimumSectionSize(static_cast<int>(columns().front().minimumWidth));
    header.setSectionResizeMode(0, QHeaderView::Fixed);
    connect(&header, &QHeaderView::customContextMenuRequested, this,
            &TSNetworksView::showHeaderMenu);
    connect(&header, &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { sectionDidResize(column, width); });
    connect(&header, &QHeaderView::sortIndicatorChanged, this,
            &TSNetworksView::sortIndicatorDidChange);
}

void TSNetworksView::setDefaultLayout()
{
    for (const Column& column : columns()) {
        const int index = indexOf(column);
        setColumnHidden(index, false); // a hidden section does not tell its new width
        header()->resizeSection(index, defaultWidth(column));
        setColumnHidden(index, column.hidden);
    }
    m_sortDescriptors = {{columnWithIdentifier(u"SSID"), true}};
    showSortIndicator();
}

/// In pixels: as the registry says, but wide enough for the title, for a time and for a rate.
int TSNetworksView::defaultWidth(const Column& column) const
{
    if (column.cell == CellKind::kMarker)
        return static_cast<int>(column.width);
    const double scale = QFontInfo(font()).pointSizeF() / kWidthFont;
    const double width = scale * (column.width > 0 ? column.width : kDefaultWidth);
    const int title = header()->sectionSizeHint(indexOf(column));
    const int text = fontMetrics().horizontalAdvance(longestText(column));
    return std::max({static_cast<int>(std::ceil(width)), title, text + kRoomBesideContents});
}

void TSNetworksView::setNetworks(const NetworkList& networks, const CellContext& context)
{
    {
        const QScopedValueRollback updating(m_isUpdating, true);
        m_model.setNetworks(networks, context);
        selectHighlightedNetworks();
    }
    if (networks.empty())
        viewport()->update();
}

/// Which rows are selected. Asked row by row, many selected rows would take time in its square.
std::vector<bool> TSNetworksView::selectedRows() const
{
    std::vector<bool> rows(m_model.networks().size(), false);
    for (const QItemSelectionRange& range : selectionModel()->selection())
        std::fill(rows.begin() + range.top(), rows.begin() + range.bottom() + 1, true);
    return rows;
}

/// Selects the rows whose networks are: one that comes back is selected as it was.
void TSNetworksView::selectHighlightedNetworks()
{
    const std::vector<bool> isSelected = selectedRows();
    std::vector<bool> isHighlighted;
    for (const NetworkPtr& network : m_model.networks())
        isHighlighted.push_back(network->isUserHighlighted());
    if (isHighlighted == isSelected)
        return;
    QItemSelection runs; // of rows: the fewer, the less the selection has to compare
    for (auto first = std::ranges::find(isHighlighted, true); first != isHighlighted.end();) {
        const auto last = std::find(first, isHighlighted.end(), false);
        const auto row = [&](auto place) {
            return static_cast<int>(place - isHighlighted.begin());
        };
        runs.select(m_model.index(row(first), 0), m_model.index(row(last) - 1, 0));
        first = std::find(last, isHighlighted.end(), true);
    }
    selectionModel()->select(runs, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void TSNetworksView::setFilteredColumns(const FilterIdentifiers& columns)
{
    m_delegate->setFilteredColumns(columns);
    viewport()->update();
}

void TSNetworksView::setPlaceholderText(const QString& text)
{
    m_placeholderText = text;
    viewport()->update();
}

void TSNetworksView::setFontSize(double points)
{
    setFontSizeOf(*this, points);
}

void TSNetworksView::selectNetworks(const std::function<bool(const TSNetwork&)>& condition)
{
    QItemSelection selection;
    QModelIndex first;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QModelIndex index = m_model.index(row, 0);
        if (!condition(m_model.networkAt(index)))
            continue;
        selection.select(index, index);
        if (!first.isValid())
            first = index;
    }
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (first.isValid())
        scrollTo(first);
}

/// Shows the row; the columns in sight stay where they are.
void TSNetworksView::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    const int scrolled = horizontalScrollBar()->value();
    QTreeView::scrollTo(index, hint);
    horizontalScrollBar()->setValue(scrolled);
}

void TSNetworksView::selectionChanged(const QItemSelection& selected,
                                      const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    if (m_isUpdating)
        return;
    const std::vector<bool> isSelected = selectedRows();
    for (std::size_t row = 0; row < isSelected.size(); ++row)
        m_model.networks()[row]->setUserHighlighted(isSelected[row]);
    Q_EMIT selectionDidChange();
}

std::vector<const NetworkRow*> TSNetworksView::selectedItems() const
{
    const std::vector<bool> isSelected = selectedRows();
    std::vector<const NetworkRow*> items;
    for (std::size_t row = 0; row < isSelected.size(); ++row) {
        if (isSelected[row])
            items.push_back(m_model.networks()[row].get());
    }
    return items;
}

// Notes -----------------------------------------------------------------------------------------

/// The cell of the note that can be edited; invalid if there is none.
QModelIndex TSNetworksView::editableNote() const
{
    const std::vector<bool> isSelected = selectedRows();
    if (std::ranges::count(isSelected, true) != 1)
        return {};
    const auto row = std::ranges::find(isSelected, true) - isSelected.begin();
    const QModelIndex note = m_model.index(static_cast<int>(row), indexOf(annotationsColumn()));
    return note.flags().testFlag(Qt::ItemIsEditable) ? note : QModelIndex();
}

void TSNetworksView::editAnnotations()
{
    const QModelIndex note = editableNote();
    if (!note.isValid() || isEditing()) // the key that ends editing comes by here too
        return;
    if (isColumnHidden(note.column()))
        setColumnShown(annotationsColumn(), true);
    selectionModel()->setCurrentIndex(note, QItemSelectionModel::NoUpdate);
    QTreeView::scrollTo(note);
    edit(note);
}

void TSNetworksView::endEditing()
{
    QWidget* editor = isEditing() ? indexWidget(currentIndex()) : nullptr;
    if (!editor)
        return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void TSNetworksView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    // Only one column can be edited: Tab leads to no next cell.
    Q_UNUSED(hint)
    QTreeView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    Q_EMIT didEndEditing();
}

// Columns ---------------------------------------------------------------------------------------

void TSNetworksView::sectionDidResize(int column, int width)
{
    if (width == 0)
        return; // it was hidden
    const int minimum = static_cast<int>(columnOf(column).minimumWidth);
    if (width < minimum)
        header()->resizeSection(column, minimum);
    else
        m_widths[static_cast<std::size_t>(column)] = width;
}

void TSNetworksView::sortIndicatorDidChange(int column, Qt::SortOrder order)
{
    const bool sorts = column >= 0 && columnOf(column).comparison != Comparison::kNone;
    if (sorts) {
        const SortDescriptor first{&columnOf(column), order == Qt::AscendingOrder};
        std::erase_if(m_sortDescriptors,
                      [&](const SortDescriptor& each) { return each.column == first.column; });
        m_sortDescriptors.insert(m_sortDescriptors.begin(), first);
        m_sortDescriptors.resize(std::min(m_sortDescriptors.size(), kSortLevels), first);
    }
    showSortIndicator();
    if (sorts)
        Q_EMIT sortDescriptorsDidChange();
}

void TSNetworksView::showSortIndicator()
{
    const QSignalBlocker blocker(header());
    const SortDescriptor& first = m_sortDescriptors.front();
    header()->setSortIndicator(indexOf(*first.column),
                               first.ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

int TSNetworksView::sizeHintForColumn(int column) const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    int widest = 0;
    for (int row = 0; row < m_model.rowCount(); ++row)
        widest =
            std::max(widest, itemDelegate()->sizeHint(option, m_model.index(row, column)).width());
    return widest + kRoomBesideContents;
}

std::vector<const Column*> TSNetworksView::tableColumnIdentifiers() const
{
    std::vector<const Column*> inOrder;
    inOrder.reserve(columns().size());
    for (int place = 0; place < header()->count(); ++place)
        inOrder.push_back(&columnOf(header()->logicalIndex(place)));
    return inOrder;
}

std::vector<const Column*> TSNetworksView::visibleColumns() const
{
    std::vector<const Column*> visible = tableColumnIdentifiers();
    std::erase_if(visible, [this](const Column* column) { return !isColumnShown(*column); });
    return visible;
}

bool TSNetworksView::isColumnShown(const Column& column) const
{
    return !isColumnHidden(indexOf(column));
}

bool TSNetworksView::canBeHidden(const Column& column)
{
    // Two columns tell what a row is: they are always there.
    return column.cell != CellKind::kMarker && column.identifier != QLatin1String("BSSID");
}

void TSNetworksView::setColumnShown(const Column& column, bool shown)
{
    setColumnHidden(indexOf(column), !shown);
    Q_EMIT columnDidChangeHiddenState(column);
}

QByteArray TSNetworksView::layoutState() const
{
    ColumnLayout layout{.sections = {}, .sortDescriptors = m_sortDescriptors};
    for (const Column* column : tableColumnIdentifiers()) {
        const int index = indexOf(*column);
        layout.sections.push_back(
            {column, m_widths[static_cast<std::size_t>(index)], isColumnHidden(index)});
    }
    return layout.toJson();
}

void TSNetworksView::restoreLayout(const QByteArray& state)
{
    setDefaultLayout();
    const ColumnLayout layout = ColumnLayout::fromJson(state);
    int place = 1; // behind the marker
    for (const auto& [column, width, hidden] : layout.sections) {
        if (column->cell == CellKind::kMarker)
            continue;
        const int index = indexOf(*column);
        header()->moveSection(header()->visualIndex(index), place++);
        setColumnHidden(index, false);
        header()->resizeSection(index, width);
        setColumnHidden(index, hidden && canBeHidden(*column));
    }
    if (!layout.sortDescriptors.empty()) {
        m_sortDescriptors = layout.sortDescriptors;
        showSortIndicator();
    }
}

void TSNetworksView::addColumnItems(QMenu& menu)
{
    tessara::addColumnItems(
        menu, *this, [](int column) { return canBeHidden(columnOf(column)); },
        [this](int column, bool shown) { setColumnShown(columnOf(column), shown); }, kFirstColumn);
}

void TSNetworksView::showHeaderMenu(const QPoint& position)
{
    QMenu menu;
    menu.setToolTipsVisible(true);
    addAutoSizeItems(menu, *this, header()->logicalIndexAt(position), kFirstColumn);
    menu.addSeparator();
    addColumnItems(menu);
    menu.exec(header()->mapToGlobal(position));
}

// Painting and keys -----------------------------------------------------------------------------

void TSNetworksView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    paintPlaceholder(*this, m_placeholderText);
}

/// Carries the selection on to the right edge, where there are no columns.
void TSNetworksView::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const
{
    QTreeView::drawRow(painter, option, index);
    QStyleOptionViewItem rest = option;
    rest.rect.setLeft(header()->length() - header()->offset());
    if (rest.rect.isEmpty() || !selectionModel()->isSelected(index))
        return;
    rest.state |= QStyle::State_Selected;
    rest.viewItemPosition = QStyleOptionViewItem::Middle;
    style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &rest, painter, this);
}

void TSNetworksView::keyPressEvent(QKeyEvent* event)
{
    const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (isTyping(*event))
        event->ignore(); // it never selects, not even by the space bar
    else if (isArrow && currentIndex().isValid() && !selectionModel()->hasSelection())
        setCurrentIndex(currentIndex()); // the row that the keyboard begins at
    else if (event->key() == Qt::Key_Escape && selectionModel()->hasSelection())
        clearSelection();
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
             !isColumnHidden(indexOf(annotationsColumn())))
        editAnnotations();
    else
        QTreeView::keyPressEvent(event);
}

} // namespace tessara
