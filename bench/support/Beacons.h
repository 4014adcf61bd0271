#pragma once

#include "model/ScanDictionary.h"

namespace tessara {

/// The beacons and probe responses of real equipment, from the captures in the folder that the
/// environment variable TESSARA_CAPTURES names; without it, those of the bundled recording.
const ScanResults& beacons();

} // namespace tessara
