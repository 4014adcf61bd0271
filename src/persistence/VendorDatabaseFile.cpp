#include "persistence/VendorDatabaseFile.h"

#include "foundation/Logging.h"
#include "persistence/PropertyList.h"
#include "persistence/VendorIndex.h"
#include "persistence/VendorsArchive.h"
#include "persistence/WholeFile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace tessara {

namespace {

/// Writes the archive's property list, once it has proved to be a database. The file has the date
/// that the archive gives it: by that date newer ones are told.
bool expand(const QString& archivePath, const QString& path, QString& error)
{
    const auto archive = VendorsArchive::read(archivePath, error);
    if (!archive || !VendorTable::fromPropertyList(archive->propertyList, error))
        return false;
    // A date in the future would hold back every newer database.
    error = writeWholeFile(path, archive->propertyList,
                           archive->modified.isValid()
                               ? std::min(archive->modified, QDateTime::currentDateTime())
                               : QDateTime());
    return error.isEmpty();
}

/// Like the system's call, over a file that may be there already.
void move(const QString& from, const QString& to)
{
    if (QFile::exists(from)) {
        QFile::remove(to);
        QFile::rename(from, to);
    }
}

} // namespace

std::optional<VendorTable> readVendorDatabase(const QString& path, const QString& indexPath,
                                              QString& error)
{
    const FileVersion version = FileVersion::of(path); // before it is read: it may be replaced
    if (!indexPath.isEmpty()) {
        if (auto table = readVendorIndex(indexPath, version))
            return table;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return std::nullopt;
    }
    // One byte more shows that the list is too long.
    auto table = VendorTable::fromPropertyList(file.read(kLongestPropertyList + 1), error);
    if (table && !indexPath.isEmpty() && !writeVendorIndex(indexPath, version, *table))
        qCInfo(lcPersistence).noquote()
            << "The index of vendors could not be written:" << indexPath;
    return table;
}

bool installVendorDatabase(const QString& archivePath, const QString& path, bool replace,
                           const QString& indexPath)
{
    if (!QDir().mkpath(QFileInfo(path).path()))
        return false;
    const QString backup = path + QLatin1String(".bak");
    if (replace)
        move(path, backup);
    QString error;
    if (!QFile::exists(path)) {
        if (!indexPath.isEmpty())
            QFile::remove(indexPath); // the new list may be of the old one's date and size
        expand(archivePath, path, error);
    }
    if (QFile::exists(path)) {
        QFile::remove(backup);
        return true;
    }
    qCWarning(lcPersistence).noquote() << "Failed to expand database file." << error;
    move(backup, path);
    return false;
}

} // namespace tessara
