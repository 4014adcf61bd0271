#pragma once

#include "foundation/Clock.h"
#include "scanning/nl80211/BootTime.h"
#include "scanning/nl80211/ScanProgress.h"

#include <QByteArray>

#include <optional>

namespace tessara {

/// The longest that a scan takes. Where its beginning is not known, what was heard within this time
/// before its end counts as heard by it.
inline constexpr BootTime kLongestScan = 15'000'000'000;

/// One active scan, over.
struct ScanRun {
    ScanEnd end = ScanEnd::kRefused;
    int error = 0;      ///< an errno: why it was refused
    BootTime begun = 0; ///< what was seen since is its result
};

/// Triggers an active scan and blocks until it is over, for kLongestScan at the most. If the radio
/// is busy with someone else's scan, the end of that one is waited for first, for as long; it may
/// have been a scan of a single channel and so does not serve in place of ours. If the kernel drops
/// events, the scan counts as finished: what was heard by then stands in the list.
/// @param ssid  the only name to probe for; none probes for all
/// @param pause tells when the program shuts down, which ends the wait
ScanRun runScan(const InterfaceInfo& interface, const std::optional<QByteArray>& ssid,
                Pause& pause);

} // namespace tessara
