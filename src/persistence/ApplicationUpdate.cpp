#include "persistence/ApplicationUpdate.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"

#include <QVersionNumber>

namespace tessara {

namespace {

constexpr double kTimeout = 10.0;      // seconds
constexpr qint64 kLongestAnswer = 256; // bytes

} // namespace

UpdateSource ApplicationUpdate::standardSource()
{
    return {QUrl(QStringLiteral(TESSARA_VERSION_URL)), std::nullopt};
}

void ApplicationUpdate::checkForUpdates()
{
    check(true);
}

void ApplicationUpdate::checkForUpdatesIfDue()
{
    const Defaults& defaults = Defaults::standard();
    const auto interval =
        static_cast<double>(defaults.integerForKey(DefaultKey::UpdateCheckInterval));
    if (defaults.boolForKey(DefaultKey::CheckForUpdates) &&
        isCheckDue(DefaultKey::LastUpdateCheck, interval, m_clock))
        check(false);
}

void ApplicationUpdate::check(bool interactive)
{
    if (m_check && !interactive)
        return;
    m_check.reset(); // one that the user did not ask for would not answer
    if (interactive)
        m_progress = m_prompt.beginProgress(localized("Checking for updates..."));
    QNetworkRequest request = m_source.request();
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    m_answer.close();
    m_answer.setData(QByteArray());
    m_answer.open(QIODevice::WriteOnly);
    const HttpsGet::Limits limits{kTimeout, kTimeout, kLongestAnswer};
    m_check = std::make_unique<HttpsGet>(m_clock, request, limits, &m_answer);
    connect(m_check.get(), &HttpsGet::finished, this,
            [this, interactive] { didFinish(interactive); });
}

void ApplicationUpdate::didFinish(bool interactive)
{
    if (const auto progress = std::exchange(m_progress, std::nullopt))
        m_prompt.endProgress(*progress);
    const QString error = m_check->error();
    m_check.release()->deleteLater(); // this is its signal
    if (!error.isEmpty()) {
        if (interactive)
            m_prompt.inform(localized("Unable to check for updates."), error);
        return;
    }
    rememberCheck(DefaultKey::LastUpdateCheck, m_clock);
    const QVersionNumber own = QVersionNumber::fromString(QLatin1String(TESSARA_VERSION));
    const QString answer = QString::fromLatin1(m_answer.data().trimmed());
    qsizetype end = 0;
    const QVersionNumber newest = QVersionNumber::fromString(answer, &end);
    const bool isVersion = !newest.isNull() && end == answer.size();
    if (!interactive && !(isVersion && newest > own))
        return;
    if (!isVersion) {
        m_prompt.inform(localized("Unable to check for updates."),
                        localized("The server's answer is not the number of a version."));
    } else if (newest > own) {
        m_prompt.inform(
            localized("A new version of Tessara is available!"),
            localized("Version %1 is available; you have version %2. It comes the way this "
                      "one came, with the system's packages for instance.")
                .arg(newest.toString(), own.toString()));
    } else {
        m_prompt.inform(
            localized("Tessara is up-to-date!"),
            localized("Version %1 is the newest version available.").arg(own.toString()));
    }
}

} // namespace tessara
