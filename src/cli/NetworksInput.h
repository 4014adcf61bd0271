#pragma once

#include "model/TSNetwork.h"

#include <QString>

namespace tessara {

/// The list of networks that an input holds: that of a results file, or the one after the last
/// scan of a recording or a capture.
struct NetworksInput {
    NetworkList networks;
    double lastScanTime = 0; ///< seconds since 1970
    bool isRead = false;     ///< there is a list, if perhaps of a part of the input
    /// What went wrong, in one line for the user with the name of the file; empty if nothing did.
    QString error;
};

/// @param sweepSeconds how much time of a capture makes one scan
NetworksInput readNetworks(const QString& path, double sweepSeconds);

} // namespace tessara
