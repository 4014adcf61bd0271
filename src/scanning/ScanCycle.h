#pragma once

#include "foundation/UserPrompt.h"
#include "model/TSNetwork.h"
#include "scanning/CWInterface.h"
#include "scanning/NetworkMerge.h"
#include "scanning/TSActiveScanEngine.h"

#include <QObject>

#include <memory>
#include <optional>

namespace tessara {

/// The views as the scan cycle sees them. What a front end has no view for, it leaves out.
class ScanCycleViews {
public:
    virtual ~ScanCycleViews() = default;

    /// Takes the whole list: filters, sorts and shows it.
    virtual void filterAndSetNetworks(const NetworkList& networks) = 0;
    /// Shows what is there again, unless the user is editing.
    virtual void prepareAndReload() {}
    /// Shows what is there again.
    virtual void configureAll() {}
    virtual void clearSideViewSelection() {}
    /// The time that the charts end at, seconds since 1970.
    virtual void setReferenceTime(double /*time*/) {}
    /// The spectrum shows only what the last scan saw.
    virtual void setDisplayOnlyLastSeen(bool /*only*/) {}
    /// Selects the rows of the associated network and scrolls the first into view.
    virtual void selectAssociatedNetworks() {}
    virtual void updateStateInfo() {}
    virtual void updateWindowTitle() {}
    virtual void validateScanStopItems() {}
    virtual void setLeftFooterVisible(bool /*visible*/) {}
    virtual void startActivityIndicator() {}
    virtual void stopActivityIndicator() {}
};

/// The way from the start of scanning to an updated list of networks.
///
/// Two clocks drive it. The engine, on its own thread, leaves fresh results every few seconds; a
/// timer on the main thread takes every 2 seconds whatever results there are and merges them. The
/// timer, not the radio, is the grid of the samples: with nothing newer, the same results are
/// merged again under a new time. Lives on the main thread.
class ScanCycle final : public QObject {
    Q_OBJECT

public:
    static constexpr double kMergeInterval = 2.0; ///< seconds

    /// @param interface none if the machine has no Wi-Fi: the cycle then never starts
    ScanCycle(std::shared_ptr<CWInterface> interface, EngineServices services,
              ScanCycleViews& views, UserPrompt& prompt);
    ~ScanCycle() override;

    /// Reads the settings that the cycle keeps: the limits of age, and whether to select the
    /// associated network.
    void loadDefaults();

    /// Starts scanning, if the settings say so and no file is to be shown instead.
    void doAutoStart();
    /// Begins anew: the list is cleared. An engine that is there already is not stopped: it goes
    /// on by itself until the program ends.
    void doStart();
    void doStop();
    void doStopAndClearResults();
    void clearResults();

    bool isScanning() const { return m_isScanning; }
    const std::shared_ptr<CWInterface>& currentInterface() const { return m_currentInterface; }
    const NetworkList& networks() const { return m_networks; }
    /// What the engine has left; none before the first scan and while nothing is scanning.
    SharedScanResults latestResults() const
    {
        return m_scanEngine ? m_scanEngine->results() : nullptr;
    }
    /// Seconds since 1970 of the latest delivery to the views; 0 before the first.
    double lastScanTime() const { return m_lastScanTime; }
    /// A file is to be shown at launch: no scan starts by itself.
    void setDisableAutoScan(bool disable) { m_disableAutoScan = disable; }

    /// One tick: merges the engine's results and queues their delivery to the views.
    void scan();
    NetworkList mergeNetworks(const ScanResults& results, const NetworkList& networks,
                              double scanTime) const;
    void didFindNetworks(const NetworkList& networks);
    /// @param scanTime seconds since 1970; a saved file enters here with its own
    void didFindNetworks(const NetworkList& networks, double scanTime);

    void showPowerOffAlert();

private:
    void doStartCallback();
    void setIsScanning(bool isScanning);
    void filterAndSetNetworks(const NetworkList& networks);
    void handleScanDidStart();
    void handleScanDidEnd();
    void handlePowerDidChange();
    void receiveSleepNote();
    void powerOffAlertDidEnd(int returnCode);
    /// Runs a step on the main thread after what is queued there already, without waiting.
    void queue(void (ScanCycle::*step)());

    std::shared_ptr<CWInterface> m_currentInterface;
    EngineServices m_services;
    ScanCycleViews& m_views;
    UserPrompt& m_prompt;

    std::shared_ptr<TSActiveScanEngine> m_scanEngine;
    std::unique_ptr<RepeatingTimer> m_scanTimer;
    NetworkList m_networks;
    double m_lastScanTime = 0;
    double m_maxLastSeenElapsedSeconds = 0;
    std::optional<UserPrompt::AlertId> m_checkWiFiAlert;
    bool m_isScanning = false;
    bool m_didFindNetworksFirstTime = true;
    bool m_highlightAssociatedNetwork = false;
    bool m_didReceiveSleepNote = false;
    bool m_disableAutoScan = false;
};

} // namespace tessara
