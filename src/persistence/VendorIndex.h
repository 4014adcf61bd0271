#pragma once

#include "persistence/VendorTable.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace tessara {

/// By what a file is told from one that has taken its place.
struct FileVersion {
    QDateTime modified;
    qint64 size = 0;

    static FileVersion of(const QString& path);
    bool operator==(const FileVersion&) const = default;
};

/// The compact form of a vendor database, kept in a file of the cache so that a start need not
/// parse the list again. It holds for one version of the list; a file that is missing, damaged or
/// made from another version is as good as none.
std::optional<VendorTable> readVendorIndex(const QString& path, const FileVersion& list);
/// @return false if the file could not be written, which costs no more than time
bool writeVendorIndex(const QString& path, const FileVersion& list, const VendorTable& table);

/// The bytes of such a file, and what they say.
QByteArray vendorIndex(const FileVersion& list, const VendorTable& table);
std::optional<VendorTable> vendorTableOf(QByteArrayView index, const FileVersion& list);

} // namespace tessara
