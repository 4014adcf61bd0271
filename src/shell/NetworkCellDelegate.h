#pragma once

#include "filtering/FilterIdentifiers.h"

#include <QStyledItemDelegate>

#include <optional>

namespace tessara {

class NetworksTableModel;
class TSNetwork;
struct Column;

/// Paints the cells of the networks table: the colour marker, level bars under their texts, and
/// texts in the colour and font that tell of the network's state.
class NetworkCellDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    NetworkCellDelegate(const NetworksTableModel& model, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// On one line: a name or a note may hold line breaks.
    QString displayText(const QVariant& value, const QLocale& locale) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Puts the editor's text where the cell's text is.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    /// Shows the whole text of a cell that is too narrow for it.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

    /// The columns on which a filter found networks stand out, in all rows.
    void setFilteredColumns(const FilterIdentifiers& columns) { m_filteredColumns = columns; }

    /// The height of a row in the font of the table, in pixels.
    static int rowHeight(const QFontMetrics& metrics);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    static void paintPadlock(QPainter& painter, QStyleOptionViewItem& cell);
    void paintLevel(QPainter& painter, const QStyleOptionViewItem& cell, const Column& column,
                    const TSNetwork& network) const;

    const NetworksTableModel& m_model;
    FilterIdentifiers m_filteredColumns;
};

} // namespace tessara
