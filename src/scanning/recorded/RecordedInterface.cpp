#include "scanning/recorded/RecordedInterface.h"

#include "elements/ElementRun.h"
#include "foundation/Localized.h"
#include "foundation/Logging.h"
#include "model/SecurityMode.h"
#include "scanning/recorded/ScanInput.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

constexpr qsizetype kLongestName = 24; // has a place in a line with other things

/// How long a scan is in force when its successor's time does not tell.
constexpr double kUsualInterval = 3.0;
/// A scan is in force for at least so long, whatever the times in the file say, and for at most.
constexpr double kShortestInterval = 0.1;
constexpr double kLongestInterval = 600;

constexpr double kLongestWait = 2.0;
/// Waiting ends a little after the next scan comes into force, not by rounding a little before.
constexpr double kBeyondTheEdge = 0.001;

/// Holds equal values once. Most networks say the same in every scan of a recording.
class Pool {
public:
    void share(std::optional<QByteArray>& bytes) { shareIn(m_bytes, bytes); }
    void share(std::optional<QString>& text) { shareIn(m_texts, text); }

private:
    template <typename Value>
    static void shareIn(QSet<Value>& values, std::optional<Value>& value)
    {
        if (value)
            value = *values.insert(*value);
    }

    QSet<QByteArray> m_bytes;
    QSet<QString> m_texts;
};

QString shortened(const QString& name)
{
    if (name.size() <= kLongestName)
        return name;
    return name.left(kLongestName - 1) + QChar(u'…');
}

CWNetwork networkOf(const ScanDictionary& dictionary)
{
    CWNetwork network;
    network.bssid = dictionary.bssid;
    network.ssid = dictionary.ssid;
    const std::int64_t channel = dictionary.channelNumber.value_or(0);
    network.wlanChannel.channelNumber = static_cast<int>(channel);
    network.wlanChannel.channelBand = channelBandForChannel(channel);
    network.rssiValue = dictionary.rssiValue.value_or(0);
    network.noiseMeasurement = dictionary.noiseMeasurement.value_or(0);
    network.informationElementData = dictionary.informationElementData.value_or(QByteArray());
    network.ibss = dictionary.ibss.value_or(false);
    network.beaconInterval = dictionary.beaconInterval.value_or(0);
    network.privacy = dictionary.securityMode == static_cast<std::int64_t>(SecurityMode::kWEP);
    return network;
}

std::vector<CWNetwork> networksOf(const ScanResults& dictionaries)
{
    std::vector<CWNetwork> networks;
    networks.reserve(dictionaries.size());
    std::ranges::transform(dictionaries, std::back_inserter(networks), networkOf);
    return networks;
}

bool isNamed(const CWNetwork& network, const QByteArray& ssid)
{
    const auto element = ElementRun(network.informationElementData).find(ElementID::kSSID);
    if (element)
        return QByteArrayView(element->content.data(),
                              static_cast<qsizetype>(element->content.size())) == ssid;
    return network.ssid && network.ssid->toUtf8() == ssid;
}

} // namespace

std::unique_ptr<RecordedInterface> RecordedInterface::open(const QString& path, double sweepSeconds,
                                                           const Surroundings& surroundings,
                                                           QString& error)
{
    const ScanInput input = openScanInput(path, sweepSeconds);
    error = input.error;
    if (!input.reader)
        return nullptr;

    std::vector<RecordedScan> scans;
    Pool pool;
    while (auto scan = input.reader->next()) {
        for (ScanDictionary& network : scan->networks) {
            pool.share(network.bssid);
            pool.share(network.ssid);
            pool.share(network.informationElementData);
        }
        scans.push_back(std::move(*scan));
    }
    error = input.reader->error();
    if (scans.empty()) {
        if (error.isEmpty())
            error = localized("%1 holds no scans").arg(path);
        return nullptr;
    }
    if (!error.isEmpty()) {
        qCWarning(lcScanning, "%ls", qUtf16Printable(error));
        error.clear();
    }
    return std::unique_ptr<RecordedInterface>(
        new RecordedInterface(path, std::move(scans), surroundings));
}

RecordedInterface::RecordedInterface(const QString& path, std::vector<RecordedScan> scans,
                                     const Surroundings& surroundings)
    : m_path(path)
    , m_name(shortened(scanInputTitle(path)))
    , m_surroundings(surroundings)
    , m_startTime(surroundings.clock.now())
    , m_recordsSignal(std::ranges::all_of(scans, &RecordedScan::recordsSignal))
{
    m_scans.reserve(scans.size());
    double interval = kUsualInterval;
    double end = 0;
    for (std::size_t i = 0; i < scans.size(); ++i) {
        // The last scan stays in force for as long as the one before it.
        if (i + 1 < scans.size())
            interval =
                std::clamp(scans[i + 1].time - scans[i].time, kShortestInterval, kLongestInterval);
        end += interval;
        m_scans.push_back({std::move(scans[i].networks), end});
    }
}

bool RecordedInterface::powerOn() const
{
    const std::lock_guard lock(m_mutex);
    return m_powerOn;
}

std::optional<CWError> RecordedInterface::setPower(bool on)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_powerOn == on)
            return std::nullopt;
        m_powerOn = on;
    }
    Q_EMIT m_surroundings.notifications.powerDidChange();
    return std::nullopt;
}

std::optional<RecordedInterface::Association> RecordedInterface::association() const
{
    const std::lock_guard lock(m_mutex);
    return m_powerOn ? m_association : std::nullopt;
}

void RecordedInterface::setAssociation(const std::optional<Association>& association)
{
    std::optional<Association> before;
    {
        const std::lock_guard lock(m_mutex);
        before = std::exchange(m_association, association);
    }
    const auto bssidOf = [](const auto& a) { return a ? a->bssid : QString(); };
    if (bssidOf(before) != bssidOf(association))
        Q_EMIT m_surroundings.notifications.bssidDidChange();
    else if (before != association)
        Q_EMIT m_surroundings.notifications.linkQualityDidChange();
}

std::optional<QString> RecordedInterface::bssid() const
{
    const auto current = association();
    return current ? std::optional(current->bssid) : std::nullopt;
}

std::optional<QString> RecordedInterface::ssid() const
{
    const auto current = association();
    return current ? std::optional(QString::fromUtf8(current->ssidData)) : std::nullopt;
}

std::optional<QByteArray> RecordedInterface::ssidData() const
{
    const auto current = association();
    return current ? std::optional(current->ssidData) : std::nullopt;
}

std::optional<CWChannel> RecordedInterface::wlanChannel() const
{
    const auto current = association();
    return current ? std::optional(current->channel) : std::nullopt;
}

double RecordedInterface::transmitRate() const
{
    const auto current = association();
    return current ? current->transmitRate : 0;
}

double RecordedInterface::position() const
{
    const double length = m_scans.back().end;
    const double position = std::fmod(m_surroundings.clock.now() - m_startTime, length);
    return position < 0 ? position + length : position; // the machine's clock was set back
}

const RecordedInterface::PlayedScan& RecordedInterface::scanAt(double position) const
{
    const auto found = std::ranges::upper_bound(m_scans, position, {}, &PlayedScan::end);
    return found == m_scans.end() ? m_scans.back() : *found;
}

std::vector<CWNetwork> RecordedInterface::cachedScanResults() const
{
    if (!powerOn())
        return {};
    return networksOf(scanAt(position()).networks);
}

CWScan RecordedInterface::scanForNetworksWithSSID(const std::optional<QByteArray>& ssid)
{
    const CWError off{CWError::kUnspecified, localized("Wi-Fi is off")};
    if (!powerOn())
        return {{}, off};
    const double now = position();
    const double rest = scanAt(now).end - now;
    if (!m_surroundings.pause.sleep(std::min(rest + kBeyondTheEdge, kLongestWait)))
        return {{}, CWError{CWError::kUnspecified, localized("The program ends")}};
    if (!powerOn())
        return {{}, off};

    CWScan scan{networksOf(scanAt(position()).networks), std::nullopt};
    if (ssid)
        std::erase_if(scan.networks,
                      [&ssid](const CWNetwork& network) { return !isNamed(network, *ssid); });
    return scan;
}

QString RecordedInterface::scanMethod() const
{
    return localized("recording %1").arg(QFileInfo(m_path).fileName());
}

} // namespace tessara
