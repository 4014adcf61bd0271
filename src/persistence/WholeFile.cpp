#include "persistence/WholeFile.h"

#include "foundation/Localized.h"

#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>

#include <unistd.h>

namespace tessara {

namespace {

/// A disk that fills up takes a part; the reason comes with what follows.
bool writeAll(QIODevice& file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qint64 written = file.write(bytes.data(), bytes.size());
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

} // namespace

std::optional<QByteArray> readWholeFile(const QString& path, qint64 longest, QString& error)
{
    const auto unreadable = [&](const QString& reason) {
        error = localized("%1: could not be read: %2").arg(path, reason);
        return std::nullopt;
    };
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) // a pipe or a device may have no end
        return unreadable(localized("this is no regular file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(file.errorString());
    if (file.size() > longest)
        return unreadable(localized("it is longer than %1 MB").arg(longest >> 20));
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return unreadable(file.errorString());
    return bytes;
}

QString syncToDisk(QFileDevice& file)
{
    // EINVAL: the file system does not know how to.
    return ::fsync(file.handle()) != 0 && errno != EINVAL ? qt_error_string(errno) : QString();
}

QString writeWholeFile(const QString& path, const QByteArray& bytes, const QDateTime& modified)
{
    QSaveFile file(path);
    // Without a buffer: commit() would put a file in its place whose last bytes found no room.
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, bytes)) {
        if (modified.isValid())
            file.setFileTime(modified, QFileDevice::FileModificationTime);
        if (const QString error = syncToDisk(file); !error.isEmpty())
            return localized("%1: could not be written: %2").arg(path, error);
        if (file.commit())
            return {};
    }
    return localized("%1: could not be written: %2").arg(path, file.errorString());
}

} // namespace tessara
