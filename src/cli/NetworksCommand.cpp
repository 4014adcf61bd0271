#include "cli/Command.h"
#include "cli/DeviceNames.h"
#include "cli/InputOptions.h"
#include "cli/ListOptions.h"
#include "cli/NetworksInput.h"
#include "foundation/Defaults.h"

namespace tessara {

namespace {

void addOptions(QCommandLineParser& parser)
{
    addInputOptions(parser);
    addListOptions(parser);
    addDeviceNamesOption(parser);
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

    const NetworksInput input = readNetworks(arguments[0], *sweep);
    if (!input.isRead) {
        complain(input.error);
        return kFailed;
    }
    waitForDeviceNames(parser);
    DisplayPipeline pipeline;
    pipeline.setShownKinds(ShownKinds::fromDefaults(Defaults::standard()));
    pipeline.setSortDescriptors(options->sort);
    pipeline.onFilter(options->filter);
    pipeline.filterAndSetNetworks(input.networks);
    // What could be read is shown even where the input ends in an error.
    const ExitStatus printed =
        printList(pipeline, *options, CellContext::fromDefaults(false), input.lastScanTime);
    if (input.error.isEmpty())
        return printed;
    complain(input.error);
    return kFailed;
}

} // namespace

const Command kNetworksCommand = {
    "networks", "INPUT",
    "Lists the networks of a results file, or after the last scan of a recording or a capture.",
    addOptions, run};

} // namespace tessara
