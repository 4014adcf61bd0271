#pragma once

#include <QByteArray>
#include <QIODevice>

#include <optional>

namespace tessara {

/// Cuts a device's bytes into lines, however long they are, and holds little more than the line
/// at hand.
class LineReader {
public:
    /// @param longest the bytes that a line may have
    LineReader(QIODevice& device, qsizetype longest);

    /// The next line without its line feed; the last one may lack it. None at the end, after a
    /// fault of the device, and before a line that is too long.
    std::optional<QByteArray> next();

    /// The number of the last line given, counted from 1.
    qint64 lineNumber() const { return m_lineNumber; }
    bool deviceFailed() const { return m_deviceFailed; }
    bool lineTooLong() const { return m_lineTooLong; }

private:
    bool readMore();
    QByteArray takeLine(qsizetype end);

    QIODevice& m_device;
    qsizetype m_longest;
    QByteArray m_buffer;
    qsizetype m_start = 0; ///< of the next line in `m_buffer`
    qint64 m_lineNumber = 0;
    bool m_deviceFailed = false;
    bool m_lineTooLong = false;
};

} // namespace tessara
