#include "model/TSNetwork.h"

#include "foundation/Defaults.h"
#include "foundation/Directories.h"
#include "foundation/Localized.h"
#include "model/AccessPointIdentity.h"
#include "model/NetworkColors.h"
#include "model/SignalPercentage.h"

#include <algorithm>

namespace tessara {

namespace {

QString normalizedBSSID(const QString& raw)
{
    QString normalized;
    normalized.reserve(17);
    for (const QStringView octet : QStringView(raw).split(u':')) {
        if (!normalized.isEmpty())
            normalized += u':';
        if (octet.size() == 1)
            normalized += u'0';
        normalized += octet;
    }
    return std::move(normalized).toUpper();
}

/// The colour that the user chose for a network, or the next of the sequence.
QColor colorFor(const QString& bssid)
{
    const QVariantMap chosen = Defaults::standard().value(DefaultKey::UserDefinedColors).toMap();
    const QColor color(chosen.value(bssid).toString());
    return color.isValid() ? color : randomColor();
}

} // namespace

TSNetwork::TSNetwork(ScanDictionary dictionary, double now)
    : m_lastSeen(now)
{
    setNetwork(std::move(dictionary));
    m_color = colorFor(bssid());
}

TSNetwork::TSNetwork(NetworkSnapshot saved, double now)
    : m_lastSeen(saved.lastSeen)
    , m_lastSeenElapsedSeconds(now - saved.lastSeen)
    , m_annotations(std::move(saved.annotations))
    , m_color(saved.color)
    , m_loadedFromFile(true)
{
    setNetwork(std::move(saved.network));
    if (m_attributes.deviceName.isEmpty())
        m_attributes.deviceName = std::move(saved.deviceName);
    for (const TSDataPoint& sample : saved.dataPoints)
        addDataPoint(sample);
}

NetworkSnapshot TSNetwork::snapshot() const
{
    return {m_network, dataPoints(), m_color, m_lastSeen, m_attributes.deviceName, m_annotations};
}

void TSNetwork::setNetwork(ScanDictionary dictionary)
{
    m_network = std::move(dictionary);
    m_attributes = attributesOf(m_network, std::move(m_attributes));
    m_keyHash = NetworkKey::Hash()(keyOf(m_network, channelBand()));
}

const QString& TSNetwork::bssid() const
{
    if (m_bssid.isEmpty() && m_network.bssid)
        m_bssid = normalizedBSSID(*m_network.bssid);
    return m_bssid;
}

const QString& TSNetwork::deviceid() const
{
    if (m_deviceid.isEmpty()) {
        const VendorDirectory* directory = Directories::installed().vendors;
        m_deviceid = deviceIdentifier(bssid(), directory ? directory->shortVendorFor(bssid())
                                                         : std::nullopt);
    }
    return m_deviceid;
}

const QString& TSNetwork::apid() const
{
    if (m_apid.isEmpty())
        m_apid = accessPointIdentifier(bssid(), deviceid(), vendor());
    return m_apid;
}

QString TSNetwork::ssid() const
{
    if (!m_attributes.ssid.isEmpty())
        return m_attributes.ssid;
    if (m_network.ssid && !m_network.ssid->isEmpty())
        return *m_network.ssid;
    return hiddenSSID();
}

bool TSNetwork::isHidden() const
{
    return m_attributes.ssid.isEmpty() && !m_network.ssid;
}

QString TSNetwork::hiddenSSID()
{
    return localized("<Hidden Network>");
}

std::optional<QString> TSNetwork::vendor() const
{
    const VendorDirectory* directory = Directories::installed().vendors;
    if (!m_vendor && directory)
        m_vendor = directory->vendorFor(bssid());
    return m_vendor;
}

QString TSNetwork::deviceName() const
{
    if (!m_attributes.deviceName.isEmpty())
        return m_attributes.deviceName;
    const DeviceNameDirectory* directory = Directories::installed().deviceNames;
    return directory ? directory->deviceNameFor(bssid()).value_or(QString()) : QString();
}

const QString& TSNetwork::annotations() const
{
    if (!m_annotations) {
        const AnnotationsDirectory* directory = Directories::installed().annotations;
        m_annotations =
            directory ? directory->annotationsFor(bssid()).value_or(QString()) : QString();
    }
    return *m_annotations;
}

void TSNetwork::setAnnotations(const QString& text)
{
    if (AnnotationsDirectory* directory = Directories::installed().annotations)
        directory->setAnnotations(bssid(), text);
    m_annotations.reset();
}

std::int64_t TSNetwork::channel() const
{
    return m_attributes.channel != 0 ? m_attributes.channel : m_network.channelNumber.value_or(0);
}

float TSNetwork::beaconInterval() const
{
    constexpr double kMillisecondsPerTimeUnit = 1.024;
    return static_cast<float>(static_cast<double>(m_network.beaconInterval.value_or(0)) *
                              kMillisecondsPerTimeUnit);
}

std::size_t TSNetwork::informationElementsLength() const
{
    return static_cast<std::size_t>(m_network.informationElementData.value_or(QByteArray()).size());
}

std::vector<TSInfoElement> TSNetwork::informationElements() const
{
    return tessara::informationElements(m_network.informationElementData.value_or(QByteArray()));
}

void TSNetwork::addDataPoint(const TSDataPoint& sample)
{
    if (m_dataPoints.size() >= kMaxDataPoints)
        m_dataPoints.pop_front();
    if (sample.hasData()) {
        m_lastSNR = sample.snr();
        m_lastSNRPerc =
            signalPercentage(sample.rssiValue()) - signalPercentage(sample.noiseValue());
        m_rssi.add(sample.rssiValue());
        m_noise.add(sample.noiseValue());
        m_snr.add(m_lastSNR);
        m_snrPerc.add(m_lastSNRPerc);
    }
    m_dataPoints.push_back(sample);
    ++m_addedDataPoints;
    if (sample.hasData())
        m_newestRSSI = m_addedDataPoints;
    if (sample.noiseValue() != TSDataPoint::kNoData)
        m_newestNoise = m_addedDataPoints;
    if (sample.snr() != 0)
        m_newestSNR = m_addedDataPoints;
}

std::optional<TSDataPoint> TSNetwork::firstDataPoint() const
{
    return m_dataPoints.empty() ? std::nullopt : std::optional(m_dataPoints.front());
}

std::optional<TSDataPoint> TSNetwork::lastDataPoint() const
{
    return m_dataPoints.empty() ? std::nullopt : std::optional(m_dataPoints.back());
}

std::optional<std::size_t> TSNetwork::indexOfDataPoint(const TSDataPoint& sample) const
{
    const auto found = std::ranges::find(m_dataPoints, sample);
    if (found == m_dataPoints.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_dataPoints.begin());
}

std::int64_t TSNetwork::current(Reading reading) const
{
    const bool outOfSight = !m_loadedFromFile && m_lastSeenElapsedSeconds != 0;
    if (outOfSight || m_dataPoints.empty())
        return TSDataPoint::kNoData;
    return (m_dataPoints.back().*reading)();
}

std::int64_t TSNetwork::newest(Reading reading, std::uint64_t ordinal, std::int64_t absent) const
{
    const std::uint64_t dropped = m_addedDataPoints - m_dataPoints.size();
    return ordinal > dropped ? (m_dataPoints[ordinal - dropped - 1].*reading)() : absent;
}

} // namespace tessara
