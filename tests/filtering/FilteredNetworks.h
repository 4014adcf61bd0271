#pragma once

#include "model/TSNetwork.h"

namespace tessara {

/// Ten networks that differ in all that a filter looks at, the same ones at each call. Their
/// vendors, device names and notes come from directories that the call installs.
NetworkList filteredNetworks();

} // namespace tessara
