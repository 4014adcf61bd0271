#include "scanning/recorded/Replay.h"

namespace tessara {

Replay replay(ScanReader& reader, MergeLimits limits)
{
    Replay result;
    const auto weakestSignal = limits.weakestSignal;
    while (const auto scan = reader.next()) {
        limits.weakestSignal = scan->recordsSignal ? weakestSignal : std::nullopt;
        result.networks = mergeNetworks(scan->networks, result.networks, scan->time, limits);
        result.lastScanTime = scan->time;
        ++result.scans;
    }
    return result;
}

} // namespace tessara
