#pragma once

#include "enrichment/Voice.h"
#include "foundation/Clock.h"
#include "model/TSNetwork.h"

#include <functional>
#include <limits>
#include <memory>
#include <optional>

namespace tessara {

/// Says the selected network's signal: first with the network's name, then as it changes, and from
/// time to time where it does not. Reads the settings SpeakOn, SpeakWhenOnBackground,
/// SpeakIntervalInSeconds and Units. Belongs to the main thread.
class SpokenReports {
public:
    /// @param hasKeyWindow whether the user is in the program at the moment
    /// @param voice must outlive this, as the clock must
    SpokenReports(Voice& voice, Clock& clock, std::function<bool()> hasKeyWindow);

    /// Another network than before ends what is being said, and will be named.
    void setSelectedNetwork(const NetworkPtr& network);
    const NetworkPtr& selectedNetwork() const { return m_selectedNetwork; }

    /// Says what there is to say of a network, if it is the selected one.
    void speak(const NetworkPtr& network);
    /// The same 0.3 seconds from now, for the network that is selected now.
    void speakSoon();
    /// The user is back, and is told the network's name again; not if the reports went on
    /// meanwhile.
    void applicationDidBecomeActive();

private:
    enum class Kind { kNamed, kChanged, kUnchanged };

    /// None if there is nothing to say now.
    std::optional<Kind> kindOfReport(std::int64_t rssi) const;
    void startReport(Kind kind);
    void forgetReports();

    Voice& m_voice;
    Clock& m_clock;
    std::function<bool()> m_hasKeyWindow;
    NetworkPtr m_selectedNetwork;
    std::optional<double> m_lastSpeechTime; ///< seconds since 1970; none since the selection
    std::int64_t m_lastSpokenRSSI = std::numeric_limits<std::int64_t>::max(); ///< matches no level
    bool m_sayingNetworkName = false;         ///< what is being said names the network
    NetworkPtr m_soon;                        ///< the network to be spoken of when the time comes
    std::unique_ptr<RepeatingTimer> m_speech; ///< until its first call
};

} // namespace tessara
