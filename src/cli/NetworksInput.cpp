#include "cli/NetworksInput.h"

#include "foundation/Clock.h"
#include "foundation/Defaults.h"
#include "persistence/ResultsFile.h"
#include "scanning/recorded/Replay.h"
#include "scanning/recorded/ScanInput.h"

namespace tessara {

namespace {

NetworksInput readResults(const QString& path)
{
    ResultsFileError error;
    const WorkProgress goOn = [](double) { return true; };
    auto results = readResultsFile(path, SystemClock().now(), goOn, error);
    if (results)
        return {std::move(results->networks), results->lastScanTime, true, {}};
    if (!error.system.isEmpty())
        return {{}, 0, false, QStringLiteral("%1: %2").arg(path, error.system)};
    return {{},
            0,
            false,
            QStringLiteral("%1: this is no valid results file: %2").arg(path, error.format)};
}

} // namespace

NetworksInput readNetworks(const QString& path, double sweepSeconds)
{
    if (isResultsFileName(path))
        return readResults(path);
    const QString ending = u'.' + QStringView(kResultsExtension).toString();
    if (path.endsWith(ending, Qt::CaseInsensitive)) {
        const QString error = QStringLiteral("%1: a results file ends in %2, in lower case");
        return {{}, 0, false, error.arg(path, ending)};
    }
    const ScanInput input = openScanInput(path, sweepSeconds);
    if (!input.reader)
        return {{}, 0, false, input.error};
    Replay result = replay(*input.reader, MergeLimits::fromDefaults(Defaults::standard()));
    QString error = input.reader->error();
    if (result.scans == 0 && error.isEmpty())
        error = QStringLiteral("%1 holds no scans").arg(path);
    return {std::move(result.networks), result.lastScanTime, result.scans > 0, error};
}

} // namespace tessara
