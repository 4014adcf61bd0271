#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QList>
#include <QString>

#include <gtest/gtest.h>

#include <utility>

#include <zip.h>

namespace tessara {

using Texts = QList<std::pair<QByteArray, QByteArray>>;

/// An XML property list of these keys and texts.
inline QByteArray propertyList(const Texts& entries)
{
    QByteArray list =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n";
    for (const auto& [key, text] : entries)
        list += "<key>" + key + "</key><string>" + text + "</string>\n";
    return list + "</dict>\n</plist>\n";
}

inline void writeFile(const QString& path, const QByteArray& bytes,
                      const QDateTime& modified = QDateTime())
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.flush();
    if (modified.isValid())
        file.setFileTime(modified, QFileDevice::FileModificationTime);
}

inline QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A zip archive of these names and contents.
inline void writeArchive(const QString& path, const Texts& entries,
                         const QDateTime& modified = QDateTime::currentDateTime())
{
    zip_t* archive =
        zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    ASSERT_NE(archive, nullptr);
    for (const auto& [name, bytes] : entries) {
        zip_source_t* source = zip_source_buffer(archive, bytes.constData(),
                                                 static_cast<zip_uint64_t>(bytes.size()), 0);
        const auto index = zip_file_add(archive, name.constData(), source, 0);
        ASSERT_GE(index, 0);
        zip_file_set_mtime(archive, static_cast<zip_uint64_t>(index), modified.toSecsSinceEpoch(),
                           0);
    }
    ASSERT_EQ(zip_close(archive), 0);
}

} // namespace tessara
