#include "cli/Command.h"
#include "cli/InputOptions.h"
#include "foundation/Defaults.h"
#include "persistence/CSVExport.h"
#include "persistence/WholeFile.h"
#include "scanning/recorded/RecordingWriter.h"
#include "scanning/recorded/Replay.h"

namespace tessara {

namespace {

bool isCSVName(const QString& path)
{
    return path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

// Each gives what went wrong, or an empty text. A part of the input is not what was asked for:
// nothing is then put in the output's place.

QString writeRecording(ScanReader& reader, const QString& path)
{
    RecordingWriter writer(path);
    while (const auto scan = reader.next()) {
        if (!writer.write(*scan))
            break;
    }
    if (!reader.error().isEmpty())
        return reader.error();
    writer.finish();
    return writer.error();
}

QString writeCSV(ScanReader& reader, const QString& path)
{
    const Defaults& defaults = Defaults::standard();
    const Replay result = replay(reader, MergeLimits::fromDefaults(defaults));
    if (!reader.error().isEmpty())
        return reader.error();
    return writeWholeFile(
        path, csvText(result.networks, allColumns(), defaults.integerForKey(DefaultKey::Units)));
}

ExitStatus run(const QCommandLineParser& parser, const QStringList& arguments)
{
    if (arguments.size() != 2)
        return wrongUsage(QStringLiteral("convert takes an input and an output"));
    if (!isRecordingName(arguments[1]) && !isCSVName(arguments[1])) {
        return wrongUsage(
            QStringLiteral("%1: an output ends in .jsonl, .jsonl.gz or .csv").arg(arguments[1]));
    }
    QString error;
    const auto sweep = sweepSeconds(parser, error);
    if (!sweep)
        return wrongUsage(error);

    const ScanInput input = openScanInput(arguments[0], *sweep);
    if (!input.reader) {
        complain(input.error);
        return kFailed;
    }
    error = isCSVName(arguments[1]) ? writeCSV(*input.reader, arguments[1])
                                    : writeRecording(*input.reader, arguments[1]);
    if (error.isEmpty())
        return kDone;
    complain(error);
    return kFailed;
}

} // namespace

const Command kConvertCommand = {
    "convert", "INPUT OUTPUT",
    "Writes the scans of a recording or a capture as a recording (.jsonl, .jsonl.gz), or the "
    "networks after the last one as CSV (.csv).",
    addInputOptions, run};

} // namespace tessara
