#include "support/Beacons.h"

#include "scanning/recorded/ScanInput.h"

#include <QDir>

namespace tessara {

namespace {

/// So short that no two frames of a network fall into one scan.
constexpr double kSweepSeconds = 1e-6;

void append(ScanResults& beacons, const QString& path)
{
    const ScanInput input = openScanInput(path, kSweepSeconds);
    while (const auto scan = input.reader ? input.reader->next() : std::nullopt)
        beacons.insert(beacons.end(), scan->networks.begin(), scan->networks.end());
}

} // namespace

const ScanResults& beacons()
{
    static const ScanResults all = [] {
        ScanResults result;
        const QString folder = qEnvironmentVariable("TESSARA_CAPTURES");
        if (folder.isEmpty())
            append(result, QStringLiteral(TESSARA_RECORDING));
        else
            for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("*.pcap")}))
                append(result, file.filePath());
        return result;
    }();
    return all;
}

} // namespace tessara
