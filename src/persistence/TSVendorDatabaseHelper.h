#pragma once

#include "foundation/Directories.h"
#include "foundation/WorkerThreads.h"
#include "persistence/VendorIndex.h"
#include "persistence/VendorTable.h"

#include <QHash>
#include <QString>

#include <memory>
#include <mutex>
#include <optional>

namespace tessara {

/// The makers of access points: the vendor database of the user, a file "vendors.plist" that is
/// seeded from the program's resources and that `VendorDatabaseUpdate` brings up to date.
/// Look-ups may come from any thread, everything else from the main thread.
class TSVendorDatabaseHelper final : public VendorDirectory {
public:
    struct Paths {
        QString database;   ///< the user's vendors.plist
        QString seed = {};  ///< the vendors.plist.zip that the program is installed with
        QString urls = {};  ///< a property list from a vendor's name to the address of its web site
        QString index = {}; ///< where the compact form of the database is kept; none if empty

        /// Those of the user who runs the program.
        static Paths standard();
    };

    /// The database of the user who runs the program.
    static TSVendorDatabaseHelper& sharedDatabase();

    explicit TSVendorDatabaseHelper(Paths paths);

    /// The maker of the access point of a normalised BSSID, or of a block of addresses
    /// ("00:15:6D"). The database is loaded by the first look-up; while it cannot be, nobody is
    /// known.
    std::optional<QString> stringForVendor(const QString& bssid) const;
    /// The same as one word.
    std::optional<QString> shortStringForVendor(const QString& bssid) const;
    /// The address of a vendor's web site, by the vendor's name.
    std::optional<QString> urlForVendor(const QString& vendor) const;

    std::optional<QString> vendorFor(const QString& bssid) const override;
    std::optional<QString> shortVendorFor(const QString& bssid) const override;

    /// Installs the database that the program comes with: where there is none, and over one from
    /// the time of an older version of the program. @return whether there is a database now
    bool expandDatabase();
    /// Installs the database of an archive under the same conditions, or with `overwrite` in any
    /// case, which may also be done on another thread. A damaged archive changes nothing.
    bool expandDatabaseUsingFile(const QString& archivePath, bool overwrite);
    const QString& pathToDatabase() const { return m_paths.database; }

    /// Loads the database on a thread of its own, so that the first look-up need not.
    void loadInBackground();
    /// Loads the database now unless it is loaded. @return what is wrong with it, or empty
    QString load() const;
    /// Forgets what was loaded: the next look-up reads the file anew.
    void dropDatabase();

private:
    std::shared_ptr<const VendorTable> database() const;

    const Paths m_paths;
    mutable std::mutex m_lock; ///< of the members below
    mutable std::shared_ptr<const VendorTable> m_database;
    mutable FileVersion m_unreadable; ///< the file that was of no use
    mutable QString m_error;
    mutable std::optional<QHash<QString, QString>> m_urls;
    WorkerThreads m_workers; // last: joined while all of the above still stands
};

} // namespace tessara
