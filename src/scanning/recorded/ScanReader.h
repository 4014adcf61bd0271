#pragma once

#include "model/ScanDictionary.h"

#include <QString>

#include <optional>

namespace tessara {

/// One scan of a file.
struct RecordedScan {
    /// The end of the year 9999: no scan is later, and none is as long before 1970.
    static constexpr double kLatestTime = 253402300799;

    double time = 0; ///< seconds since 1970
    ScanResults networks;
    /// False if the input knows no signal strength of some of these networks: they stand at -120
    /// dBm, and are listed all the same.
    bool recordsSignal = true;
};

/// Whether all networks of a scan have a signal, or might have had one (0, no reading).
bool recordsSignal(const ScanResults& networks);

/// Reads the scans of a file one by one, in the order of the file.
class ScanReader {
public:
    virtual ~ScanReader() = default;

    /// The next scan; none at the end, and after an error.
    virtual std::optional<RecordedScan> next() = 0;
    /// What went wrong, in one line for the user, with the name of the file and the place in it;
    /// empty if nothing did.
    virtual QString error() const = 0;
};

} // namespace tessara
