#pragma once

#include "persistence/VendorTable.h"

#include <QString>

#include <optional>

namespace tessara {

/// Reads a vendors.plist.
/// @param indexPath its compact form, read in its place where it is of this list, else written for
///        the next time; empty for none
/// @return none if it cannot be used; `error` then says why
std::optional<VendorTable> readVendorDatabase(const QString& path, const QString& indexPath,
                                              QString& error);

/// Unpacks the archive to `path`, in a folder that is made if need be, unless there is a file.
/// With `replace` that file gives way; it stays where the archive is of no use.
/// @param indexPath of the compact form, which goes with the list that it was made from; empty for
///        none
/// May be called on any thread.
/// @return whether there is a database now
bool installVendorDatabase(const QString& archivePath, const QString& path, bool replace,
                           const QString& indexPath = {});

} // namespace tessara
