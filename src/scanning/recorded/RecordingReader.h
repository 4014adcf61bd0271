#pragma once

#include "scanning/recorded/LineReader.h"
#include "scanning/recorded/ScanReader.h"

#include <memory>

namespace tessara {

/// Reads a recording: lines of JSON, each `{"time": seconds since 1970, "networks": [raw scan
/// dictionaries]}`. Holds one line at a time. A line that is anything else ends the reading with
/// an error that names it; keys that it does not know are passed over.
class RecordingReader final : public ScanReader {
public:
    /// @param device the bytes of the recording, open for reading
    /// @param name what error messages call it
    RecordingReader(std::unique_ptr<QIODevice> device, QString name);

    std::optional<RecordedScan> next() override;
    QString error() const override { return m_error; }

private:
    /// The next line that is not blank; none at the end, and after an error.
    std::optional<QByteArray> nextLine();
    void failAtLine(qint64 lineNumber, const QString& reason);

    std::unique_ptr<QIODevice> m_device;
    LineReader m_lines;
    QString m_name;
    QString m_error;
};

} // namespace tessara
