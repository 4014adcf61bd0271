#include "shell/ColumnLayout.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tessara {

namespace {

const QString kColumns = QStringLiteral("columns");
const QString kSorting = QStringLiteral("sorting");
const QString kIdentifier = QStringLiteral("identifier");
const QString kWidth = QStringLiteral("width");
const QString kHidden = QStringLiteral("hidden");
const QString kAscending = QStringLiteral("ascending");

constexpr int kWidestColumn = 4000; // pixels; a stored width beyond it is no layout

} // namespace

QByteArray ColumnLayout::toJson() const
{
    QJsonArray columns;
    for (const Section& section : sections) {
        columns.append(QJsonObject{{kIdentifier, section.column->identifier},
                                   {kWidth, section.width},
                                   {kHidden, section.hidden}});
    }
    QJsonArray sorting;
    for (const SortDescriptor& descriptor : sortDescriptors) {
        sorting.append(QJsonObject{{kIdentifier, descriptor.column->identifier},
                                   {kAscending, descriptor.ascending}});
    }
    return QJsonDocument(QJsonObject{{kColumns, columns}, {kSorting, sorting}})
        .toJson(QJsonDocument::Compact);
}

ColumnLayout ColumnLayout::fromJson(const QByteArray& json)
{
    ColumnLayout layout;
    const QJsonObject stored = QJsonDocument::fromJson(json).object();
    for (const QJsonValueConstRef value : stored[kColumns].toArray()) {
        const Column* column = columnWithIdentifier(value[kIdentifier].toString());
        const int width = value[kWidth].toInt();
        if (column && width > 0 && width <= kWidestColumn)
            layout.sections.push_back({column, width, value[kHidden].toBool()});
    }
    for (const QJsonValueConstRef value : stored[kSorting].toArray()) {
        const Column* column = columnWithIdentifier(value[kIdentifier].toString());
        if (column && column->comparison != Comparison::kNone)
            layout.sortDescriptors.push_back({column, value[kAscending].toBool(true)});
    }
    return layout;
}

} // namespace tessara
