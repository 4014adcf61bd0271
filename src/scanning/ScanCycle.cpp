#include "scanning/ScanCycle.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "foundation/Logging.h"

namespace tessara {

ScanCycle::ScanCycle(std::shared_ptr<CWInterface> interface, EngineServices services,
                     ScanCycleViews& views, UserPrompt& prompt)
    : m_currentInterface(std::move(interface))
    , m_services(std::move(services))
    , m_views(views)
    , m_prompt(prompt)
{
    // The engine posts on its own thread; nothing here runs before what the main thread is at.
    const NotificationCenter* center = &m_services.notifications;
    connect(center, &NotificationCenter::scanDidStart, this, &ScanCycle::handleScanDidStart,
            Qt::QueuedConnection);
    connect(center, &NotificationCenter::scanDidEnd, this, &ScanCycle::handleScanDidEnd,
            Qt::QueuedConnection);
    connect(center, &NotificationCenter::powerDidChange, this, &ScanCycle::handlePowerDidChange,
            Qt::QueuedConnection);
    connect(center, &NotificationCenter::willSleep, this, &ScanCycle::receiveSleepNote);
    loadDefaults();
}

ScanCycle::~ScanCycle()
{
    if (m_scanEngine)
        m_scanEngine->stopEngine();
}

void ScanCycle::loadDefaults()
{
    const Defaults& defaults = Defaults::standard();
    m_highlightAssociatedNetwork = defaults.boolForKey(DefaultKey::HighlightAssociatedNetwork);
    m_maxLastSeenElapsedSeconds = MergeLimits::fromDefaults(defaults).maxLastSeenElapsedSeconds;
}

// Start and stop --------------------------------------------------------------------------------

void ScanCycle::doAutoStart()
{
    if (m_isScanning || m_disableAutoScan)
        return;
    if (Defaults::standard().boolForKey(DefaultKey::AutoScan))
        doStart();
    else
        doStop();
}

void ScanCycle::doStart()
{
    if (!m_currentInterface)
        return;
    m_scanEngine =
        std::make_shared<TSActiveScanEngine>(m_currentInterface, std::nullopt, m_services);
    doStartCallback();
}

void ScanCycle::doStartCallback()
{
    setIsScanning(true);
    m_views.updateStateInfo();
    m_views.validateScanStopItems();
    m_didFindNetworksFirstTime = true;
    m_views.updateWindowTitle();
    m_views.setLeftFooterVisible(false);
    clearResults();
    m_scanEngine->runEngine();
}

void ScanCycle::doStop()
{
    m_scanTimer.reset();
    setIsScanning(false);
    m_views.updateWindowTitle();
    m_views.configureAll();
    if (m_scanEngine)
        m_scanEngine->stopEngine();
    m_scanEngine.reset();
    m_views.stopActivityIndicator();
    m_views.validateScanStopItems();
}

void ScanCycle::doStopAndClearResults()
{
    doStop();
    clearResults();
}

void ScanCycle::clearResults()
{
    m_views.clearSideViewSelection();
    filterAndSetNetworks({});
    m_views.prepareAndReload();
}

void ScanCycle::setIsScanning(bool isScanning)
{
    m_isScanning = isScanning;
    m_views.setDisplayOnlyLastSeen(isScanning);
}

void ScanCycle::filterAndSetNetworks(const NetworkList& networks)
{
    m_networks = networks;
    m_views.filterAndSetNetworks(m_networks);
}

// From the engine to the views ------------------------------------------------------------------

void ScanCycle::queue(void (ScanCycle::*step)())
{
    QMetaObject::invokeMethod(
        this, [this, step] { (this->*step)(); }, Qt::QueuedConnection);
}

void ScanCycle::handleScanDidStart()
{
    m_views.startActivityIndicator();
}

void ScanCycle::handleScanDidEnd()
{
    // The end of a scan that was under way at a stop comes here too and makes a timer: its ticks
    // find that nothing is scanning, and the next stop removes it.
    if (!m_scanTimer) {
        scan();
        m_scanTimer = m_services.clock.repeat(kMergeInterval, [this] { scan(); });
    }
    m_views.stopActivityIndicator();
}

void ScanCycle::scan()
{
    if (!m_isScanning)
        return;
    const bool powerOn = m_scanEngine->powerOn();
    if (!powerOn && !m_didReceiveSleepNote)
        queue(&ScanCycle::showPowerOffAlert);
    // While the power is off nothing is merged, so that the networks do not age.
    const SharedScanResults results = m_scanEngine->results();
    if (!powerOn || !results)
        return;
    NetworkList merged = mergeNetworks(*results, m_networks, m_services.clock.now());
    QMetaObject::invokeMethod(
        this,
        [this, engine = m_scanEngine, merged = std::move(merged)] {
            if (engine != m_scanEngine)
                return; // stopped meanwhile: what is shown now may be a file's
            m_views.stopActivityIndicator();
            didFindNetworks(merged);
        },
        Qt::QueuedConnection);
}

NetworkList ScanCycle::mergeNetworks(const ScanResults& results, const NetworkList& networks,
                                     double scanTime) const
{
    MergeLimits limits = MergeLimits::fromDefaults(Defaults::standard());
    limits.maxLastSeenElapsedSeconds = m_maxLastSeenElapsedSeconds;
    return tessara::mergeNetworks(results, networks, scanTime, limits);
}

void ScanCycle::didFindNetworks(const NetworkList& networks)
{
    m_lastScanTime = m_services.clock.now();
    didFindNetworks(networks, m_lastScanTime);
}

void ScanCycle::didFindNetworks(const NetworkList& networks, double scanTime)
{
    m_views.setReferenceTime(scanTime);
    filterAndSetNetworks(networks);
    if (m_didFindNetworksFirstTime) {
        m_didFindNetworksFirstTime = false;
        if (m_highlightAssociatedNetwork)
            m_views.selectAssociatedNetworks();
    }
    m_views.setLeftFooterVisible(true);
    Q_EMIT m_services.notifications.didFindNetworks();
}

// Power and sleep -------------------------------------------------------------------------------

void ScanCycle::receiveSleepNote()
{
    m_didReceiveSleepNote = true;
}

void ScanCycle::handlePowerDidChange()
{
    // While the power is off there is nothing to do: the next tick shows the alert.
    if (!m_currentInterface || !m_currentInterface->powerOn())
        return;
    if (m_checkWiFiAlert) {
        m_prompt.endAlert(*m_checkWiFiAlert);
        m_checkWiFiAlert.reset();
        if (!m_didReceiveSleepNote && !m_isScanning)
            doStart();
    }
    m_didReceiveSleepNote = false;
}

void ScanCycle::showPowerOffAlert()
{
    if (m_checkWiFiAlert)
        return; // not one more on each tick
    const TSAlert alert{
        .messageText = localized("Wi-Fi is off. Do you want to turn it on?"),
        .informativeText = localized("Wi-Fi must be on to perform a scan for wireless networks."),
        .buttons = {localized("Turn Wi-Fi On"), localized("Cancel")},
    };
    m_checkWiFiAlert =
        m_prompt.beginAlert(alert, [this](int returnCode) { powerOffAlertDidEnd(returnCode); });
}

void ScanCycle::powerOffAlertDidEnd(int returnCode)
{
    if (returnCode == TSAlert::kFirstButton) {
        if (const auto error = m_currentInterface->setPower(true))
            qCWarning(lcScanning, "error: %ls", qUtf16Printable(error->localizedDescription));
        else
            doStart();
    } else if (!m_currentInterface->powerOn()) {
        doStop();
    }
    m_checkWiFiAlert.reset();
}

} // namespace tessara
