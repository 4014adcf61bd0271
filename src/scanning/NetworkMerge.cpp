#include "scanning/NetworkMerge.h"

#include "foundation/Defaults.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

namespace tessara {

namespace {

double ageLimit(const Defaults& defaults)
{
    constexpr double kYear = 31536000;                              // in practice never
    constexpr double kSeconds[] = {60, 120, 300, 1800, 3600, 7200}; // of the codes 1 to 6
    const std::int64_t code = defaults.integerForKey(DefaultKey::MaxElapsedTimeNotSeen);
    if (!defaults.boolForKey(DefaultKey::DeleteIfNotSeen) || code < 1 ||
        code > static_cast<std::int64_t>(std::size(kSeconds)))
        return kYear;
    return kSeconds[code - 1];
}

/// Finds the record of a dictionary as a search of the list in order would: a hash table whose
/// chains run through the places of the list, each chain in ascending order.
class RecordIndex {
public:
    /// Keeps a reference to the list, to which records may be appended.
    explicit RecordIndex(const NetworkList& records, std::size_t expected)
        : m_records(records)
        , m_heads(std::bit_ceil(2 * expected + 1), kEnd)
    {
        m_next.resize(records.size(), kEnd);
        for (Place place = static_cast<Place>(records.size()); place-- > 0;)
            m_next[place] = std::exchange(headOf(records[place]->keyHash()), place);
    }

    TSNetwork* find(const ScanDictionary& dictionary) const
    {
        const std::size_t hash = TSNetwork::keyHashOf(dictionary);
        for (Place place = headOf(hash); place != kEnd; place = m_next[place]) {
            TSNetwork& record = *m_records[place];
            if (record.keyHash() == hash && record.bssidAndBandCompare(dictionary))
                return &record;
        }
        return nullptr;
    }

    /// Takes in the record that was just appended to the list.
    void addLast()
    {
        m_next.push_back(kEnd);
        link(static_cast<Place>(m_records.size() - 1));
    }

    /// Takes in that the key of a record was `oldHash` and is another now: the elements of a
    /// network can put it on another band than before.
    void move(const TSNetwork* record, std::size_t oldHash)
    {
        Place* link = &headOf(oldHash);
        while (m_records[*link].get() != record)
            link = &m_next[*link];
        const Place place = *link;
        *link = m_next[place];
        this->link(place);
    }

private:
    using Place = std::uint32_t;
    static constexpr Place kEnd = std::numeric_limits<Place>::max();

    const Place& headOf(std::size_t hash) const { return m_heads[hash & (m_heads.size() - 1)]; }
    Place& headOf(std::size_t hash) { return m_heads[hash & (m_heads.size() - 1)]; }

    void link(Place place)
    {
        Place* link = &headOf(m_records[place]->keyHash());
        while (*link < place)
            link = &m_next[*link];
        m_next[place] = std::exchange(*link, place);
    }

    const NetworkList& m_records;
    std::vector<Place> m_heads; ///< a power of two of chains
    std::vector<Place> m_next;  ///< of each place, the next in its chain
};

void addSample(TSNetwork& network, std::int64_t rssi, std::int64_t noise, double scanTime)
{
    network.addDataPoint(
        TSDataPoint(rssi, noise, network.stationCount(), network.channelUtilization(), scanTime));
}

void markSeen(TSNetwork& network, double scanTime)
{
    network.setLastSeen(scanTime);
    network.setLastSeenElapsedSeconds(0);
}

/// A known network was reported. Without a reading in the dictionary it keeps its last one, but
/// an absent network does not come back on a scan that has no reading of it.
void update(TSNetwork& network, const ScanDictionary& dictionary, double scanTime)
{
    std::int64_t rssi = dictionary.rssiValue.value_or(0);
    if (rssi == 0) {
        if (const auto last = network.lastDataPoint()) {
            if (!last->hasData())
                return;
            rssi = last->rssiValue();
        }
    }
    network.setNetwork(dictionary);
    markSeen(network, scanTime);
    addSample(network, rssi, dictionary.noiseMeasurement.value_or(0), scanTime);
}

/// A record for a network that was not known; none without a first reading.
NetworkPtr create(const ScanDictionary& dictionary, double scanTime)
{
    const std::int64_t rssi = dictionary.rssiValue.value_or(0);
    if (rssi == 0)
        return nullptr;
    auto network = std::make_shared<TSNetwork>(dictionary, scanTime);
    markSeen(*network, scanTime);
    network->setUserHidden(false);
    addSample(*network, rssi, dictionary.noiseMeasurement.value_or(0), scanTime);
    return network;
}

/// Brings a record that this scan may not have reported up to its time.
/// @return whether the record has become too old, or never had a sample
bool ageAndJudge(TSNetwork& network, double scanTime, double maxElapsedSeconds)
{
    if (network.history().empty())
        return true;
    if (network.lastSeen() != scanTime) {
        network.setLastSeenElapsedSeconds(scanTime - network.lastSeen());
        addSample(network, TSDataPoint::kNoData, TSDataPoint::kNoData, scanTime);
    }
    return static_cast<double>(static_cast<std::int64_t>(network.lastSeenElapsedSeconds())) >
           maxElapsedSeconds;
}

} // namespace

MergeLimits MergeLimits::fromDefaults(const Defaults& defaults)
{
    constexpr std::int64_t kBeyondAnySignal = 1000;
    const std::int64_t sensitivity = std::clamp<std::int64_t>(
        defaults.integerForKey(DefaultKey::Sensitivity), -kBeyondAnySignal, kBeyondAnySignal);
    return {sensitivity == kSensitivityOff ? std::nullopt : std::optional(-sensitivity),
            ageLimit(defaults)};
}

NetworkList mergeNetworks(const ScanResults& results, const NetworkList& networks, double scanTime,
                          const MergeLimits& limits)
{
    NetworkList merged = networks;
    RecordIndex index(merged, networks.size() + results.size());

    for (const ScanDictionary& dictionary : results) {
        if (limits.weakestSignal && dictionary.rssiValue.value_or(0) < *limits.weakestSignal)
            continue;
        if (TSNetwork* network = index.find(dictionary)) {
            const std::size_t hash = network->keyHash();
            update(*network, dictionary, scanTime);
            if (network->keyHash() != hash)
                index.move(network, hash);
        } else if (NetworkPtr created = create(dictionary, scanTime)) {
            merged.push_back(std::move(created));
            index.addLast();
        }
    }

    std::erase_if(merged, [&](const NetworkPtr& network) {
        return ageAndJudge(*network, scanTime, limits.maxLastSeenElapsedSeconds);
    });
    return merged;
}

} // namespace tessara
