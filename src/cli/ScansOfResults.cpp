#include "cli/ScansOfResults.h"

#include <algorithm>
#include <queue>
#include <utility>
#include <vector>

namespace tessara {

namespace {

/// The times of all samples and of the last scan, each once, in order.
std::vector<double> scanTimes(const NetworkList& networks, double lastScanTime)
{
    std::vector<double> times;
    if (lastScanTime != 0)
        times.push_back(lastScanTime);
    for (const NetworkPtr& network : networks) {
        for (const TSDataPoint& sample : network->history())
            times.push_back(sample.timestamp());
    }
    std::ranges::sort(times);
    times.erase(std::unique(times.begin(), times.end()), times.end());
    return times;
}

/// A sample without data stands for a scan that did not report the network. But some did: the
/// first, or there would be no record, and the last that it was seen in.
bool wasReported(const TSNetwork& network, const TSDataPoint& sample)
{
    return sample.hasData() || sample.timestamp() == network.lastSeen() ||
           sample == network.history().front();
}

} // namespace

void forEachScan(const NetworkList& networks, double lastScanTime,
                 const std::function<bool(const RecordedScan& scan)>& take)
{
    std::vector<std::size_t> next(networks.size(), 0); // of each network's samples
    using Due = std::pair<double, std::size_t>;        // when the next one of which network is due
    std::priority_queue<Due, std::vector<Due>, std::greater<>> queue;
    const auto enqueue = [&](std::size_t i) {
        if (const auto& history = networks[i]->history(); next[i] < history.size())
            queue.emplace(history[next[i]].timestamp(), i);
    };
    for (std::size_t i = 0; i < networks.size(); ++i)
        enqueue(i);
    std::vector<std::size_t> due;
    for (const double time : scanTimes(networks, lastScanTime)) {
        RecordedScan scan{time, {}, true};
        due.clear();
        for (; !queue.empty() && queue.top().first <= time; queue.pop())
            due.push_back(queue.top().second);
        std::ranges::sort(due); // as they stand in the list
        for (const std::size_t i : due) {
            const TSNetwork& network = *networks[i];
            const auto& history = network.history();
            // Times of a file need not ascend: what is late goes with the scan that it came to.
            while (next[i] < history.size() && history[next[i]].timestamp() <= time) {
                const TSDataPoint& sample = history[next[i]++];
                if (!wasReported(network, sample))
                    continue;
                ScanDictionary& reported = scan.networks.emplace_back(network.network());
                reported.rssiValue = sample.rssiValue();
                reported.noiseMeasurement = sample.noiseValue();
            }
            enqueue(i);
        }
        scan.recordsSignal = recordsSignal(scan.networks);
        if (!take(scan))
            return;
    }
}

} // namespace tessara
