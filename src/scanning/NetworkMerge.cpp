#include "scanning/NetworkMerge.h"

#include "foundation/Defaults.h"

#include <algorithm>
#include <unordered_map>

namespace tessara
{

namespace
{

/// The value of `Sensitivity` that lets everything in.
constexpr std::int64_t kSensitivityOff = 85;

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

/// Finds the record of a dictionary as a search of the list in order would.
class RecordIndex
{
public:
    explicit RecordIndex(const NetworkList& records)
    {
        m_places.reserve(records.size());
        for (std::size_t place = 0; place < records.size(); ++place)
            add(records[place]->key(), place);
    }

    std::optional<std::size_t> find(const NetworkKey& key) const
    {
        const auto found = m_places.find(key);
        return found == m_places.end() ? std::nullopt : std::optional(found->second.first);
    }

    void add(const NetworkKey& key, std::size_t place)
    {
        const auto [entry, isNew] = m_places.try_emplace(key, Places{place, {}});
        if (isNew)
            return;
        Places& places = entry->second;
        if (place < places.first)
            std::swap(place, places.first);
        places.others.insert(std::ranges::upper_bound(places.others, place), place);
    }

    /// The elements of a network can put it on another band than before.
    void move(const NetworkKey& from, const NetworkKey& to, std::size_t place)
    {
        if (from == to)
            return;
        const auto entry = m_places.find(from);
        Places& places = entry->second;
        if (places.first != place) {
            std::erase(places.others, place);
        } else if (places.others.empty()) {
            m_places.erase(entry);
        } else {
            places.first = places.others.front();
            places.others.erase(places.others.begin());
        }
        add(to, place);
    }

private:
    /// Almost always one; several records can share a key after a move.
    struct Places {
        std::size_t first;
        std::vector<std::size_t> others; ///< ascending
    };
    std::unordered_map<NetworkKey, Places, NetworkKey::Hash> m_places;
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
    const std::int64_t sensitivity = defaults.integerForKey(DefaultKey::Sensitivity);
    return {sensitivity == kSensitivityOff ? std::nullopt : std::optional(-sensitivity),
            ageLimit(defaults)};
}

NetworkList mergeNetworks(const ScanResults& results, const NetworkList& networks, double scanTime,
                          const MergeLimits& limits)
{
    NetworkList merged = networks;
    RecordIndex index(merged);

    for (const ScanDictionary& dictionary : results) {
        if (limits.weakestSignal && dictionary.rssiValue.value_or(0) < *limits.weakestSignal)
            continue;
        const NetworkKey key = TSNetwork::keyOf(dictionary);
        if (const auto place = index.find(key)) {
            update(*merged[*place], dictionary, scanTime);
            index.move(key, merged[*place]->key(), *place);
        } else if (NetworkPtr network = create(dictionary, scanTime)) {
            index.add(network->key(), merged.size());
            merged.push_back(std::move(network));
        }
    }

    std::erase_if(merged, [&](const NetworkPtr& network) {
        return ageAndJudge(*network, scanTime, limits.maxLastSeenElapsedSeconds);
    });
    return merged;
}

} // namespace tessara
