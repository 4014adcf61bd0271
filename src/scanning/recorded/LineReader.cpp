#include "scanning/recorded/LineReader.h"

#include <algorithm>
#include <utility>

namespace tessara {

namespace {

constexpr qsizetype kBytesAtOnce = 1 << 18;

} // namespace

LineReader::LineReader(QIODevice& device, qsizetype longest)
    : m_device(device)
    , m_longest(longest)
{
}

std::optional<QByteArray> LineReader::next()
{
    if (m_deviceFailed || m_lineTooLong)
        return std::nullopt;
    qsizetype searched = 0; // bytes of the line that are known to hold no line feed
    for (;;) {
        const qsizetype end = m_buffer.indexOf('\n', m_start + searched);
        searched = (end < 0 ? m_buffer.size() : end) - m_start;
        if (searched > m_longest) {
            m_lineTooLong = true;
            return std::nullopt;
        }
        if (end >= 0)
            return takeLine(end);
        if (!readMore())
            break;
    }
    if (m_deviceFailed || m_start == m_buffer.size())
        return std::nullopt;
    return takeLine(m_buffer.size());
}

bool LineReader::readMore()
{
    m_buffer.remove(0, std::exchange(m_start, 0));
    const qsizetype size = m_buffer.size();
    m_buffer.resize(size + kBytesAtOnce);
    const qint64 count = m_device.read(m_buffer.data() + size, kBytesAtOnce);
    m_buffer.truncate(size + std::max<qint64>(count, 0));
    m_deviceFailed = count < 0;
    return count > 0;
}

QByteArray LineReader::takeLine(qsizetype end)
{
    ++m_lineNumber;
    const qsizetype start = m_start;
    const qsizetype next = std::min(end + 1, m_buffer.size());
    if (end - start < kBytesAtOnce) {
        m_start = next;
        return m_buffer.mid(start, end - start);
    }
    // A long line is handed over, not copied.
    QByteArray rest = m_buffer.mid(next);
    QByteArray line = std::exchange(m_buffer, std::move(rest));
    m_start = 0;
    line.truncate(end);
    line.remove(0, start);
    return line;
}

} // namespace tessara
