#pragma once

#include "foundation/Clock.h"

#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QUrl>

#include <optional>

namespace tessara {

// What the checks for updates have in common.

/// Where an update is asked for, over HTTPS.
struct UpdateSource {
    QUrl location;
    std::optional<QSslConfiguration> tls; ///< none: what the system trusts, read when needed

    QNetworkRequest request() const;
};

/// Whether a check is due again. The date of a check in the future does not count: the clock was
/// wrong then.
/// @param key the setting that holds the date of the last check
/// @param interval between checks, in seconds
bool isCheckDue(QStringView key, double interval, const Clock& clock);
/// Stores that a check was made now.
void rememberCheck(QStringView key, const Clock& clock);

} // namespace tessara
