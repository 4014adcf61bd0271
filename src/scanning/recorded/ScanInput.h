#pragma once

#include "scanning/recorded/ScanReader.h"

#include <QString>

#include <memory>

namespace tessara {

/// A file opened for its scans, or the reason, in one line for the user, why it is not.
struct ScanInput {
    std::unique_ptr<ScanReader> reader;
    QString error;
};

/// Opens a recording or a capture by the ending of its name, or a recording on standard input
/// under the name "-".
/// @param sweepSeconds how much time of a capture makes one scan
ScanInput openScanInput(const QString& path, double sweepSeconds);

/// The name of an input for a line of text: that of the file, without folder and ending.
QString scanInputTitle(const QString& path);

} // namespace tessara
