#pragma once

#include "elements/TSInfoElement.h"
#include "model/Band.h"
#include "model/NetworkAttributes.h"
#include "model/NetworkKey.h"
#include "model/NetworkRow.h"
#include "model/NetworkSnapshot.h"
#include "model/OccupiedChannels.h"
#include "model/RunningStatistic.h"
#include "model/ScanDictionary.h"
#include "model/TSDataPoint.h"

#include <QColor>
#include <QString>

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace tessara {

/// The record of one basic service set: one BSSID on one band, as the scanner has seen it.
///
/// Created when a scan first reports it, it lives until the scan cycle drops it. Each later scan
/// replaces its raw scan dictionary and appends one sample; everything else is derived. Records
/// belong to the main thread.
class TSNetwork final : public NetworkRow {
public:
    /// The longest history: at one sample every two seconds, some 18 hours.
    static constexpr std::size_t kMaxDataPoints = 32769;

    /// @param now seconds since 1970; stands as `lastSeen` until a scan says otherwise
    TSNetwork(ScanDictionary dictionary, double now);
    /// A record as it was saved: what follows from the raw data is worked out anew. Asks nothing
    /// of what belongs to the main thread, so that a file can be read on another.
    TSNetwork(NetworkSnapshot saved, double now);

    /// What a file keeps of the record.
    NetworkSnapshot snapshot() const;

    // The raw scan dictionary -----------------------------------------------------------------

    /// Stores a new raw scan dictionary and derives the attributes from it. `bssid`, `vendor`
    /// and what else is computed on first use stays as it was.
    void setNetwork(ScanDictionary dictionary);
    const ScanDictionary& network() const { return m_network; }

    /// Whether the dictionary is of this record: what it is recognised by in later scans.
    bool bssidAndBandCompare(const ScanDictionary& dictionary) const
    {
        return keyOf(m_network, channelBand()) == keyOf(dictionary);
    }
    /// Equal for a record and the dictionaries that are of it.
    std::size_t keyHash() const { return m_keyHash; }
    static std::size_t keyHashOf(const ScanDictionary& dictionary)
    {
        return NetworkKey::Hash()(keyOf(dictionary));
    }

    // Identity --------------------------------------------------------------------------------

    /// Upper case, two digits an octet: 0:1a:2:3:4b:5 is 00:1A:02:03:4B:05.
    const QString& bssid() const;
    /// The readable form of the address, "Cisco:33:44:55", as it was when first asked for.
    const QString& deviceid() const;
    /// Equal for all networks of one access point, as it was when first asked for.
    const QString& apid() const;
    /// The name; `hiddenSSID` for a network that announces none.
    QString ssid() const;
    bool isHidden() const;
    /// The text shown for a network without a name.
    static QString hiddenSSID();

    /// The maker; asked for again at each call until there is an answer.
    std::optional<QString> vendor() const;
    QString deviceName() const;
    bool hasDeviceName() const { return !deviceName().isEmpty(); }
    const QString& annotations() const;
    bool hasAnnotations() const { return !annotations().isEmpty(); }
    void setAnnotations(const QString& text);
    /// The notes have changed elsewhere: the next reading asks again.
    void annotationsDidChange() { m_annotations.reset(); }

    // Radio -----------------------------------------------------------------------------------

    std::int64_t channel() const;
    Band channelBand() const { return channelBandForChannel(channel()); }
    bool is2Dot4GHz() const { return isChannelOfBand(channel(), Band::k2Dot4GHz); }
    bool is5GHz() const { return isChannelOfBand(channel(), Band::k5GHz); }
    std::int64_t centerFrequency() const { return centerFrequencyOfChannel(channel()); } ///< MHz
    float beaconInterval() const; ///< milliseconds; 0 if unknown
    bool isAdHoc() const { return m_network.ibss.value_or(false); }
    /// Bytes of element data.
    std::size_t informationElementsLength() const;
    /// New objects at each call, not decoded yet.
    std::vector<TSInfoElement> informationElements() const;
    const NetworkAttributes& attributes() const { return m_attributes; }
    std::int64_t stationCount() const { return m_attributes.stationCount; }
    std::int64_t channelUtilization() const { return m_attributes.channelUtilization; }

    ChannelPlace channelPlace() const
    {
        return {channel(), m_attributes.channelWidth, m_attributes.secondaryChannelOffset};
    }
    std::int64_t channelCenter() const { return tessara::channelCenter(channelPlace()); }
    QString humanReadableChannel() const { return tessara::humanReadableChannel(channelPlace()); }
    ChannelRangeText humanReadableChannelRange() const
    {
        return tessara::humanReadableChannelRange(channelPlace());
    }
    QString humanReadableChannelBand() const;
    QString shortChannelBand() const;
    QString humanReadableChannelWidth() const;
    QString phyMode() const; ///< "b/g/n"
    QString humanReadableHtProtection() const;
    QString humanReadableFastBssTransition() const;
    QString networkType() const;
    /// The highest MCS index that the last ratio of signal to noise allows; -1 if none.
    int estimatedMCS() const;

    // Rates, in Mbit/s ------------------------------------------------------------------------

    float minRate() const;
    float maxRate() const;
    QString humanReadableDataRates() const;
    QString humanReadableBasicDataRates() const;

    // Security --------------------------------------------------------------------------------

    const SecurityModeInfo& security() const { return securityModeInfo(m_attributes.securityMode); }
    QString securityMode() const;
    QString shortSecurityMode() const;
    QString cipher() const;
    bool isOpen() const { return security().isOpen; }

    // Samples ---------------------------------------------------------------------------------

    /// Appends a sample, dropping the oldest at the cap, and counts its data in the statistics.
    void addDataPoint(const TSDataPoint& sample);
    /// A copy of the history, oldest first.
    std::vector<TSDataPoint> dataPoints() const
    {
        return {m_dataPoints.begin(), m_dataPoints.end()};
    }
    /// The history itself, valid until the next sample.
    const std::deque<TSDataPoint>& history() const { return m_dataPoints; }
    std::optional<TSDataPoint> firstDataPoint() const;
    std::optional<TSDataPoint> lastDataPoint() const;
    /// Position of the first sample equal to this one; none if there is none.
    std::optional<std::size_t> indexOfDataPoint(const TSDataPoint& sample) const;
    /// Empties the history; the statistics stay.
    void removeAllDataPoints() { m_dataPoints.clear(); }

    // Read-outs -------------------------------------------------------------------------------

    /// The current reading in dBm: -120 while the network is out of sight.
    std::int64_t rssi() const { return current(&TSDataPoint::rssiValue); }
    std::int64_t noise() const { return current(&TSDataPoint::noiseValue); }
    /// The last real reading, however long ago; -120 (0 for the ratio) if there never was one.
    std::int64_t rssiLast() const
    {
        return newest(&TSDataPoint::rssiValue, m_newestRSSI, TSDataPoint::kNoData);
    }
    std::int64_t noiseLast() const
    {
        return newest(&TSDataPoint::noiseValue, m_newestNoise, TSDataPoint::kNoData);
    }
    std::int64_t snrLast() const { return newest(&TSDataPoint::snr, m_newestSNR, 0); }

    /// Over all samples with data of the record's life, also those that left the history.
    const RunningStatistic& rssiStatistic() const { return m_rssi; }
    const RunningStatistic& noiseStatistic() const { return m_noise; }
    const RunningStatistic& snrStatistic() const { return m_snr; }         ///< dB
    const RunningStatistic& snrPercStatistic() const { return m_snrPerc; } ///< percentage points
    std::int64_t snr() const { return m_lastSNR; }
    std::int64_t snrPerc() const { return m_lastSNRPerc; }

    // Bookkeeping of the scan cycle and the views ---------------------------------------------

    double lastSeen() const { return m_lastSeen; } ///< seconds since 1970
    void setLastSeen(double time) { m_lastSeen = time; }
    /// Seconds from `lastSeen` to the latest scan; 0 means that it reported the network.
    double lastSeenElapsedSeconds() const { return m_lastSeenElapsedSeconds; }
    void setLastSeenElapsedSeconds(double seconds) { m_lastSeenElapsedSeconds = seconds; }
    bool isLoadedFromFile() const { return m_loadedFromFile; }
    void setLoadedFromFile(bool loaded) { m_loadedFromFile = loaded; }
    const QColor& color() const { return m_color; }
    void setColor(const QColor& color) { m_color = color; }
    bool isUserHidden() const { return m_userHidden; }
    void setUserHidden(bool hidden) { m_userHidden = hidden; }
    bool isUserHighlighted() const override { return m_userHighlighted; }
    void setUserHighlighted(bool highlighted) { m_userHighlighted = highlighted; }
    /// The row that shows this network together with others, while there is one.
    std::shared_ptr<const NetworkRow> parentCollection() const { return m_parentCollection.lock(); }
    void setParentCollection(std::weak_ptr<const NetworkRow> row)
    {
        m_parentCollection = std::move(row);
    }
    bool isAssociated() const { return m_associated; }
    void setAssociated(bool associated) { m_associated = associated; }

    // The values of the columns ---------------------------------------------------------------

    QString bssidValue() const override { return bssid(); }
    QString ssidValue() const override { return ssid(); }
    QString deviceNameValue() const override { return deviceName(); }
    QString vendorValue() const override { return vendor().value_or(QString()); }
    QString annotationsValue() const override { return annotations(); }
    std::int64_t rssiValue() const override { return rssiLast(); }
    std::int64_t rssiAvgValue() const override { return m_rssi.avg; }
    std::int64_t rssiMinValue() const override { return m_rssi.min; }
    std::int64_t rssiMaxValue() const override { return m_rssi.max; }
    std::int64_t noiseValue() const override { return noiseLast(); }
    std::int64_t noiseAvgValue() const override { return m_noise.avg; }
    std::int64_t noiseMinValue() const override { return m_noise.min; }
    std::int64_t noiseMaxValue() const override { return m_noise.max; }
    std::int64_t snrValue() const override { return snrLast(); }
    std::int64_t snrAvgValue() const override { return m_snr.avg; }
    std::int64_t snrMinValue() const override { return m_snr.min; }
    std::int64_t snrMaxValue() const override { return m_snr.max; }
    QString channelValue() const override { return QString::number(channel()); }
    QString channelCenterValue() const override { return QString::number(channelCenter()); }
    QString channelBandValue() const override { return shortChannelBand(); }
    QString channelWidthValue() const override { return humanReadableChannelWidth(); }
    QString centerFrequencyValue() const override { return QString::number(centerFrequency()); }
    QString streamsValue() const override { return QString::number(m_attributes.streams); }
    QString stationCountValue() const override;
    std::int64_t channelUtilizationValue() const override { return channelUtilization(); }
    QString phyModeValue() const override { return phyMode(); }
    QString htProtectionValue() const override { return humanReadableHtProtection(); }
    QString fastBssTransitionValue() const override { return humanReadableFastBssTransition(); }
    QString countryCodeValue() const override { return m_attributes.countryCode; }
    QString basicDataRatesValue() const override { return humanReadableBasicDataRates(); }
    QString minRateValue() const override;
    QString maxRateValue() const override;
    QString securityValue() const override { return shortSecurityMode(); }
    QString wpsValue() const override;
    QString networkTypeValue() const override { return networkType(); }
    QString beaconIntervalValue() const override;
    std::optional<double> firstSeenValue() const override;
    std::optional<double> lastSeenValue() const override { return m_lastSeen; }
    std::optional<double> lastSeenElapsedSecondsValue() const override
    {
        return m_lastSeenElapsedSeconds;
    }
    const TSNetwork* bestNetwork() const override { return this; }

private:
    using Reading = std::int64_t (TSDataPoint::*)() const;
    std::int64_t current(Reading reading) const;
    std::int64_t newest(Reading reading, std::uint64_t ordinal, std::int64_t absent) const;

    static NetworkKey keyOf(const ScanDictionary& dictionary, Band band)
    {
        return {dictionary.bssid.value_or(QString()), band};
    }
    static NetworkKey keyOf(const ScanDictionary& dictionary)
    {
        return keyOf(dictionary, channelBandForChannel(dictionary.channelNumber.value_or(0)));
    }

    // What every tick touches stands together, at the front.
    std::size_t m_keyHash = 0;
    double m_lastSeen;
    double m_lastSeenElapsedSeconds = 0;
    std::deque<TSDataPoint> m_dataPoints;
    // Ordinals of samples, from 1 for the first one ever added: all of them, and the newest with
    // a reading. Searching back would cost the more the longer a network is out of sight.
    std::uint64_t m_addedDataPoints = 0;
    std::uint64_t m_newestRSSI = 0;
    std::uint64_t m_newestNoise = 0;
    std::uint64_t m_newestSNR = 0;

    RunningStatistic m_rssi{.min = 120, .max = -120};
    RunningStatistic m_noise{.min = 120, .max = -120};
    RunningStatistic m_snr{.min = 100, .max = 0};
    RunningStatistic m_snrPerc{.min = 100, .max = 0};
    std::int64_t m_lastSNR = 0;
    std::int64_t m_lastSNRPerc = 0;

    ScanDictionary m_network;
    NetworkAttributes m_attributes;

    // Computed on first use.
    mutable QString m_bssid;
    mutable QString m_deviceid;
    mutable QString m_apid;
    mutable std::optional<QString> m_vendor;
    mutable std::optional<QString> m_annotations;

    QColor m_color;
    std::weak_ptr<const NetworkRow> m_parentCollection; ///< which owns its members
    bool m_loadedFromFile = false;
    bool m_userHidden = false;
    bool m_userHighlighted = false;
    bool m_associated = false;
};

using NetworkPtr = std::shared_ptr<TSNetwork>;
/// A list of records. Once published it does not change; the records in it do.
using NetworkList = std::vector<NetworkPtr>;

} // namespace tessara
