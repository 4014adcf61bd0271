#pragma once

#include "elements/TSInfoElement.h"

#include <QAbstractItemModel>

#include <memory>
#include <optional>
#include <vector>

namespace tessara {

/// A row of the tree of decoded elements: an element, an entry of it, or some bits of an entry.
struct InfoElementRow {
    enum class Kind { kElement, kEntry, kSubEntry };

    Kind kind;
    /// What a view remembers the row by: the same in the elements of all networks.
    QString identifier;
    QString name; ///< of a sub-entry the bits, such as ".... ..1."
    std::optional<QString> value;
    std::optional<QString> notes;
    std::uint8_t elementID = 0; ///< of an element
    std::size_t length = 0;     ///< of an element, in bytes
    std::size_t place = 0;      ///< of an element in the beacon
    InfoElementRow* parent = nullptr;
    int row = 0; ///< among the rows of its parent
    std::vector<std::unique_ptr<InfoElementRow>> children;
};

/// How a part of a cell's text looks.
enum class PieceStyle {
    kPlain,
    kName,
    kSummary,
    kLength,
    kEntryName,
    kNotes,
    kBits,
    kBitsName,
    kBitsNotes,
};
struct TextPiece {
    QString text;
    PieceStyle style;
};

/// The elements of one network, in the order of its beacon or sorted, with their fields below them.
///
/// Elements that have the same rows as those shown change their texts alone, so that a beacon whose
/// counters have moved leaves scroll position, selection and expanded rows where they are.
class InfoElementsModel final : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { kIDColumn, kLengthColumn, kElementColumn, kFieldsColumn, kColumnCount };

    using QAbstractItemModel::QAbstractItemModel;

    /// @param run of elements as a beacon carries it
    void setElements(const QByteArray& run);

    static const InfoElementRow& rowAt(const QModelIndex& index);
    /// The texts of a cell, one behind the other.
    static std::vector<TextPiece> textPieces(const QModelIndex& index);
    /// The element that a row belongs to, and all elements in their order, as they are copied.
    QString dumpOf(const QModelIndex& index) const;
    QString dump() const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Fields without bits below them cannot be selected.
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// By a column of elements; a negative one is the order of the beacon.
    void sort(int column, Qt::SortOrder order) override;

private:
    using Rows = std::vector<std::unique_ptr<InfoElementRow>>;

    const Rows& rowsBelow(const QModelIndex& parent) const;
    void sortRows(Rows& rows) const;
    void takeTexts(Rows& shown, Rows& fresh, const QModelIndex& parent);

    QString dumpOf(const InfoElementRow& element) const;

    QByteArray m_run;
    std::vector<TSInfoElement> m_decoded; ///< in the order of the beacon
    Rows m_elements;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};

} // namespace tessara
