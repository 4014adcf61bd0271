#pragma once

#include "foundation/Clock.h"
#include "scanning/nl80211/BootTime.h"
#include "scanning/nl80211/ScanProgress.h"

#include <QByteArray>

#include <optional>

namespace tessara
{

/// The longest that a scan takes. What was heard within this time before the end of a scan counts
/// as heard by it, where its beginning is not known.
inline constexpr BootTime kLongestScan = 15'000'000'000;

/// One active scan, over.
struct ScanRun {
    ScanEnd end = ScanEnd::kRefused;
    int error = 0;      ///< an errno: why it was refused
    BootTime begun = 0; ///< what was seen since is its result
};

/// Triggers an active scan and blocks until it is over, for 15 s at the most. If the radio is busy
/// with someone else's scan, that one is waited for and serves as well, unless a network is asked
/// for by name: then the scan follows it.
/// @param ssid  the only name to probe for; none probes for all
/// @param pause tells when the program shuts down, which ends the wait
ScanRun runScan(const InterfaceInfo& interface, const std::optional<QByteArray>& ssid,
                Pause& pause);

} // namespace tessara
