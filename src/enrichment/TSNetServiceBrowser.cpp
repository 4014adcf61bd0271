#include "enrichment/TSNetServiceBrowser.h"

#include "enrichment/AvahiServices.h"
#include "enrichment/StationAddresses.h"
#include "foundation/Logging.h"

#include <algorithm>
#include <utility>

namespace tessara {

namespace {

const auto kType = QStringLiteral("_airport._tcp.");
const auto kDomain = QStringLiteral("local");
constexpr double kResolveTimeout = 5.0;   // seconds
constexpr double kLongestInterval = 30.0; // seconds
constexpr qsizetype kLongestName = 63;    // bytes: a name is one label (RFC 6763, 4.1.1)

// A network may announce what it likes; these are beyond what a real one does.
constexpr qsizetype kMostServices = 4096;
constexpr qsizetype kMostStations = 16384;
/// Services that are asked at the same time. The daemon grants a client 1,024 requests.
constexpr qsizetype kMostResolving = 32;

} // namespace

TSNetServiceBrowser& TSNetServiceBrowser::sharedBrowser()
{
    static SystemClock clock;
    static AvahiServices services(QDBusConnection::systemBus());
    static TSNetServiceBrowser browser(services, clock);
    return browser;
}

TSNetServiceBrowser::TSNetServiceBrowser(NetServices& browser, Clock& clock)
    : m_browser(browser)
    , m_clock(clock)
{
    m_browser.setDelegate(this);
}

void TSNetServiceBrowser::searchServices()
{
    m_nextSearch.reset();
    m_isSearching = true;
    m_browser.searchForServices(kType, kDomain);
}

std::optional<QString> TSNetServiceBrowser::deviceNameFor(const QString& bssid) const
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_stations.constFind(bssid);
    return found == m_stations.cend() ? std::nullopt : std::optional(*found);
}

void TSNetServiceBrowser::netServiceBrowserDidFindService(const NetService& service,
                                                          bool moreComing)
{
    resolveLater(service);
    if (!moreComing)
        m_browser.stop();
}

void TSNetServiceBrowser::netServiceBrowserDidStopSearch()
{
    m_isSearching = false;
    m_searchInterval = std::min(m_searchInterval * 2, kLongestInterval);
    m_nextSearch = m_clock.repeat(m_searchInterval, [this] {
        const auto once = std::move(m_nextSearch);
        searchServices();
    });
    if (m_services.isEmpty())
        Q_EMIT didLookUpServices();
}

void TSNetServiceBrowser::netServiceDidResolveAddress(const NetService& service,
                                                      const QByteArrayList& txt)
{
    setStations(stationAddresses(txt), service.name);
    removeService(service);
}

void TSNetServiceBrowser::netServiceDidNotResolve(const NetService& service)
{
    removeService(service); // a later search finds it again
}

void TSNetServiceBrowser::resolveLater(const NetService& service)
{
    if (m_services.contains(service) || m_services.size() == kMostServices ||
        service.name.toUtf8().size() > kLongestName)
        return;
    m_services.insert(service);
    m_waiting.push_back(service);
    resolveNext();
}

void TSNetServiceBrowser::resolveNext()
{
    const auto resolving = [this] {
        return m_services.size() - static_cast<qsizetype>(m_waiting.size());
    };
    while (!m_waiting.empty() && resolving() < kMostResolving) {
        const NetService next = std::move(m_waiting.front());
        m_waiting.pop_front();
        m_browser.resolve(next, kResolveTimeout);
    }
}

void TSNetServiceBrowser::removeService(const NetService& service)
{
    m_services.remove(service);
    resolveNext();
    if (m_services.isEmpty() && !m_isSearching)
        Q_EMIT didLookUpServices();
}

void TSNetServiceBrowser::setStations(const QStringList& addresses, const QString& name)
{
    const std::scoped_lock lock(m_mutex);
    for (const QString& address : addresses) {
        if (m_stations.size() < kMostStations || m_stations.contains(address))
            m_stations.insert(address, name);
    }
}

} // namespace tessara
