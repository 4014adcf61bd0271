#pragma once

#include "foundation/Clock.h"
#include "foundation/UserPrompt.h"
#include "foundation/WorkerThreads.h"
#include "persistence/HttpsGet.h"
#include "persistence/TSVendorDatabaseHelper.h"
#include "persistence/UpdateCheck.h"

#include <QObject>
#include <QTemporaryFile>

#include <memory>
#include <optional>

namespace tessara {

/// Keeps the vendor database up to date from the publisher's server: asks whether there is a newer
/// one, asks the user, fetches and installs it. Belongs to the main thread and never blocks it.
class VendorDatabaseUpdate final : public QObject {
    Q_OBJECT

public:
    /// The publisher's server, which holds the archive.
    static UpdateSource standardSource();

    VendorDatabaseUpdate(TSVendorDatabaseHelper& database, UserPrompt& prompt, Clock& clock,
                         UpdateSource source = standardSource());

    /// Checks for a newer database. A check that the user has not asked for happens at most once
    /// a day, unless the user has put an end to it, and is silent until there is one.
    void checkForDatabaseUpdates(bool interactive);
    /// Fetches the newest database and installs it.
    void startDatabaseUpdate();

Q_SIGNALS:
    /// A newer database has been installed.
    void databaseDidChange();

private:
    void checkRemoteDatabase(bool interactive);
    bool isNewer(const QByteArray& lastModified) const;
    void checkRemoteDatabaseDidFail(const QString& reason, bool interactive);
    void checkRemoteDatabaseDidFinish(bool hasUpdate, bool interactive);
    void updateAlertDidEnd(int returnCode, bool suppressed);

    void downloadDidEnd(const QString& error);
    void databaseDidExpand(bool installed);

    void endProgress();

    TSVendorDatabaseHelper& m_database;
    UserPrompt& m_prompt;
    Clock& m_clock;
    const UpdateSource m_source;
    std::optional<UserPrompt::ProgressId> m_progress; ///< shown during a check of the user
    std::unique_ptr<HttpsGet> m_check;                ///< under way
    std::unique_ptr<HttpsGet> m_download;             ///< under way
    std::unique_ptr<QTemporaryFile> m_downloaded;     ///< while it is fetched and installed
    WorkerThreads m_workers; // last: joined while all of the above still stands
};

} // namespace tessara
