#pragma once

#include "model/ScanDictionary.h"

#include <QString>

#include <memory>
#include <optional>

namespace tessara {

/// One scan of a file.
struct RecordedScan {
    /// The end of the year 9999: no scan is later, and none is as long before 1970.
    static constexpr double kLatestTime = 253402300799;

    double time = 0; ///< seconds since 1970
    ScanResults networks;
    /// False if the input knows no signal strengths: its networks are listed all the same.
    bool recordsSignal = true;
};

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
