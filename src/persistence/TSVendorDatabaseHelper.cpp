#include "persistence/TSVendorDatabaseHelper.h"

#include "foundation/Defaults.h"
#include "foundation/Logging.h"
#include "persistence/PropertyList.h"
#include "persistence/VendorDatabaseFile.h"
#include "persistence/VendorLookup.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QVersionNumber>

namespace tessara {

namespace {

/// A file that the program is installed with; in the build tree it lies in the same place.
QString resourcePath(QLatin1String name)
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/../share/tessara/") + name;
}

/// Whether no run of this version of the program, or of a newer one, has come to its end yet.
bool isFirstRunOfThisVersion()
{
    const QString last = Defaults::standard().stringForKey(DefaultKey::LastLaunchedVersion);
    return last.isEmpty() || QVersionNumber::fromString(last) <
                                 QVersionNumber::fromString(QLatin1String(TESSARA_VERSION));
}

QHash<QString, QString> readURLs(const QString& path)
{
    QHash<QString, QString> urls;
    QFile file(path);
    QString error = file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
    if (error.isEmpty())
        readTextDictionary(file.read(kLongestPropertyList + 1), error,
                           [&](QByteArrayView vendor, QByteArrayView url) {
                               urls.insert(QString::fromUtf8(vendor), QString::fromUtf8(url));
                           });
    if (!error.isEmpty())
        qCWarning(lcPersistence).noquote() << path << error;
    return urls;
}

} // namespace

TSVendorDatabaseHelper::Paths TSVendorDatabaseHelper::Paths::standard()
{
    return {
        .database = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                    QLatin1String("/vendors.plist"),
        .seed = resourcePath(QLatin1String("vendors.plist.zip")),
        .urls = resourcePath(QLatin1String("urls.plist")),
        .index = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
                 QLatin1String("/vendors.index"),
    };
}

TSVendorDatabaseHelper& TSVendorDatabaseHelper::sharedDatabase()
{
    static TSVendorDatabaseHelper helper(Paths::standard());
    return helper;
}

TSVendorDatabaseHelper::TSVendorDatabaseHelper(Paths paths)
    : m_paths(std::move(paths))
{
}

// Look-up ---------------------------------------------------------------------------------------

std::optional<QString> TSVendorDatabaseHelper::stringForVendor(const QString& bssid) const
{
    const auto table = database();
    return table ? vendorOf(*table, bssid) : std::nullopt;
}

std::optional<QString> TSVendorDatabaseHelper::shortStringForVendor(const QString& bssid) const
{
    const auto name = stringForVendor(bssid);
    return name ? std::optional(shortVendorName(*name)) : std::nullopt;
}

std::optional<QString> TSVendorDatabaseHelper::vendorFor(const QString& bssid) const
{
    return stringForVendor(bssid);
}

std::optional<QString> TSVendorDatabaseHelper::shortVendorFor(const QString& bssid) const
{
    return shortStringForVendor(bssid);
}

std::optional<QString> TSVendorDatabaseHelper::urlForVendor(const QString& vendor) const
{
    const std::scoped_lock lock(m_lock);
    if (!m_urls)
        m_urls = readURLs(m_paths.urls);
    const auto url = m_urls->constFind(vendor);
    return url == m_urls->cend() ? std::nullopt : std::optional(*url);
}

// The file in memory ----------------------------------------------------------------------------

std::shared_ptr<const VendorTable> TSVendorDatabaseHelper::database() const
{
    const std::scoped_lock lock(m_lock);
    if (m_database)
        return m_database;
    // Each look-up tries again, but a file that was of no use is not read before it has changed.
    const FileVersion version = FileVersion::of(m_paths.database);
    if (!m_error.isEmpty() && version == m_unreadable)
        return nullptr;
    QString error;
    auto table = readVendorDatabase(m_paths.database, m_paths.index, error);
    if (table) {
        m_database = std::make_shared<const VendorTable>(*std::move(table));
    } else {
        m_unreadable = version;
        qCWarning(lcPersistence).noquote() << m_paths.database << error;
    }
    m_error = error;
    return m_database;
}

QString TSVendorDatabaseHelper::load() const
{
    if (database())
        return {};
    const std::scoped_lock lock(m_lock);
    return m_error;
}

void TSVendorDatabaseHelper::loadInBackground()
{
    m_workers.start([this] { database(); });
}

void TSVendorDatabaseHelper::dropDatabase()
{
    const std::scoped_lock lock(m_lock);
    m_database.reset();
    m_error.clear();
}

// Installation ----------------------------------------------------------------------------------

bool TSVendorDatabaseHelper::expandDatabase()
{
    return expandDatabaseUsingFile(m_paths.seed, false);
}

bool TSVendorDatabaseHelper::expandDatabaseUsingFile(const QString& archivePath, bool overwrite)
{
    return installVendorDatabase(archivePath, m_paths.database,
                                 overwrite || isFirstRunOfThisVersion(), m_paths.index);
}

} // namespace tessara
