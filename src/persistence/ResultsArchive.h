#pragma once

#include "foundation/ByteReader.h"
#include "model/NetworkSnapshot.h"
#include "model/TSNetwork.h"

#include <QIODevice>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace tessara {

/// Results to be saved.
struct ResultsSnapshot {
    std::vector<NetworkSnapshot> networks;
    double lastScanTime = 0; ///< seconds since 1970

    static ResultsSnapshot of(const NetworkList& networks, double lastScanTime);
};

/// Results that were saved.
struct SavedResults {
    NetworkList networks;
    double lastScanTime = 0; ///< seconds since 1970; 0 if the file tells none
};

/// Is told how much of the work is done, from 0 to 1. @return whether to go on
using WorkProgress = std::function<bool(double done)>;

/// Writes results as a keyed archive.
/// @return whether all of it was written: the device took it, and the work was to go on
bool encodeResults(const ResultsSnapshot& results, QIODevice& device, const WorkProgress& progress);

/// Reads results from a keyed archive, which may be damaged or hostile. May be called on any
/// thread. Statistics and attributes of the records are worked out anew; a record without a BSSID
/// or a channel is left out.
/// @param now seconds since 1970, by which the age of the records is told
/// @param error what is wrong with the archive, in one line; empty if the work was not to go on
/// @return none if there are no results
std::optional<SavedResults> decodeResults(Bytes archive, double now, const WorkProgress& progress,
                                          QString& error);

} // namespace tessara
