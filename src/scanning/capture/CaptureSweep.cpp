#include "scanning/capture/CaptureSweep.h"

#include "elements/ElementRun.h"
#include "model/TSDataPoint.h"

namespace tessara {

namespace {

quint64 keyOf(const BeaconFrame& beacon)
{
    quint64 key = static_cast<quint64>(channelBandForChannel(beacon.channel));
    for (const std::uint8_t byte : beacon.bssid)
        key = key << 8 | byte;
    return key;
}

QByteArrayView viewOf(Bytes bytes)
{
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

/// What the network says of itself.
void describe(CWNetwork& network, const BeaconFrame& beacon)
{
    network.ssid = networkName(ElementRun(beacon.elements));
    network.wlanChannel.channelNumber = beacon.channel;
    network.wlanChannel.channelBand = channelBandForChannel(beacon.channel);
    if (QByteArrayView(network.informationElementData) != viewOf(beacon.elements))
        network.informationElementData = viewOf(beacon.elements).toByteArray();
    network.ibss = beacon.ibss;
    network.privacy = beacon.privacy;
    network.beaconInterval = beacon.beaconInterval;
}

} // namespace

QString bssidText(const BeaconFrame& beacon)
{
    return QString::fromLatin1(viewOf(beacon.bssid).toByteArray().toHex(':'));
}

void CaptureSweep::add(const BeaconFrame& beacon, const ReceivedFrame& received)
{
    const quint64 key = keyOf(beacon);
    auto position = m_positions.find(key);
    const bool isNew = position == m_positions.end();
    if (isNew) {
        position = m_positions.insert(key, m_entries.size());
        m_entries.emplace_back();
        m_entries.back().network.bssid = bssidText(beacon);
    }
    Entry& entry = m_entries[*position];
    if (isNew || beacon.isProbeResponse || !entry.isProbeResponse) {
        describe(entry.network, beacon);
        entry.isProbeResponse = beacon.isProbeResponse;
    }
    entry.network.rssiValue = received.signal.value_or(entry.network.rssiValue);
    entry.network.noiseMeasurement = received.noise.value_or(entry.network.noiseMeasurement);
}

ScanResults CaptureSweep::takeResults(const QSet<QString>& withSignal)
{
    ScanResults results;
    results.reserve(m_entries.size());
    for (const Entry& entry : m_entries) {
        ScanDictionary& result = results.emplace_back(entry.network.dictionary());
        if (result.channelNumber == 0)
            result.channelNumber.reset();
        if (!withSignal.contains(*result.bssid))
            result.rssiValue = TSDataPoint::kNoData;
    }
    m_entries.clear();
    m_positions.clear();
    return results;
}

} // namespace tessara
