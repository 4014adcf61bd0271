#include "cli/Command.h"
#include "foundation/HarmlessText.h"

#include <QTextStream>

#include <cstdio>

namespace tessara {

std::span<const Command> commands()
{
    static const Command all[] = {kNetworksCommand, kElementsCommand,   kConvertCommand,
                                  kScanCommand,     kInterfacesCommand, kChartCommand};
    return all;
}

ExitStatus finishOutput()
{
    if (std::fflush(stdout) == 0 && !std::ferror(stdout))
        return kDone;
    complain(QStringLiteral("standard output cannot be written"));
    return kFailed;
}

void complain(const QString& message)
{
    // A path in it may hold anything.
    QTextStream(stderr) << "tessara-cli: " << harmless(message) << Qt::endl;
}

ExitStatus wrongUsage(const QString& message)
{
    complain(message);
    QTextStream(stderr) << "Try 'tessara-cli --help'." << Qt::endl;
    return kWrongUsage;
}

} // namespace tessara
