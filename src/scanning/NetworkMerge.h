#pragma once

#include "model/ScanDictionary.h"
#include "model/TSNetwork.h"

#include <cstdint>
#include <optional>

namespace tessara {

class Defaults;

/// What the merge leaves out.
struct MergeLimits {
    /// The value of `Sensitivity` that lets everything in.
    static constexpr int kSensitivityOff = 85;

    /// A reading below this, in dBm, counts as not reported; none lets everything in.
    std::optional<std::int64_t> weakestSignal;
    /// A network not seen for more whole seconds than this is removed.
    double maxLastSeenElapsedSeconds;

    /// As the settings `Sensitivity`, `DeleteIfNotSeen` and `MaxElapsedTimeNotSeen` say.
    static MergeLimits fromDefaults(const Defaults& defaults);
};

/// Folds the results of a scan into a list of records and returns the new list: a known network
/// gets the new dictionary and a sample, a new one gets a record, an absent one a sample without
/// data, and one past the age limit goes. Takes time linear in the number of networks.
/// @param scanTime seconds since 1970; stamps the samples
NetworkList mergeNetworks(const ScanResults& results, const NetworkList& networks, double scanTime,
                          const MergeLimits& limits);

} // namespace tessara
