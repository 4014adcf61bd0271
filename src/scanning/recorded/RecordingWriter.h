#pragma once

#include "scanning/recorded/GzipFile.h"
#include "scanning/recorded/ScanReader.h"

#include <QSaveFile>

namespace tessara {

/// Whether a file of this name is a recording: it ends in ".jsonl" or ".jsonl.gz".
bool isRecordingName(const QString& path);

/// Writes a recording, scan by scan. A name that ends in ".gz" gets a compressed one. The file
/// appears under its name, whole, when `finish` succeeds; until then, and after any fault, what
/// stood there before is untouched.
class RecordingWriter {
public:
    explicit RecordingWriter(const QString& path);

    /// Appends a scan. @return whether all has gone well so far; `error` tells why not
    bool write(const RecordedScan& scan);
    /// Puts the file in its place. @return whether it is there
    bool finish();
    /// What went wrong, in one line for the user that names the file; empty if nothing did.
    QString error() const { return m_error; }

private:
    void fail(const QString& reason);

    QSaveFile m_file;
    GzipHandle m_packer; ///< writes into `m_file`, compressed or as it is
    QString m_error;
};

} // namespace tessara
