#include "scanning/TSActiveScanEngine.h"

#include "foundation/HarmlessText.h"
#include "foundation/Logging.h"

#include <unordered_set>

namespace tessara {

namespace {

/// The networks without their duplicates: of two of one network the first one stays.
std::vector<CWNetwork> withoutDuplicates(std::vector<CWNetwork> networks)
{
    std::unordered_set<NetworkKey, NetworkKey::Hash> seen;
    std::erase_if(networks, [&seen](const CWNetwork& network) {
        const auto key = network.key();
        return key && !seen.insert(*key).second;
    });
    return networks;
}

} // namespace

TSActiveScanEngine::TSActiveScanEngine(std::shared_ptr<CWInterface> interface,
                                       std::optional<QString> ssid, EngineServices services)
    : m_wifi(std::move(interface))
    , m_ssid(std::move(ssid))
    , m_services(std::move(services))
{
}

void TSActiveScanEngine::runEngine()
{
    m_isRunning = true;
    m_services.startThread([self = shared_from_this()] { self->scan(); });
}

void TSActiveScanEngine::stopEngine()
{
    setResults(nullptr);
    m_isRunning = false;
    m_scans = 0;
}

SharedScanResults TSActiveScanEngine::results() const
{
    const std::scoped_lock lock(m_resultsMutex);
    return m_networks;
}

void TSActiveScanEngine::setResults(SharedScanResults results)
{
    const std::scoped_lock lock(m_resultsMutex);
    m_networks = std::move(results);
}

void TSActiveScanEngine::sleep(double seconds)
{
    if (!m_services.pause.sleep(seconds))
        m_isRunning = false;
}

void TSActiveScanEngine::scan()
{
    while (m_isRunning) {
        Q_EMIT m_services.notifications.scanDidStart();
        double pause = kPowerOffPause;
        if (powerOn()) {
            setResults(std::make_shared<const ScanResults>(dictionaries(scanForNetworks())));
            pause = kScanInterval;
        }
        Q_EMIT m_services.notifications.scanDidEnd();
        sleep(pause);
    }
}

ScanResults TSActiveScanEngine::dictionaries(const Networks& networks)
{
    ScanResults results;
    results.reserve(networks.size());
    for (const CWNetwork& network : networks) {
        if (network.bssid) {
            results.push_back(network.dictionary());
            continue;
        }
        qCWarning(lcScanning, "Network (%ls) found but BSSID cannot be determined.",
                  qUtf16Printable(harmless(network.ssid.value_or(QStringLiteral("<unknown>")))));
    }
    return results;
}

TSActiveScanEngine::Networks TSActiveScanEngine::scanForNetworks()
{
    const double start = m_services.clock.now();
    std::optional<CWError> error;
    Networks output = sweep(error);
    ++m_scans;

    if (m_isRunning && error) {
        qCWarning(lcScanning, "scan: %ls", qUtf16Printable(error->localizedDescription));
    }
    // After a time-out the associated network can still be asked for by name.
    const bool mayGoOn = !error || error->code == CWError::kTimeout;
    if (m_isRunning && mayGoOn && !isDirected() && isAssociatedNetworkMissing(output))
        addAssociatedNetwork(output, start);

    if (const double rest = kShortestScan - secondsSince(start); rest > 0)
        sleep(rest);
    return output;
}

TSActiveScanEngine::Networks TSActiveScanEngine::sweep(std::optional<CWError>& error)
{
    Networks results;
    Networks merged;
    for (int attempt = 0; attempt < kMaxAttempts && m_isRunning; ++attempt) {
        // Right after a start, what is known already is shown without waiting for a sweep.
        if (m_firstTime) {
            m_firstTime = false;
            if (!isDirected())
                results = m_wifi->cachedScanResults();
        }
        if (results.empty()) {
            CWScan scan = m_wifi->scanForNetworksWithSSID(m_ssid ? std::optional(m_ssid->toUtf8())
                                                                 : std::nullopt);
            results = std::move(scan.networks);
            error = std::move(scan.error);
        } else {
            // What a scan gave that was cut short counts one attempt later.
            error.reset();
        }
        if (!error && merged.empty())
            merged = withoutDuplicates(results);
        if (!merged.empty() && !m_didPerformedDirectedScan)
            break;
        // Nothing was found, or the last scan ended with a directed one, after which the service
        // gets a rest. Results that are there already are kept, not scanned for again.
        sleep(kRetryPause);
        if (!merged.empty())
            m_didPerformedDirectedScan = false;
    }
    return merged;
}

bool TSActiveScanEngine::isAssociatedNetworkMissing(const Networks& networks) const
{
    const auto bssid = m_wifi->bssid();
    if (!bssid || !m_wifi->isAssociated())
        return false;
    const auto band = m_wifi->channelBand();
    return std::ranges::none_of(networks, [&](const CWNetwork& network) {
        return band && network.key() == NetworkKey{*bssid, *band};
    });
}

void TSActiveScanEngine::addAssociatedNetwork(Networks& output, double start)
{
    if (!m_wifi->ssid())
        return;
    // Not on the heels of the scan of all networks.
    if (secondsSince(start) < kRetryPause)
        sleep(kRetryPause);
    CWScan scan = m_wifi->scanForNetworksWithSSID(m_wifi->ssidData());
    m_didPerformedDirectedScan = true;
    if (scan.error || scan.networks.empty())
        return;
    // What was asked for stands first. A network in both halves stands twice: the merge takes
    // both readings.
    Networks directed = withoutDuplicates(std::move(scan.networks));
    directed.insert(directed.end(), std::make_move_iterator(output.begin()),
                    std::make_move_iterator(output.end()));
    output = std::move(directed);
}

} // namespace tessara
