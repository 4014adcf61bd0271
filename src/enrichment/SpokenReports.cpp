#include "enrichment/SpokenReports.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "model/SignalPercentage.h"

#include <utility>

namespace tessara {

namespace {

constexpr double kDelay = 0.3; // seconds

/// From 100 up the hundreds are a word of their own.
QString channelText(std::int64_t channel)
{
    constexpr std::int64_t kHundred = 100;
    return channel < kHundred ? localized(", channel %1").arg(channel)
                              : localized(", channel 1 %1").arg(channel - kHundred);
}

QString prefixNaming(const TSNetwork& network)
{
    return localized("%1 %2,").arg(network.ssid(), channelText(network.channel()));
}

/// The level as a number. Without a prefix a blank leads, since the format has one.
QString levelReport(const QString& prefix, std::int64_t rssi)
{
    if (Defaults::standard().integerForKey(DefaultKey::Units) == 1)
        return localized("%1 neg %2").arg(prefix, QString::number(-rssi)); // a voice drops a minus
    return localized("%1 %2%").arg(prefix, QString::number(signalPercentage(rssi)));
}

} // namespace

SpokenReports::SpokenReports(Voice& voice, Clock& clock, std::function<bool()> hasKeyWindow)
    : m_voice(voice)
    , m_clock(clock)
    , m_hasKeyWindow(std::move(hasKeyWindow))
{
}

void SpokenReports::setSelectedNetwork(const NetworkPtr& network)
{
    if (std::exchange(m_selectedNetwork, network) == network)
        return;
    m_voice.stopSpeaking();
    forgetReports();
}

void SpokenReports::forgetReports()
{
    m_sayingNetworkName = false;
    m_lastSpeechTime.reset();
}

void SpokenReports::applicationDidBecomeActive()
{
    if (Defaults::standard().boolForKey(DefaultKey::SpeakWhenOnBackground))
        return;
    forgetReports();
    speak(m_selectedNetwork);
}

void SpokenReports::speakSoon()
{
    m_soon = m_selectedNetwork;
    if (m_speech)
        return; // one call tells what several would
    m_speech = m_clock.repeat(kDelay, [this] {
        const auto once = std::move(m_speech);
        speak(std::exchange(m_soon, nullptr));
    });
}

void SpokenReports::speak(const NetworkPtr& network)
{
    const Defaults& defaults = Defaults::standard();
    if (!defaults.boolForKey(DefaultKey::SpeakWhenOnBackground) && !m_hasKeyWindow())
        return;
    if (!defaults.boolForKey(DefaultKey::SpeakOn))
        return;
    // A name is said to its end; a number may be cut short by a newer one.
    if (m_sayingNetworkName && m_voice.isSpeaking())
        return;
    if (!network || network != m_selectedNetwork)
        return;
    const std::int64_t rssi = network->rssi();
    if (const auto kind = kindOfReport(rssi))
        startReport(*kind);
    m_lastSpokenRSSI = rssi;
}

std::optional<SpokenReports::Kind> SpokenReports::kindOfReport(std::int64_t rssi) const
{
    if (!m_lastSpeechTime)
        return Kind::kNamed;
    if (rssi != m_lastSpokenRSSI)
        return Kind::kChanged;
    const double interval = Defaults::standard().doubleForKey(DefaultKey::SpeakIntervalInSeconds);
    const bool isTime = interval > 0 && m_clock.now() - *m_lastSpeechTime >= interval;
    return isTime ? std::optional(Kind::kUnchanged) : std::nullopt;
}

void SpokenReports::startReport(Kind kind)
{
    m_lastSpeechTime = m_clock.now();
    const TSNetwork& network = *m_selectedNetwork;
    const QString prefix = kind == Kind::kNamed ? prefixNaming(network) : QString();
    if (network.rssi() == TSDataPoint::kNoData) {
        // Never "no change", and it leaves open whether a name is being said; it is meant so.
        m_voice.startSpeakingString(localized("%1 no signal").arg(prefix));
        return;
    }
    const QString report = levelReport(prefix, network.rssiLast());
    m_voice.startSpeakingString(kind == Kind::kUnchanged ? localized("no change, %1").arg(report)
                                                         : report);
    m_sayingNetworkName = kind == Kind::kNamed;
}

} // namespace tessara
