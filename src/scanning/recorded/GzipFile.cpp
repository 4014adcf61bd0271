#include "scanning/recorded/GzipFile.h"

#include "foundation/Localized.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace tessara {

namespace {

constexpr unsigned kBufferSize = 1 << 17;
constexpr qint64 kMostBytesAtOnce = 1 << 30; // zlib counts in int

} // namespace

QString gzipError(gzFile file)
{
    int code = Z_OK;
    gzerror(file, &code);
    switch (code) {
    case Z_OK:
    case Z_STREAM_END:
        return {};
    case Z_ERRNO:
        return qt_error_string(errno);
    case Z_BUF_ERROR:
        return localized("the compressed data ends too early");
    default:
        return localized("the compressed data is damaged");
    }
}

GzipFile::GzipFile(QString path)
    : m_path(std::move(path))
{
}

bool GzipFile::openForReading()
{
    errno = 0;
    m_file.reset(m_path == kStandardInput ? gzdopen(::dup(STDIN_FILENO), "rb")
                                          : gzopen(QFile::encodeName(m_path).constData(), "rbe"));
    if (!m_file) {
        setErrorString(qt_error_string(errno));
        return false;
    }
    gzbuffer(m_file.get(), kBufferSize);
    return QIODevice::open(ReadOnly | Unbuffered);
}

bool GzipFile::reset()
{
    gzclearerr(m_file.get()); // what comes before a damage can be read again
    return gzrewind(m_file.get()) == 0;
}

qint64 GzipFile::readData(char* data, qint64 maxSize)
{
    const auto wanted = static_cast<unsigned>(std::min(maxSize, kMostBytesAtOnce));
    const int count = gzread(m_file.get(), data, wanted);
    if (count > 0)
        return count;
    const QString error = gzipError(m_file.get());
    if (error.isEmpty())
        return 0;
    setErrorString(error);
    return -1;
}

qint64 GzipFile::writeData(const char*, qint64)
{
    return -1; // opened for reading only
}

} // namespace tessara
