#include "persistence/VendorDatabaseUpdate.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "foundation/Logging.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QTimeZone>

namespace tessara {

namespace {

constexpr double kCheckInterval = 86400.0; // seconds between two checks of the program's own
constexpr qint64 kSecondsPerHour = 3600;
constexpr qint64 kHoursOfSameVersion = 12; // dates of files in archives know no time zone

constexpr double kCheckTimeout = 10.0;      // seconds
constexpr double kDownloadTimeout = 60.0;   // seconds without a byte
constexpr double kDownloadTime = 600.0;     // seconds for the whole
constexpr qint64 kLargestArchive = 8 << 20; // bytes

QDateTime dateOfHeader(const QByteArray& lastModified)
{
    QDateTime date = QLocale::c().toDateTime(QString::fromLatin1(lastModified),
                                             QStringLiteral("ddd, dd MMM yyyy HH:mm:ss 'GMT'"));
    date.setTimeSpec(Qt::UTC);
    return date;
}

/// Hands a finished request back to the event loop, from within its own signal.
void release(std::unique_ptr<HttpsGet>& get)
{
    if (get)
        get.release()->deleteLater();
}

} // namespace

UpdateSource VendorDatabaseUpdate::standardSource()
{
    return {QUrl(QStringLiteral(TESSARA_VENDORS_URL)), std::nullopt};
}

VendorDatabaseUpdate::VendorDatabaseUpdate(TSVendorDatabaseHelper& database, UserPrompt& prompt,
                                           Clock& clock, UpdateSource source)
    : m_database(database)
    , m_prompt(prompt)
    , m_clock(clock)
    , m_source(std::move(source))
{
}

// Check -----------------------------------------------------------------------------------------

void VendorDatabaseUpdate::checkForDatabaseUpdates(bool interactive)
{
    const Defaults& defaults = Defaults::standard();
    if (interactive) {
        endProgress(); // of a check that this one takes the place of
        m_progress = m_prompt.beginProgress(localized("Checking for database updates..."));
    } else {
        if (!isCheckDue(DefaultKey::LastVendorsDatabaseCheck, kCheckInterval, m_clock) || m_check ||
            defaults.integerForKey(DefaultKey::UpdateAlertSuppressionButton) != 0)
            return;
    }
    checkRemoteDatabase(interactive);
}

void VendorDatabaseUpdate::checkRemoteDatabase(bool interactive)
{
    QNetworkRequest head = m_source.request();
    head.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    // Only the headers of the answer count: the file itself is not awaited.
    const HttpsGet::Limits limits{kCheckTimeout, kCheckTimeout, kLargestArchive};
    m_check = std::make_unique<HttpsGet>(m_clock, head, limits, nullptr);
    connect(m_check.get(), &HttpsGet::finished, this, [this, interactive] {
        const QString error = m_check->error();
        const QByteArray lastModified = m_check->header("Last-Modified");
        release(m_check);
        if (error.isEmpty())
            checkRemoteDatabaseDidFinish(isNewer(lastModified), interactive);
        else
            checkRemoteDatabaseDidFail(error, interactive);
    });
}

bool VendorDatabaseUpdate::isNewer(const QByteArray& lastModified) const
{
    if (lastModified.isEmpty())
        return false;
    // A check without a date does not hold back the next one.
    rememberCheck(DefaultKey::LastVendorsDatabaseCheck, m_clock);
    const QDateTime remote = dateOfHeader(lastModified);
    const QDateTime local = QFileInfo(m_database.pathToDatabase()).lastModified();
    return remote.isValid() && local.isValid() &&
           local.secsTo(remote) / kSecondsPerHour > kHoursOfSameVersion;
}

void VendorDatabaseUpdate::checkRemoteDatabaseDidFail(const QString& reason, bool interactive)
{
    endProgress();
    if (interactive)
        m_prompt.inform(localized("Unable to check for updates."), reason);
}

void VendorDatabaseUpdate::checkRemoteDatabaseDidFinish(bool hasUpdate, bool interactive)
{
    endProgress();
    if (!hasUpdate) {
        if (interactive)
            m_prompt.inform(localized("The database is up-to-date!"),
                            localized("The existing database is the newest version available."));
        return;
    }
    if (Defaults::standard().boolForKey(DefaultKey::AutoUpdateVendorsDatabase)) {
        startDatabaseUpdate();
        return;
    }
    const TSAlert alert{
        .messageText = localized("A new vendors database is available!"),
        .informativeText = localized("Do you want to update it now?"),
        .buttons = {localized("Update"), localized("No"), localized("Turn On Auto Update")},
        .style = TSAlert::Style::kWarning,
    };
    // Whoever asks for a check wants checks: there the box is missing, and counts as not ticked.
    if (interactive)
        m_prompt.beginAlert(alert, [this](int code) { updateAlertDidEnd(code, false); });
    else
        m_prompt.beginSuppressibleAlert(
            alert, [this](int code, bool suppressed) { updateAlertDidEnd(code, suppressed); });
}

void VendorDatabaseUpdate::updateAlertDidEnd(int returnCode, bool suppressed)
{
    Defaults& defaults = Defaults::standard();
    defaults.setValue(DefaultKey::UpdateAlertSuppressionButton, suppressed ? 1 : 0);
    if (returnCode == TSAlert::kThirdButton) {
        defaults.setValue(DefaultKey::AutoUpdateVendorsDatabase, true);
        defaults.setValue(DefaultKey::UpdateAlertSuppressionButton, 0);
    }
    if (returnCode == TSAlert::kFirstButton || returnCode == TSAlert::kThirdButton)
        startDatabaseUpdate();
}

// Download --------------------------------------------------------------------------------------

void VendorDatabaseUpdate::startDatabaseUpdate()
{
    if (m_downloaded)
        return; // under way
    m_downloaded = std::make_unique<QTemporaryFile>(QDir::tempPath() +
                                                    QLatin1String("/vendors.plist.XXXXXX.zip"));
    if (!m_downloaded->open()) {
        downloadDidEnd(m_downloaded->errorString());
        return;
    }
    const HttpsGet::Limits limits{kDownloadTimeout, kDownloadTime, kLargestArchive};
    m_download =
        std::make_unique<HttpsGet>(m_clock, m_source.request(), limits, m_downloaded.get());
    connect(m_download.get(), &HttpsGet::finished, this,
            [this] { downloadDidEnd(m_download->error()); });
}

void VendorDatabaseUpdate::downloadDidEnd(const QString& error)
{
    release(m_download);
    if (error.isEmpty() && m_downloaded->flush()) {
        qCInfo(lcPersistence, "Download finished.");
        m_workers.start([this, path = m_downloaded->fileName()] {
            const bool installed = m_database.expandDatabaseUsingFile(path, true);
            QMetaObject::invokeMethod(this, [this, installed] { databaseDidExpand(installed); });
        });
        return;
    }
    const QString reason = error.isEmpty() ? m_downloaded->errorString() : error;
    m_downloaded.reset();
    qCWarning(lcPersistence).noquote()
        << QStringLiteral("Download failed: %1 (%2)").arg(reason, m_source.location.toString());
    m_prompt.inform(localized("Unable to download database update."), reason);
}

void VendorDatabaseUpdate::databaseDidExpand(bool installed)
{
    m_downloaded.reset();
    if (!installed)
        return;
    qCInfo(lcPersistence, "Database downloaded succesfully.");
    m_database.dropDatabase();
    m_database.loadInBackground();
    const QString title = localized("Update finished.");
    const QString text = localized("The vendors database was updated successfully.");
    if (!Defaults::standard().boolForKey(DefaultKey::AutoUpdateVendorsDatabase) ||
        !m_prompt.deliverNotification(title, text))
        m_prompt.inform(title, text);
    Q_EMIT databaseDidChange();
}

// The user --------------------------------------------------------------------------------------

void VendorDatabaseUpdate::endProgress()
{
    if (m_progress)
        m_prompt.endProgress(*m_progress);
    m_progress.reset();
}

} // namespace tessara
