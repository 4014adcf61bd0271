#pragma once

#include "foundation/Clock.h"
#include "foundation/NotificationCenter.h"
#include "scanning/CWInterface.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace tessara {

/// What an engine needs of its surroundings.
struct EngineServices {
    Clock& clock;
    Pause& pause;
    NotificationCenter& notifications;
    /// Runs a function on a new background thread.
    std::function<void(std::function<void()>)> startThread;
};

/// Owns the blocking calls to the Wi-Fi service. On one thread of its own it scans in a loop and
/// leaves the latest results in a property; it knows nothing of the list of networks.
///
/// An engine is started once. After `stopEngine` its thread finishes what it is doing and ends by
/// itself, holding the engine alive until then.
class TSActiveScanEngine final : public std::enable_shared_from_this<TSActiveScanEngine> {
public:
    static constexpr double kScanInterval = 3.0;  ///< seconds between two scans
    static constexpr double kPowerOffPause = 1.0; ///< seconds between two looks at the power
    static constexpr double kRetryPause = 3.0;    ///< seconds after a scan that gave nothing
    static constexpr double kShortestScan = 1.0;  ///< seconds that a scan takes at the least
    static constexpr int kMaxAttempts = 3;

    /// @param ssid the only network to scan for; none for all networks
    TSActiveScanEngine(std::shared_ptr<CWInterface> interface, std::optional<QString> ssid,
                       EngineServices services);

    void runEngine();
    void stopEngine();

    /// An empty array counts as results.
    bool hasResults() const { return results() != nullptr; }
    /// The latest results, left in place; none before the first scan and after a stop.
    SharedScanResults results() const;
    bool powerOn() const { return m_wifi->powerOn(); }
    bool isDirected() const { return m_ssid.has_value(); }
    bool isRunning() const { return m_isRunning; }
    std::uint64_t scans() const { return m_scans; } ///< scans done since the start

private:
    using Networks = std::vector<CWNetwork>;

    void scan();
    Networks scanForNetworks();
    /// The scan of all networks, repeated while it gives nothing.
    Networks sweep(std::optional<CWError>& error);
    /// Asks for the associated network by name and puts the answer in front of `output`.
    void addAssociatedNetwork(Networks& output, double start);
    bool isAssociatedNetworkMissing(const Networks& networks) const;
    static ScanResults dictionaries(const Networks& networks);
    void setResults(SharedScanResults results);
    /// Sleeps; a program that shuts down stops the engine.
    void sleep(double seconds);
    double secondsSince(double start) const { return m_services.clock.now() - start; }

    const std::shared_ptr<CWInterface> m_wifi;
    const std::optional<QString> m_ssid;
    const EngineServices m_services;

    mutable std::mutex m_resultsMutex;
    SharedScanResults m_networks;
    std::atomic<std::uint64_t> m_scans = 0;
    std::atomic<bool> m_isRunning = false;
    // Of the engine's thread alone.
    bool m_didPerformedDirectedScan = false;
    bool m_firstTime = true;
};

} // namespace tessara
