#pragma once

#include "model/ColumnRegistry.h"
#include "model/TSNetwork.h"
#include "persistence/FileWork.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <vector>

namespace tessara {

/// In quotation marks if the text holds a comma. Quotation marks inside it are not doubled: that
/// is the format.
QString stringByAddingQuotationMarksForCSV(const QString& text);

/// One line of the export, without a line end. Cells hold values without units; signals and noise
/// are in per cent or dBm. Only names, notes and lists are ever put in quotation marks, and a line
/// break in a name breaks the line: that too is the format.
QString toCSV(const NetworkRow& network, const std::vector<const Column*>& columns,
              bool usingPercentage);

/// The whole export in UTF-8: a line of titles with units, then a line for each network. The marker
/// of the chart colour is left out.
/// @param units as the setting `Units` has it: signals and noise are in per cent if it is 0
QByteArray csvText(const NetworkList& networks, const std::vector<const Column*>& columns,
                   std::int64_t units);

/// Writes lists of networks as CSV files. Lives on the main thread.
class CSVExport {
public:
    struct Request {
        QString filename;
        NetworkList networks;
        std::vector<const Column*> identifiers; ///< the columns, in the order of the table
    };

    explicit CSVExport(UserPrompt& prompt)
        : m_work(prompt)
    {
    }

    /// "tessara-0.1.0_20231114_221320.csv"
    /// @param now seconds since 1970
    static QString suggestedFileName(double now);

    /// Writes the networks as they are now, on a thread of its own.
    void doExportWithFileInBackground(const Request& request);

private:
    FileWork m_work;
};

} // namespace tessara
