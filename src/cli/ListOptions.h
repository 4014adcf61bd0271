#pragma once

#include "cli/Command.h"
#include "filtering/DisplayPipeline.h"
#include "model/ColumnRegistry.h"

#include <QCommandLineParser>

#include <vector>

namespace tessara {

/// How a list of networks is to be printed.
struct ListOptions {
    enum class Format { kTable, kCSV, kJSON };

    std::vector<SortDescriptor> sort;
    QString filter; ///< a line of the filter language; empty selects all
    std::vector<const Column*> columns;
    Format format = Format::kTable;
};

/// --filter LINE, --sort COLUMN[:desc], --columns ID,…, --format table|csv|json
void addListOptions(QCommandLineParser& parser);

/// @param error what is wrong, if something is
/// @return none on an error
std::optional<ListOptions> listOptions(const QCommandLineParser& parser, QString& error);

/// Prints the list of a pipeline to standard output.
/// @param lastScanTime seconds since 1970
/// @return whether that went well
ExitStatus printList(const DisplayPipeline& pipeline, const ListOptions& options,
                     const CellContext& context, double lastScanTime);

} // namespace tessara
