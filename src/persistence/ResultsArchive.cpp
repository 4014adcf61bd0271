#include "persistence/ResultsArchive.h"

#include "foundation/Localized.h"
#include "model/NetworkColors.h"
#include "persistence/KeyedArchiveReader.h"
#include "persistence/KeyedArchiveWriter.h"

#include <algorithm>
#include <array>

namespace tessara {

namespace {

constexpr char kNetworks[] = "networks";
constexpr char kLastScanTime[] = "lastScanTime";

constexpr char kNetwork[] = "network";
constexpr char kDataPoints[] = "dataPoints";
constexpr char kColor[] = "color";
constexpr char kLastSeen[] = "lastSeen";
constexpr char kDeviceName[] = "deviceName";
constexpr char kAnnotations[] = "annotations";

constexpr char kRevision[] = "revision";
constexpr char kRSSIValue[] = "rssiValue";
constexpr char kNoiseValue[] = "noiseValue";
constexpr char kChannel[] = "channel";
constexpr char kStationCount[] = "stationCount";
constexpr char kChUtilization[] = "chUtilization";
constexpr char kTimestamp[] = "timestamp";

/// So many samples are read before it is asked whether to go on.
constexpr std::uint64_t kSamplesOfAStep = 4096;

/// The form of a sample: from 1 on it has its channel, stations and utilisation.
constexpr std::int64_t kCurrentRevision = 1;

/// What a class is called in an archive: now, and in the files of earlier versions.
struct ClassName {
    QLatin1String current;
    QLatin1String earlier;

    bool isThatOf(const ArchivedValue& value) const
    {
        return value.isKindOf(current) || value.isKindOf(earlier);
    }
};
constexpr ClassName kNetworkClass{QLatin1String("TSNetwork"), QLatin1String("TessaraNetwork")};
constexpr ClassName kDataPointClass{QLatin1String("TSDataPoint"),
                                    QLatin1String("TessaraDataPoint")};
/// In the files of earlier versions: a result of a scan in a form of the platform's own.
constexpr QLatin1String kScanResultClass("CWNetwork");

// Writing ---------------------------------------------------------------------------------------

class ResultsEncoder {
public:
    ResultsEncoder(const ResultsSnapshot& results, QIODevice& device, const WorkProgress& progress)
        : m_results(results)
        , m_progress(progress)
        , m_archive(device)
        , m_networkClass(m_archive.declareClass(std::array{kNetworkClass.current.data(), kRoot}))
        , m_dataPointClass(
              m_archive.declareClass(std::array{kDataPointClass.current.data(), kRoot}))
    {
        for (const NetworkSnapshot& network : results.networks)
            m_samples += network.dataPoints.size();
    }

    bool encode()
    {
        std::vector<Value> networks;
        for (const NetworkSnapshot& network : m_results.networks) {
            networks.push_back(encode(network));
            m_encoded += network.dataPoints.size();
            if (m_archive.isFailed() || !m_progress(done()))
                return false;
        }
        const std::array keys{m_archive.string(QLatin1String(kNetworks)),
                              m_archive.string(QLatin1String(kLastScanTime))};
        const std::array values{m_archive.array(networks), m_archive.date(m_results.lastScanTime)};
        return m_archive.finish(m_archive.dictionary(keys, values));
    }

private:
    using Value = KeyedArchiveWriter::Value;
    static constexpr char kRoot[] = "NSObject";

    double done() const
    {
        return m_samples == 0 ? 1.0
                              : static_cast<double>(m_encoded) / static_cast<double>(m_samples);
    }

    Value encode(const NetworkSnapshot& network)
    {
        std::vector members{
            std::pair(m_archive.key(kNetwork), encode(network.network)),
            std::pair(m_archive.key(kDataPoints), encode(network.dataPoints)),
            std::pair(m_archive.key(kColor), m_archive.color(network.color)),
            std::pair(m_archive.key(kLastSeen), m_archive.date(network.lastSeen)),
        };
        if (!network.deviceName.isEmpty())
            members.emplace_back(m_archive.key(kDeviceName), m_archive.string(network.deviceName));
        if (network.annotations)
            members.emplace_back(m_archive.key(kAnnotations),
                                 m_archive.string(*network.annotations));
        return m_archive.object(m_networkClass, members);
    }

    Value encode(const ScanDictionary& dictionary)
    {
        std::vector<Value> keys;
        std::vector<Value> values;
        forEachKey(dictionary, [&](QLatin1String key, const auto& member) {
            if (!member)
                return;
            keys.push_back(m_archive.string(key));
            values.push_back(valueOf(*member));
        });
        return m_archive.dictionary(keys, values);
    }

    Value valueOf(const QString& text) { return m_archive.string(text); }
    Value valueOf(const QByteArray& bytes) { return m_archive.data(bytes); }
    Value valueOf(std::int64_t number) { return m_archive.number(number); }
    Value valueOf(bool flag) { return m_archive.boolean(flag); }

    Value encode(const std::vector<TSDataPoint>& samples)
    {
        m_elements.clear();
        for (const TSDataPoint& sample : samples)
            m_elements.push_back(encode(sample));
        return m_archive.array(m_elements);
    }

    Value encode(const TSDataPoint& sample)
    {
        const std::array members{
            std::pair(m_revision, m_archive.integer(kCurrentRevision)),
            std::pair(m_rssiValue, m_archive.integer(sample.rssiValue())),
            std::pair(m_noiseValue, m_archive.integer(sample.noiseValue())),
            std::pair(m_channel, m_archive.integer(sample.channel())),
            std::pair(m_stationCount, m_archive.integer(sample.stationCount())),
            std::pair(m_chUtilization, m_archive.integer(sample.chUtilization())),
            std::pair(m_timestamp, m_archive.date(sample.timestamp())),
        };
        return m_archive.object(m_dataPointClass, members);
    }

    const ResultsSnapshot& m_results;
    const WorkProgress& m_progress;
    KeyedArchiveWriter m_archive;
    const Value m_networkClass;
    const Value m_dataPointClass;
    std::size_t m_samples = 0;
    std::size_t m_encoded = 0;     ///< of them
    std::vector<Value> m_elements; ///< of the array at hand

    // Of samples, which come in millions.
    using Key = KeyedArchiveWriter::Key;
    const Key m_revision = m_archive.key(kRevision);
    const Key m_rssiValue = m_archive.key(kRSSIValue);
    const Key m_noiseValue = m_archive.key(kNoiseValue);
    const Key m_channel = m_archive.key(kChannel);
    const Key m_stationCount = m_archive.key(kStationCount);
    const Key m_chUtilization = m_archive.key(kChUtilization);
    const Key m_timestamp = m_archive.key(kTimestamp);
};

// Reading ---------------------------------------------------------------------------------------

class ResultsDecoder {
public:
    ResultsDecoder(Bytes archive, double now, const WorkProgress& progress)
        : m_archive(archive)
        , m_now(now)
        , m_progress(progress)
    {
    }

    std::optional<SavedResults> decode()
    {
        SavedResults results;
        const ArchivedValue root = m_archive.root();
        if (!root.isAbsent())
            decode(root, results);
        return m_archive.isRefused() || m_isStopped ? std::nullopt : std::optional(results);
    }

    const QString& error() const { return m_archive.error(); }

private:
    void decode(const ArchivedValue& root, SavedResults& results)
    {
        root.forEachEntry([&](const QString& key, const ArchivedValue& value) {
            if (key == QLatin1String(kNetworks))
                results.networks = networks(value.array());
            else if (key == QLatin1String(kLastScanTime))
                results.lastScanTime = value.date().value_or(0);
        });
    }

    NetworkList networks(const ArchivedArray& archived)
    {
        NetworkList networks;
        for (std::uint64_t i = 0; i < archived.count() && !m_archive.isRefused(); ++i) {
            m_done = static_cast<double>(i) / static_cast<double>(archived.count());
            if (!goesOn())
                break;
            if (NetworkPtr record = network(archived[i]))
                networks.push_back(std::move(record));
        }
        return networks;
    }

    /// Tells how far it has come, and asks whether to go on.
    bool goesOn()
    {
        m_isStopped = m_isStopped || !m_progress(m_done);
        return !m_isStopped;
    }

    /// None for a record that is to be left out, and on errors.
    NetworkPtr network(const ArchivedValue& archived)
    {
        if (!kNetworkClass.isThatOf(archived)) {
            m_archive.refuse(localized("\"%1\" holds something that is no network")
                                 .arg(QLatin1String(kNetworks)));
            return nullptr;
        }
        const ArchivedValue dictionary = archived[m_network];
        if (dictionary.className() == kScanResultClass || !m_archive.spend(sizeof(TSNetwork)))
            return nullptr;
        NetworkSnapshot saved;
        saved.network = scanDictionary(dictionary);
        saved.dataPoints = dataPoints(archived[m_dataPoints].array());
        saved.color = archived[m_color].color().value_or(nextColor());
        saved.lastSeen = archived[m_lastSeen].date().value_or(0);
        saved.deviceName = archived[m_deviceName].string().value_or(QString());
        saved.annotations = archived[m_annotations].string();
        if (m_archive.isRefused() || m_isStopped)
            return nullptr;
        auto record = std::make_shared<TSNetwork>(std::move(saved), m_now);
        return record->bssid().isEmpty() || record->channel() == 0 ? nullptr : record;
    }

    /// For a record whose file tells none.
    QColor nextColor()
    {
        const auto colors = NetworkColors::named();
        return colors[m_nextColor++ % colors.size()];
    }

    ScanDictionary scanDictionary(const ArchivedValue& archived)
    {
        ScanDictionary dictionary;
        archived.forEachEntry([&](const QString& name, const ArchivedValue& value) {
            forEachKey(dictionary, [&](QLatin1String key, auto& member) {
                if (name == key && !value.isAbsent())
                    read(value, member);
            });
        });
        if (!isChannelNumber(dictionary.channelNumber.value_or(0)))
            m_archive.refuse(localized("\"channelNumber\" is no number of a channel"));
        return dictionary;
    }

    static void read(const ArchivedValue& value, std::optional<QString>& member)
    {
        member = value.string();
    }
    static void read(const ArchivedValue& value, std::optional<QByteArray>& member)
    {
        member = value.data();
    }
    static void read(const ArchivedValue& value, std::optional<std::int64_t>& member)
    {
        member = value.integer();
    }
    static void read(const ArchivedValue& value, std::optional<bool>& member)
    {
        member = value.boolean();
    }

    std::vector<TSDataPoint> dataPoints(const ArchivedArray& archived)
    {
        std::vector<TSDataPoint> samples;
        samples.reserve(archived.count());
        for (std::uint64_t i = 0; i < archived.count() && !m_archive.isRefused(); ++i) {
            if (i % kSamplesOfAStep == 0 && !goesOn())
                break;
            samples.push_back(dataPoint(archived[i]));
        }
        return samples;
    }

    TSDataPoint dataPoint(const ArchivedValue& archived)
    {
        if (!kDataPointClass.isThatOf(archived))
            m_archive.refuse(localized("\"%1\" holds something that is no sample")
                                 .arg(QLatin1String(kDataPoints)));
        TSDataPoint::Saved saved{
            .rssiValue = archived[m_rssiValue].integer(),
            .noiseValue = archived[m_noiseValue].integer(),
            .timestamp = archived[m_timestamp].date().value_or(0),
        };
        if (archived[m_revision].integer() >= kCurrentRevision) {
            saved.channel = archived[m_channel].integer();
            saved.stationCount = archived[m_stationCount].integer();
            saved.chUtilization = archived[m_chUtilization].integer();
        }
        return TSDataPoint(saved);
    }

    KeyedArchiveReader m_archive;
    const double m_now;
    const WorkProgress& m_progress;
    double m_done = 0; ///< of the networks, from 0 to 1
    bool m_isStopped = false;
    std::size_t m_nextColor = 0;

    ArchiveKey m_network{kNetwork};
    ArchiveKey m_dataPoints{kDataPoints};
    ArchiveKey m_color{kColor};
    ArchiveKey m_lastSeen{kLastSeen};
    ArchiveKey m_deviceName{kDeviceName};
    ArchiveKey m_annotations{kAnnotations};
    ArchiveKey m_revision{kRevision};
    ArchiveKey m_rssiValue{kRSSIValue};
    ArchiveKey m_noiseValue{kNoiseValue};
    ArchiveKey m_channel{kChannel};
    ArchiveKey m_stationCount{kStationCount};
    ArchiveKey m_chUtilization{kChUtilization};
    ArchiveKey m_timestamp{kTimestamp};
};

} // namespace

ResultsSnapshot ResultsSnapshot::of(const NetworkList& networks, double lastScanTime)
{
    ResultsSnapshot snapshot{{}, lastScanTime};
    snapshot.networks.reserve(networks.size());
    for (const NetworkPtr& network : networks)
        snapshot.networks.push_back(network->snapshot());
    return snapshot;
}

bool encodeResults(const ResultsSnapshot& results, QIODevice& device, const WorkProgress& progress)
{
    return ResultsEncoder(results, device, progress).encode();
}

std::optional<SavedResults> decodeResults(Bytes archive, double now, const WorkProgress& progress,
                                          QString& error)
{
    ResultsDecoder decoder(archive, now, progress);
    auto results = decoder.decode();
    error = decoder.error();
    return results;
}

} // namespace tessara
