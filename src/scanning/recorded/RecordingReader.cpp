#include "scanning/recorded/RecordingReader.h"

#include "foundation/Localized.h"
#include "scanning/recorded/ScanLine.h"

#include <QJsonDocument>

#include <algorithm>

namespace tessara {

namespace {

/// A million networks with all their elements fit; what is longer is a trap for the memory.
constexpr qsizetype kLongestLine = qsizetype{1} << 30;

bool isBlank(const QByteArray& line)
{
    return std::ranges::all_of(line, [](char c) { return c == ' ' || c == '\t' || c == '\r'; });
}

} // namespace

RecordingReader::RecordingReader(std::unique_ptr<QIODevice> device, QString name)
    : m_device(std::move(device))
    , m_lines(*m_device, kLongestLine)
    , m_name(std::move(name))
{
}

std::optional<RecordedScan> RecordingReader::next()
{
    if (!m_error.isEmpty())
        return std::nullopt;
    auto line = nextLine();
    if (!line)
        return std::nullopt;

    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(*line, &parseError);
    line.reset(); // it may be long, and it is in the document now
    std::variant<RecordedScan, QString> scan;
    if (parseError.error != QJsonParseError::NoError)
        scan = localized("not JSON (%1)").arg(parseError.errorString());
    else if (!document.isObject())
        scan = localized("not an object");
    else
        scan = scanOfObject(document.object());

    if (const QString* reason = std::get_if<QString>(&scan)) {
        failAtLine(m_lines.lineNumber(), *reason);
        return std::nullopt;
    }
    return std::get<RecordedScan>(std::move(scan));
}

std::optional<QByteArray> RecordingReader::nextLine()
{
    auto line = m_lines.next();
    const qint64 lineNumber = m_lines.lineNumber();
    if (line && isBlank(*line)) {
        while (line && isBlank(*line))
            line = m_lines.next();
        if (line)
            failAtLine(lineNumber, localized("the line is empty")); // others follow
        line.reset();
    }
    if (m_lines.deviceFailed())
        m_error = localized("%1: %2").arg(m_name, m_device->errorString());
    else if (m_lines.lineTooLong())
        failAtLine(m_lines.lineNumber() + 1, localized("the line is too long"));
    return line;
}

void RecordingReader::failAtLine(qint64 lineNumber, const QString& reason)
{
    m_error = localized("%1, line %2: %3").arg(m_name, QString::number(lineNumber), reason);
}

} // namespace tessara
