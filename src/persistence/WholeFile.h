#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tessara {

/// Reads a file of at most `longest` bytes.
/// @param error one line that names the file, if it cannot be read
std::optional<QByteArray> readWholeFile(const QString& path, qint64 longest, QString& error);

/// Puts a file in its place whole, or leaves what stands there as it is.
/// @return what went wrong, in one line that names the file, or empty
QString writeWholeFile(const QString& path, const QByteArray& bytes);

} // namespace tessara
