#include "enrichment/AvahiServices.h"

#include "foundation/Localized.h"
#include "foundation/Logging.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>

#include <cmath>
#include <utility>

namespace tessara {

namespace {

const auto kService = QStringLiteral("org.freedesktop.Avahi");
const auto kServerPath = QStringLiteral("/");
const auto kServer = QStringLiteral("org.freedesktop.Avahi.Server");
const auto kServer2 = QStringLiteral("org.freedesktop.Avahi.Server2");
const auto kServiceBrowser = QStringLiteral("org.freedesktop.Avahi.ServiceBrowser");
const auto kNoOwner = QStringLiteral("org.freedesktop.DBus.Error.NameHasNoOwner");

// Of avahi-common: any network interface, any of IPv4 and IPv6.
constexpr int kInterfaceUnspecified = -1;
constexpr int kProtocolUnspecified = -1;
constexpr uint kNoFlags = 0;
constexpr uint kLookupNoAddress = 8; // the TXT record is all that is wanted

constexpr int kAnswerTimeout = 10'000; // ms; by then the daemon hangs

bool isAbsence(const QDBusMessage& reply)
{
    return reply.errorName() == kNoOwner // what a call that must not start the daemon gets
           || QDBusError(reply).type() == QDBusError::ServiceUnknown;
}

} // namespace

AvahiServices::AvahiServices(QDBusConnection bus)
    : m_bus(std::move(bus))
    , m_watcher(kService, m_bus, QDBusServiceWatcher::WatchForOwnerChange)
{
    connect(
        &m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString&, const QString&, const QString& owner) { ownerDidChange(owner); });
    // Of every browser that there will be; which one it is, and whose, is looked at on arrival.
    m_bus.connect({}, {}, kServiceBrowser, {}, this, SLOT(handleBrowserSignal(QDBusMessage)));
}

void AvahiServices::call(const QString& path, const QString& interface, const QString& method,
                         const QVariantList& arguments, int timeout, const Answer& answer)
{
    if (!m_bus.isConnected()) { // such a call would never be answered
        const auto error = QDBusMessage::createError(QDBusError::Disconnected, {});
        QMetaObject::invokeMethod(
            this, [answer, error] { answer(error); }, Qt::QueuedConnection);
        return;
    }
    QDBusMessage message = QDBusMessage::createMethodCall(kService, path, interface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, timeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, answer] {
        watcher->deleteLater();
        answer(watcher->reply());
    });
}

void AvahiServices::searchForServices(const QString& type, const QString& domain)
{
    freeBrowser(std::exchange(m_browser, std::nullopt));
    m_search = {type, domain};
    prepareBrowser();
}

void AvahiServices::stop()
{
    freeBrowser(std::exchange(m_browser, std::nullopt));
    if (std::exchange(m_search, std::nullopt))
        m_delegate->netServiceBrowserDidStopSearch();
}

void AvahiServices::ownerDidChange(const QString& newOwner)
{
    m_browser.reset(); // it went with the daemon that had it
    if (newOwner.isEmpty() || !m_search)
        return;
    m_search->latest.reset();
    m_search->hasAllForNow = false;
    prepareBrowser();
}

/// The daemon's object is prepared first and started when its path is known: an object that starts
/// by itself may tell of services before that.
void AvahiServices::prepareBrowser()
{
    const int preparation = ++m_preparations;
    call(kServerPath, kServer2, QStringLiteral("ServiceBrowserPrepare"),
         {kInterfaceUnspecified, kProtocolUnspecified, m_search->type, m_search->domain, kNoFlags},
         kAnswerTimeout, [this, preparation](const QDBusMessage& reply) {
             const bool isWanted = m_search && preparation == m_preparations;
             if (reply.signature() != QLatin1String("o")) {
                 if (isWanted)
                     searchDidFail(reply);
                 return;
             }
             const Browser browser{reply.service(),
                                   reply.arguments().constFirst().value<QDBusObjectPath>().path()};
             if (isWanted)
                 startBrowser(browser);
             else
                 freeBrowser(browser);
         });
}

void AvahiServices::startBrowser(const Browser& browser)
{
    m_browser = browser;
    call(browser.path, kServiceBrowser, QStringLiteral("Start"), {}, kAnswerTimeout,
         [this, browser](const QDBusMessage& reply) {
             if (m_browser == browser && reply.type() == QDBusMessage::ErrorMessage)
                 searchDidFail(reply);
         });
}

void AvahiServices::freeBrowser(const std::optional<Browser>& browser) const
{
    if (!browser)
        return;
    QDBusMessage message = QDBusMessage::createMethodCall(browser->owner, browser->path,
                                                          kServiceBrowser, QStringLiteral("Free"));
    message.setAutoStartService(false);
    m_bus.send(message);
}

/// @param message an error or a signal whose first argument is the reason
void AvahiServices::searchDidFail(const QDBusMessage& message)
{
    if (!m_bus.isConnected()) {
        complainOnce(localized("No system bus: the names of devices on the network go unnoticed."));
    } else if (isAbsence(message)) {
        complainOnce(
            localized("Avahi is not running: the names of devices on the network go unnoticed."));
    } else {
        const QString reason = message.arguments().value(0).toString();
        complainOnce(localized("Avahi does not search: %1").arg(reason));
        stop(); // to be tried again
    }
}

void AvahiServices::complainOnce(const QString& message)
{
    if (std::exchange(m_complaint, message) != message)
        qCInfo(lcEnrichment, "%s", qUtf8Printable(message));
}

void AvahiServices::handleBrowserSignal(const QDBusMessage& signal)
{
    if (!m_search || !m_browser || *m_browser != Browser{signal.service(), signal.path()})
        return;
    const QString member = signal.member();
    if (member == QLatin1String("Failure")) {
        searchDidFail(signal);
        return;
    }
    if (member == QLatin1String("ItemNew") && signal.signature() == QLatin1String("iisssu")) {
        const QVariantList arguments = signal.arguments();
        const auto previous = std::exchange(
            m_search->latest, NetService{arguments[0].toInt(), arguments[2].toString(),
                                         arguments[3].toString(), arguments[4].toString()});
        if (previous)
            m_delegate->netServiceBrowserDidFindService(*previous, true);
    } else if (member == QLatin1String("AllForNow")) {
        m_search->hasAllForNow = true;
    }
    if (!m_search || !m_search->hasAllForNow)
        return;
    if (const auto last = std::exchange(m_search->latest, std::nullopt))
        m_delegate->netServiceBrowserDidFindService(*last, false);
}

void AvahiServices::resolve(const NetService& service, double timeout)
{
    call(kServerPath, kServer, QStringLiteral("ResolveService"),
         {service.interface, kProtocolUnspecified, service.name, service.type, service.domain,
          kProtocolUnspecified, kLookupNoAddress},
         static_cast<int>(std::lround(timeout * 1000)), [this, service](const QDBusMessage& reply) {
             constexpr int kTxt = 9;
             if (reply.signature() == QLatin1String("iissssisqaayu"))
                 m_delegate->netServiceDidResolveAddress(
                     service, qdbus_cast<QByteArrayList>(reply.arguments()[kTxt]));
             else
                 m_delegate->netServiceDidNotResolve(service);
         });
}

} // namespace tessara
