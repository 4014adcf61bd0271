#include "cli/Command.h"
#include "cli/InputOptions.h"
#include "cli/NetworksInput.h"
#include "cli/ScansOfResults.h"
#include "foundation/Defaults.h"
#include "persistence/CSVExport.h"
#include "persistence/ResultsFile.h"
#include "persistence/WholeFile.h"
#include "scanning/recorded/RecordingWriter.h"
#include "scanning/recorded/ScanInput.h"

namespace tessara {

namespace {

bool isCSVName(const QString& path)
{
    return path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

// Each gives what went wrong, or an empty text. A part of the input is not what was asked for:
// nothing is then put in the output's place.

QString writeScans(const QString& input, double sweep, const QString& output)
{
    const ScanInput scans = openScanInput(input, sweep);
    if (!scans.reader)
        return scans.error;
    RecordingWriter writer(output);
    bool isEmpty = true;
    while (const auto scan = scans.reader->next()) {
        isEmpty = false;
        if (!writer.write(*scan))
            break;
    }
    if (!scans.reader->error().isEmpty())
        return scans.reader->error();
    if (isEmpty)
        return QStringLiteral("%1 holds no scans").arg(input);
    writer.finish();
    return writer.error();
}

QString writeScansOf(const NetworksInput& results, const QString& output)
{
    RecordingWriter writer(output);
    forEachScan(results.networks, results.lastScanTime,
                [&writer](const RecordedScan& scan) { return writer.write(scan); });
    writer.finish();
    return writer.error();
}

QString writeResults(const NetworksInput& results, const QString& output)
{
    QString error;
    const auto snapshot = ResultsSnapshot::of(results.networks, results.lastScanTime);
    writeResultsFile(
        output, snapshot, [](double) { return true; }, error);
    return error.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(output, error);
}

QString writeCSV(const NetworksInput& results, const QString& output)
{
    const qint64 units = Defaults::standard().integerForKey(DefaultKey::Units);
    return writeWholeFile(output, csvText(results.networks, allColumns(), units));
}

QString convert(const QString& input, double sweep, const QString& output)
{
    if (isRecordingName(output) && !isResultsFileName(input))
        return writeScans(input, sweep, output);
    const NetworksInput results = readNetworks(input, sweep);
    if (!results.error.isEmpty())
        return results.error;
    return isResultsFileName(output) ? writeResults(results, output)
           : isCSVName(output)       ? writeCSV(results, output)
                                     : writeScansOf(results, output);
}

ExitStatus run(const QCommandLineParser& parser, const QStringList& arguments)
{
    if (arguments.size() != 2)
        return wrongUsage(QStringLiteral("convert takes an input and an output"));
    const QString& output = arguments[1];
    if (!isRecordingName(output) && !isResultsFileName(output) && !isCSVName(output)) {
        return wrongUsage(
            QStringLiteral("%1: an output ends in .tessara, .jsonl, .jsonl.gz or .csv")
                .arg(output));
    }
    QString error;
    const auto sweep = sweepSeconds(parser, error);
    if (!sweep)
        return wrongUsage(error);
    error = convert(arguments[0], *sweep, output);
    if (error.isEmpty())
        return kDone;
    complain(error);
    return kFailed;
}

} // namespace

const Command kConvertCommand = {
    "convert", "INPUT OUTPUT",
    "Writes the results of an input (.tessara), its scans as a recording (.jsonl, .jsonl.gz), or "
    "its networks as CSV (.csv).",
    addInputOptions, run};

} // namespace tessara
