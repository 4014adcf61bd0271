#pragma once

#include "foundation/Localized.h"

#include <QCollatorSortKey>
#include <QString>
#include <QVariant>

#include <span>
#include <variant>
#include <vector>

namespace tessara {

class NetworkRow;

/// How two sort keys of a column are told apart.
enum class Comparison {
    kNone,            ///< the column does not sort
    kNumber,          ///< as numbers, or as times
    kStandard,        ///< localizedStandardCompare
    kCaseInsensitive, ///< caseInsensitiveCompare
};

enum class CellKind { kMarker, kText, kTextAndImage, kLevel };

/// What the text of a cell depends on besides the network.
struct CellContext {
    bool dBm = false;        ///< signals in dBm instead of per cent
    bool isScanning = false; ///< "Just now" and "5 sec ago" instead of a date

    /// In the unit that the settings say.
    static CellContext fromDefaults(bool isScanning);
};

/// One column of the list of networks. The table, its header menu, CSV, the clipboard and the
/// command line all read this.
struct Column {
    QString identifier;
    EnglishText title;
    EnglishText description; ///< one sentence for a tool tip
    bool hidden;             ///< until the user asks for it
    double width;            ///< points; 0 leaves it to the table
    double minimumWidth;
    Comparison comparison;
    CellKind cell;
    bool alignsRight;
    QVariant (*sortKey)(const NetworkRow&);
    QString (*text)(const NetworkRow&, const CellContext&);
};

/// All columns in the order in which a fresh table shows them.
std::span<const Column> columnRegistry();
std::vector<const Column*> allColumns();
/// The column of an identifier; none if there is no such column.
const Column* columnWithIdentifier(QStringView identifier);

/// The sort key of a row in the form in which the column compares it.
class SortKey {
public:
    SortKey(const Column& column, const QVariant& key);

    /// Order of two keys of one column: negative, 0 or positive.
    static int compare(const SortKey& a, const SortKey& b);

private:
    std::variant<std::monostate, double, QCollatorSortKey, QString> m_value;
};

} // namespace tessara
