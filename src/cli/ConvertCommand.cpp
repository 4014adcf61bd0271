#include "cli/Command.h"
#include "cli/InputOptions.h"
#include "scanning/recorded/RecordingWriter.h"

namespace tessara {

namespace {

ExitStatus run(const QCommandLineParser& parser, const QStringList& arguments)
{
    if (arguments.size() != 2)
        return wrongUsage(QStringLiteral("convert takes an input and an output"));
    if (!isRecordingName(arguments[1])) {
        return wrongUsage(
            QStringLiteral("%1: an output ends in .jsonl or .jsonl.gz").arg(arguments[1]));
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
    RecordingWriter writer(arguments[1]);
    while (const auto scan = input.reader->next()) {
        if (!writer.write(*scan))
            break;
    }
    // A part of the input is not what was asked for: nothing is put in the output's place.
    if (input.reader->error().isEmpty() && writer.finish())
        return kDone;
    complain(writer.error().isEmpty() ? input.reader->error() : writer.error());
    return kFailed;
}

} // namespace

const Command kConvertCommand = {
    "convert", "INPUT OUTPUT",
    "Writes the scans of a recording or a capture as a recording (.jsonl, .jsonl.gz).",
    addInputOptions, run};

} // namespace tessara
