#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFileDevice>
#include <QString>

#include <optional>

namespace tessara {

/// Reads a file of at most `longest` bytes.
/// @param error one line that names the file, if it cannot be read
std::optional<QByteArray> readWholeFile(const QString& path, qint64 longest, QString& error);

/// Has the disk take what was written. Some file systems tell only now that there is no room, and
/// QSaveFile::commit() alone would not say so. @return what went wrong, or empty
QString syncToDisk(QFileDevice& file);

/// Puts a file in its place whole, or leaves what stands there as it is.
/// @param modified the date that the file is to have; now if it is none
/// @return what went wrong, in one line that names the file, or empty
QString writeWholeFile(const QString& path, const QByteArray& bytes,
                       const QDateTime& modified = {});

} // namespace tessara
