#pragma once

#include "model/TSNetwork.h"
#include "scanning/recorded/ScanReader.h"

#include <functional>

namespace tessara {

/// Turns the histories of a list back into scans, the earliest first, that would lead to the list
/// again: each reports the networks that have a reading of its time. Of what a network announces
/// only the last is known, so that is what all its scans say.
/// @param lastScanTime of the scan that is there even if it found nothing; seconds since 1970
/// @param take gets each scan; @return false to end it
void forEachScan(const NetworkList& networks, double lastScanTime,
                 const std::function<bool(const RecordedScan& scan)>& take);

} // namespace tessara
