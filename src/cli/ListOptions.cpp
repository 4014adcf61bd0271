#include "cli/ListOptions.h"

#include "cli/NetworksJSON.h"
#include "cli/TableText.h"
#include "cli/Terminal.h"
#include "foundation/Defaults.h"
#include "persistence/CSVExport.h"

#include <QTextStream>

namespace tessara {

namespace {

std::vector<const Column*> shownColumns()
{
    std::vector<const Column*> columns;
    for (const Column& column : columnRegistry()) {
        if (!column.hidden && column.cell != CellKind::kMarker)
            columns.push_back(&column);
    }
    return columns;
}

QString noSuchColumn(QStringView identifier)
{
    return QStringLiteral("there is no column '%1'").arg(identifier);
}

void writeList(QTextStream& out, const DisplayPipeline& pipeline, const ListOptions& options,
               const CellContext& context, double lastScanTime)
{
    switch (options.format) {
    case ListOptions::Format::kJSON:
        writeNetworksJSON(out, pipeline, context, lastScanTime);
        break;
    case ListOptions::Format::kCSV:
        out << csvText(pipeline.filteredNetworks(), options.columns,
                       Defaults::standard().integerForKey(DefaultKey::Units));
        break;
    case ListOptions::Format::kTable:
        const int width = isStandardOutputTerminal() ? terminalSize().columns : 0;
        for (const QString& line :
             tableText(pipeline.filteredNetworks(), options.columns, context, width))
            out << line << '\n';
        break;
    }
}

} // namespace

void addListOptions(QCommandLineParser& parser)
{
    parser.addOptions({
        {QStringLiteral("filter"),
         QStringLiteral("Show what a line of the filter language selects, as in 'wpa2 & 5GHz'."),
         QStringLiteral("LINE")},
        {QStringLiteral("sort"), QStringLiteral("Sort by a column, descending with ':desc'."),
         QStringLiteral("COLUMN[:desc]")},
        {QStringLiteral("columns"), QStringLiteral("Show these columns, by their identifiers."),
         QStringLiteral("ID,...")},
        {QStringLiteral("format"),
         QStringLiteral("'table' for people (the default), 'csv' as the application exports it, "
                        "'json' for programs."),
         QStringLiteral("table|csv|json")},
    });
}

std::optional<ListOptions> listOptions(const QCommandLineParser& parser, QString& error)
{
    ListOptions options;
    const QString format = parser.value(QStringLiteral("format"));
    if (format == QLatin1String("csv")) {
        options.format = ListOptions::Format::kCSV;
    } else if (format == QLatin1String("json")) {
        options.format = ListOptions::Format::kJSON;
    } else if (!format.isEmpty() && format != QLatin1String("table")) {
        error = QStringLiteral("--format takes 'table', 'csv' or 'json', not '%1'").arg(format);
        return std::nullopt;
    }

    options.filter = parser.value(QStringLiteral("filter"));
    if (const QString sort = parser.value(QStringLiteral("sort")); !sort.isEmpty()) {
        const QStringList parts = sort.split(u':');
        const Column* column = columnWithIdentifier(parts[0]);
        if (!column || column->comparison == Comparison::kNone) {
            error = noSuchColumn(parts[0]) + QStringLiteral(" to sort by");
            return std::nullopt;
        }
        const QString direction = parts.mid(1).join(u':');
        if (parts.size() > 1 && direction != QLatin1String("desc")) {
            error = QStringLiteral("after ':' --sort takes 'desc', not '%1'").arg(direction);
            return std::nullopt;
        }
        options.sort = {{column, direction.isEmpty()}};
    }

    options.columns = options.format == ListOptions::Format::kCSV ? allColumns() : shownColumns();
    if (const QString identifiers = parser.value(QStringLiteral("columns"));
        !identifiers.isEmpty()) {
        options.columns.clear();
        for (const QString& identifier : identifiers.split(u',')) {
            const Column* column = columnWithIdentifier(identifier.trimmed());
            if (!column) {
                error = noSuchColumn(identifier);
                return std::nullopt;
            }
            options.columns.push_back(column);
        }
    }
    return options;
}

ExitStatus printList(const DisplayPipeline& pipeline, const ListOptions& options,
                     const CellContext& context, double lastScanTime)
{
    {
        QTextStream out(stdout);
        writeList(out, pipeline, options, context, lastScanTime);
    }
    return finishOutput();
}

} // namespace tessara
