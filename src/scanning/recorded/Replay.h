#pragma once

#include "model/TSNetwork.h"
#include "scanning/NetworkMerge.h"
#include "scanning/recorded/ScanReader.h"

namespace tessara {

/// The list after the scans of a file.
struct Replay {
    NetworkList networks;
    double lastScanTime = 0; ///< seconds since 1970; 0 if there was no scan
    std::size_t scans = 0;
};

/// Merges the scans of a file one after the other, each at its own time, as the scan cycle would.
/// Where the input knows no signals, none is too weak. Stops at an error, which the reader tells.
Replay replay(ScanReader& reader, MergeLimits limits);

} // namespace tessara
