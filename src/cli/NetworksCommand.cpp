#include "cli/Command.h"
#include "cli/InputOptions.h"
#include "cli/ListOptions.h"
#include "foundation/Defaults.h"
#include "scanning/recorded/Replay.h"

namespace tessara {

namespace {

void addOptions(QCommandLineParser& parser)
{
    addInputOptions(parser);
    addListOptions(parser);
}

ExitStatus run(const QCommandLineParser& parser, const QStringList& arguments)
{
    if (arguments.size() != 1)
        return wrongUsage(QStringLiteral("networks takes one input"));
    QString error;
    const auto options = listOptions(parser, error);
    const auto sweep = sweepSeconds(parser, error);
    if (!options || !sweep)
        return wrongUsage(error);

    const ScanInput input = openScanInput(arguments[0], *sweep);
    if (!input.reader) {
        complain(input.error);
        return kFailed;
    }
    const Replay result = replay(*input.reader, MergeLimits::fromDefaults(Defaults::standard()));
    const QString readError = input.reader->error();
    if (result.scans == 0) {
        complain(readError.isEmpty() ? QStringLiteral("%1 holds no scans").arg(arguments[0])
                                     : readError);
        return kFailed;
    }
    DisplayPipeline pipeline;
    pipeline.setShownKinds(ShownKinds::fromDefaults(Defaults::standard()));
    pipeline.setSortDescriptors(options->sort);
    pipeline.onFilter(options->filter);
    pipeline.filterAndSetNetworks(result.networks);
    // What could be read is shown even where the input ends in an error.
    const ExitStatus printed =
        printList(pipeline, *options, CellContext::fromDefaults(false), result.lastScanTime);
    if (readError.isEmpty())
        return printed;
    complain(readError);
    return kFailed;
}

} // namespace

const Command kNetworksCommand = {
    "networks", "INPUT", "Lists the networks after the last scan of a recording or a capture.",
    addOptions, run};

} // namespace tessara
