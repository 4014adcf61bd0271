#pragma once

#include "persistence/VendorTable.h"

#include <QString>

#include <optional>

namespace tessara {

/// Reads a vendors.plist. @return none if it cannot be used; `error` then says why
std::optional<VendorTable> readVendorDatabase(const QString& path, QString& error);

/// Unpacks the archive to `path`, in a folder that is made if need be, unless there is a file.
/// With `replace` that file gives way; it stays where the archive is of no use.
/// May be called on any thread.
/// @return whether there is a database now
bool installVendorDatabase(const QString& archivePath, const QString& path, bool replace);

} // namespace tessara
