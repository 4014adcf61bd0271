#include "shell/InfoElementsModel.h"

#include "elements/FieldVisit.h"
#include "foundation/HarmlessText.h"
#include "foundation/Localized.h"
#include "foundation/TextOrder.h"
#include "shell/GlyphIcon.h"

#include <QStringList>

#include <algorithm>

namespace tessara {

namespace {

using Row = InfoElementRow;
using Rows = std::vector<std::unique_ptr<Row>>;

struct ElementColumn {
    EnglishText title;
    EnglishText description;
};
constexpr ElementColumn kColumns[InfoElementsModel::kColumnCount] = {
    {"ID"_en, "Number of the element"_en},
    {"Length"_en, "Length of the element without its first two octets"_en},
    {"Information Element"_en, "Name of the element, and of its fields"_en},
    {"Fields"_en, "What the element says"_en},
};

QString textOf(std::string_view utf8)
{
    return harmless(QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::optional<QString> textOf(const FieldText& text)
{
    return text ? std::optional(textOf(*text)) : std::nullopt;
}

void append(Row& parent, std::unique_ptr<Row> row)
{
    row->parent = &parent;
    row->row = static_cast<int>(parent.children.size());
    parent.children.push_back(std::move(row));
}

std::unique_ptr<Row> rowOf(const Field& field, const Row& parent)
{
    auto row = std::make_unique<Row>();
    row->kind = field.fieldSubfieldName ? Row::Kind::kSubEntry : Row::Kind::kEntry;
    row->name = textOf(field.fieldSubfieldName ? *field.fieldSubfieldName : *field.fieldName);
    row->identifier = parent.identifier + u'/' + row->name;
    row->value = textOf(field.fieldValue);
    row->notes = textOf(field.fieldNotes);
    forEachSubfield(field, [&](const Field& below) { append(*row, rowOf(below, *row)); });
    return row;
}

std::unique_ptr<Row> rowOf(const TSInfoElement& element)
{
    auto row = std::make_unique<Row>();
    row->kind = Row::Kind::kElement;
    row->value = textOf(element.ieSummary());
    row->identifier = QString::fromStdString(element.ieIdentifier()); // final once it is decoded
    row->name = QString::fromStdString(element.ieName());
    row->elementID = element.ieID();
    row->length = element.ieLength();
    for (const Field& field : element.fields())
        append(*row, rowOf(field, *row));
    return row;
}

bool haveSameShape(const Rows& a, const Rows& b)
{
    return std::ranges::equal(a, b, [](const auto& x, const auto& y) {
        return x->identifier == y->identifier && x->name == y->name &&
               haveSameShape(x->children, y->children);
    });
}

bool comesBefore(const Row& a, const Row& b, int column)
{
    switch (column) {
    case InfoElementsModel::kIDColumn:
        return a.elementID < b.elementID;
    case InfoElementsModel::kLengthColumn:
        return a.length < b.length;
    default:
        return localizedStandardCompare(a.name, b.name) < 0;
    }
}

std::vector<TextPiece> piecesOfFields(const Row& row)
{
    const bool hasValue = row.value && !row.value->isEmpty();
    switch (row.kind) {
    case Row::Kind::kElement:
        return {{row.value.value_or(QString()), PieceStyle::kSummary}};
    case Row::Kind::kSubEntry: {
        if (!hasValue)
            return {{row.name, PieceStyle::kBits}};
        std::vector<TextPiece> pieces{{*row.value, PieceStyle::kBitsName}};
        if (row.notes)
            pieces.push_back({QStringLiteral(": ") + *row.notes, PieceStyle::kBitsNotes});
        return pieces;
    }
    case Row::Kind::kEntry:
        break;
    }
    std::vector<TextPiece> pieces{{row.value.value_or(QString()), PieceStyle::kPlain}};
    if (row.notes)
        pieces.push_back({u' ' + *row.notes, PieceStyle::kNotes});
    return pieces;
}

TextPiece pieceOfName(const Row& row)
{
    switch (row.kind) {
    case Row::Kind::kElement:
        return {row.name, PieceStyle::kName};
    case Row::Kind::kSubEntry:
        return {row.name + u' ', PieceStyle::kBits};
    case Row::Kind::kEntry:
        break;
    }
    const bool hasValue = row.value && !row.value->isEmpty();
    return {hasValue ? row.name + u':' : row.name, PieceStyle::kEntryName};
}

} // namespace

void InfoElementsModel::setElements(const QByteArray& run)
{
    if (run == m_run)
        return;
    m_run = run;
    m_decoded = informationElements(run);
    Rows fresh;
    for (std::size_t place = 0; place < m_decoded.size(); ++place) {
        fresh.push_back(rowOf(m_decoded[place]));
        fresh.back()->place = place;
    }
    sortRows(fresh);
    if (haveSameShape(m_elements, fresh)) {
        takeTexts(m_elements, fresh, {});
        return;
    }
    beginResetModel();
    m_elements = std::move(fresh);
    endResetModel();
}

/// Brings rows to what other rows of the same shape say.
void InfoElementsModel::takeTexts(Rows& shown, Rows& fresh, const QModelIndex& parent)
{
    for (std::size_t i = 0; i < shown.size(); ++i) {
        Row& row = *shown[i];
        Row& now = *fresh[i];
        const QModelIndex first = index(static_cast<int>(i), 0, parent);
        takeTexts(row.children, now.children, first);
        row.place = now.place;
        if (row.value == now.value && row.notes == now.notes && row.length == now.length)
            continue;
        row.value = std::move(now.value);
        row.notes = std::move(now.notes);
        row.length = now.length;
        Q_EMIT dataChanged(first, first.siblingAtColumn(kColumnCount - 1));
    }
}

void InfoElementsModel::sortRows(Rows& rows) const
{
    std::ranges::sort(rows, {}, [](const auto& row) { return row->place; });
    if (m_sortColumn >= 0) {
        std::ranges::stable_sort(rows, [&](const auto& a, const auto& b) {
            return m_sortOrder == Qt::AscendingOrder ? comesBefore(*a, *b, m_sortColumn)
                                                     : comesBefore(*b, *a, m_sortColumn);
        });
    }
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i]->row = static_cast<int>(i);
}

void InfoElementsModel::sort(int column, Qt::SortOrder order)
{
    if (column == kFieldsColumn) // says nothing to sort by
        return;
    m_sortColumn = column;
    m_sortOrder = order;
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    sortRows(m_elements);
    QModelIndexList after;
    for (const QModelIndex& index : before) {
        auto& row = *static_cast<Row*>(index.internalPointer());
        after.append(createIndex(row.row, index.column(), &row));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

const InfoElementRow& InfoElementsModel::rowAt(const QModelIndex& index)
{
    return *static_cast<const Row*>(index.internalPointer());
}

QString InfoElementsModel::dumpOf(const InfoElementRow& element) const
{
    return QString::fromStdString(m_decoded[element.place].ieDump());
}

QString InfoElementsModel::dumpOf(const QModelIndex& index) const
{
    const Row* row = &rowAt(index);
    while (row->parent)
        row = row->parent;
    return dumpOf(*row);
}

QString InfoElementsModel::dump() const
{
    QStringList dumps;
    for (const auto& element : m_elements)
        dumps.append(dumpOf(*element));
    return dumps.join(QLatin1String("\n\n"));
}

std::vector<TextPiece> InfoElementsModel::textPieces(const QModelIndex& index)
{
    const Row& row = rowAt(index);
    switch (index.column()) {
    case kElementColumn:
        return {pieceOfName(row)};
    case kFieldsColumn:
        return piecesOfFields(row);
    default:
        break;
    }
    if (row.kind != Row::Kind::kElement)
        return {};
    if (index.column() == kIDColumn)
        return {{QString::number(row.elementID), PieceStyle::kPlain}};
    return {{localized("%1 bytes").arg(row.length), PieceStyle::kLength}};
}

// The model's interface ---------------------------------------------------------------------------

const InfoElementsModel::Rows& InfoElementsModel::rowsBelow(const QModelIndex& parent) const
{
    return parent.isValid() ? rowAt(parent).children : m_elements;
}

QModelIndex InfoElementsModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, rowsBelow(parent)[static_cast<std::size_t>(row)].get());
}

QModelIndex InfoElementsModel::parent(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    Row* parent = rowAt(index).parent;
    return parent ? createIndex(parent->row, 0, parent) : QModelIndex();
}

int InfoElementsModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(rowsBelow(parent).size());
}

int InfoElementsModel::columnCount(const QModelIndex&) const
{
    return kColumnCount;
}

QVariant InfoElementsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(index.column() <= kLengthColumn ? Qt::AlignRight | Qt::AlignVCenter
                                                   : Qt::AlignLeft | Qt::AlignVCenter);
    if (role == Qt::DecorationRole)
        return index.column() == kElementColumn && rowAt(index).kind == Row::Kind::kElement &&
                       rowCount(index.siblingAtColumn(0)) > 0
                   ? QVariant(glyphIcon(Glyph::kTag))
                   : QVariant();
    if (role != Qt::DisplayRole)
        return {};
    QString text;
    for (const TextPiece& piece : textPieces(index))
        text += piece.text;
    return text;
}

QVariant InfoElementsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= kColumnCount)
        return {};
    if (role == Qt::DisplayRole)
        return localized(kColumns[section].title);
    return role == Qt::ToolTipRole ? QVariant(localized(kColumns[section].description))
                                   : QVariant();
}

Qt::ItemFlags InfoElementsModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Row& row = rowAt(index);
    const bool isLeaf = row.kind != Row::Kind::kElement && row.children.empty();
    return isLeaf ? Qt::ItemIsEnabled : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

} // namespace tessara
