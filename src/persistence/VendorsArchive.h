#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>

namespace tessara {

/// What a vendors.plist.zip holds.
struct VendorsArchive {
    QByteArray propertyList;
    QDateTime modified; ///< invalid if the archive does not tell

    /// Takes the one file "vendors.plist" at the root of the archive and looks at nothing else.
    /// @return none if the archive is damaged, has no such file or one that is too long; `error`
    ///         then says so
    static std::optional<VendorsArchive> read(const QString& path, QString& error);
};

} // namespace tessara
