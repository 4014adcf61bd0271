#pragma once

#include "scanning/nl80211/BssEntry.h"

namespace tessara {

/// What the kernel's list of networks holds.
struct ScanDump {
    int error = 0; ///< an errno
    std::vector<BssEntry> entries;
};

/// Reads the list as it is, without a scan. It is the radio's list: interfaces of one radio have
/// the same, apart from what each is associated with. A list that changes while it is read is
/// read again, a few times at the most.
ScanDump readScanDump(unsigned interfaceIndex);

} // namespace tessara
