#pragma once

#include "filtering/DisplayPipeline.h"
#include "shell/NetworksTableModel.h"

#include <QTreeView>

#include <functional>
#include <vector>

class QMenu;

namespace tessara {

class NetworkCellDelegate;

/// The networks table: its columns, their order, their menu, and the selection.
///
/// Being selected is a property of the network (`isUserHighlighted`), so that it survives a new
/// order of the rows, and a network's leaving the list and coming back.
class TSNetworksView final : public QTreeView {
    Q_OBJECT

public:
    explicit TSNetworksView(QWidget* parent = nullptr);

    void setNetworks(const NetworkList& networks, const CellContext& context);
    /// The columns that stand out.
    void setFilteredColumns(const FilterIdentifiers& columns);
    /// What an empty table says.
    void setPlaceholderText(const QString& text);
    /// @param points size of the font of the rows
    void setFontSize(double points);

    /// Selects exactly the networks that fulfil a condition and scrolls the first into view; none
    /// clears the selection.
    void selectNetworks(const std::function<bool(const TSNetwork&)>& condition);

    /// The selected rows from top to bottom, valid until the next list.
    std::vector<const NetworkRow*> selectedItems() const;
    const CellContext& context() const { return m_model.context(); }

    /// All columns in the order of the table, hidden ones too.
    std::vector<const Column*> tableColumnIdentifiers() const;
    std::vector<const Column*> visibleColumns() const;
    bool isColumnShown(const Column& column) const;
    /// Whether the user may turn a column off.
    static bool canBeHidden(const Column& column);
    void setColumnShown(const Column& column, bool shown);

    /// Whether the user may write notes into the table.
    void setAnnotationsEditable(bool editable) { m_model.setAnnotationsEditable(editable); }
    /// Opens the note of the selected network, and shows the column of notes if it is hidden. Does
    /// nothing unless one network is selected and notes may be written.
    void editAnnotations();
    bool canEditAnnotations() const { return editableNote().isValid(); }
    bool isEditing() const { return state() == EditingState; }
    /// Takes the note that is being written.
    void endEditing();

    /// The order of the rows that the user has asked for: the first rules, the others break ties.
    const std::vector<SortDescriptor>& sortDescriptors() const { return m_sortDescriptors; }
    /// Order, widths and hidden states of the columns and the order of the rows, to be stored.
    QByteArray layoutState() const;
    /// Takes a stored layout; what it does not tell, or a damaged one, stays as in a fresh table.
    void restoreLayout(const QByteArray& state);

    /// Fills a menu with one checkable item a column, by title.
    void addColumnItems(QMenu& menu);

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    /// The user has selected other networks.
    void selectionDidChange();
    void sortDescriptorsDidChange();
    void columnDidChangeHiddenState(const Column& column);
    void didEndEditing();

protected:
    void paintEvent(QPaintEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void keyPressEvent(QKeyEvent* event) override;
    int sizeHintForColumn(int column) const override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    void setUpHeader();
    void setDefaultLayout();
    int defaultWidth(const Column& column) const;
    void sectionDidResize(int column, int width);
    void sortIndicatorDidChange(int column, Qt::SortOrder order);
    void showSortIndicator();
    void showHeaderMenu(const QPoint& position);
    std::vector<bool> selectedRows() const;
    QModelIndex editableNote() const;
    void selectHighlightedNetworks();

    NetworksTableModel m_model;
    NetworkCellDelegate* m_delegate;
    QString m_placeholderText;
    std::vector<SortDescriptor> m_sortDescriptors;
    std::vector<int> m_widths; ///< pixels, by column; a hidden column keeps its own
    bool m_isUpdating = false; ///< what happens to the selection is not the user's doing
};

} // namespace tessara
