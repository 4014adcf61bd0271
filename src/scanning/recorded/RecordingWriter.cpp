#include "scanning/recorded/RecordingWriter.h"

#include "foundation/Localized.h"
#include "scanning/recorded/ScanLine.h"

#include <cerrno>
#include <unistd.h>

namespace tessara {

bool isRecordingName(const QString& path)
{
    return path.endsWith(QLatin1String(".jsonl"), Qt::CaseInsensitive) ||
           path.endsWith(QLatin1String(".jsonl.gz"), Qt::CaseInsensitive);
}

RecordingWriter::RecordingWriter(const QString& path)
    : m_file(path)
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        fail(m_file.errorString());
        return;
    }
    const bool packed = path.endsWith(QLatin1String(".gz"), Qt::CaseInsensitive);
    m_packer.reset(gzdopen(::dup(m_file.handle()), packed ? "wb" : "wbT"));
    if (!m_packer)
        fail(qt_error_string(ENOMEM));
}

bool RecordingWriter::write(const RecordedScan& scan)
{
    if (!m_error.isEmpty())
        return false;
    const QByteArray line = lineOfScan(scan);
    if (gzfwrite(line.constData(), static_cast<z_size_t>(line.size()), 1, m_packer.get()) == 0)
        fail(gzipError(m_packer.get()));
    return m_error.isEmpty();
}

bool RecordingWriter::finish()
{
    if (!m_error.isEmpty())
        return false;
    // Some file systems find out only now that there is no room.
    if (gzclose(m_packer.release()) != Z_OK ||
        (::fsync(m_file.handle()) != 0 && errno != EINVAL && errno != EROFS))
        fail(qt_error_string(errno));
    else if (!m_file.commit())
        fail(m_file.errorString());
    return m_error.isEmpty();
}

void RecordingWriter::fail(const QString& reason)
{
    m_error = localized("%1: could not be written: %2").arg(m_file.fileName(), reason);
    m_packer.reset();
    m_file.cancelWriting();
}

} // namespace tessara
