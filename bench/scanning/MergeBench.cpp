#include "scanning/NetworkMerge.h"

#include <benchmark/benchmark.h>

using namespace tessara;

namespace {

/// As many networks as asked for, each with a beacon's worth of element bytes.
ScanResults results(std::int64_t count)
{
    ScanResults networks;
    for (std::int64_t i = 0; i < count; ++i) {
        ScanDictionary dictionary;
        dictionary.bssid = QString::asprintf(
            "2:0:%x:%x:%x:%x", static_cast<unsigned>(i >> 24 & 0xff),
            static_cast<unsigned>(i >> 16 & 0xff), static_cast<unsigned>(i >> 8 & 0xff),
            static_cast<unsigned>(i & 0xff));
        dictionary.channelNumber = i % 2 ? 36 : 6;
        dictionary.ssid = QStringLiteral("Network %1").arg(i);
        dictionary.rssiValue = -40 - i % 50;
        dictionary.noiseMeasurement = -92;
        dictionary.informationElementData = QByteArray(250, '\x30');
        dictionary.beaconInterval = 100;
        networks.push_back(std::move(dictionary));
    }
    return networks;
}

/// One tick of a list in which a tenth of the networks is out of sight, and comes back next time.
void mergeTick(benchmark::State& state)
{
    const ScanResults all = results(state.range(0));
    ScanResults most;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (i % 10 != 0)
            most.push_back(all[i]);
    }
    const MergeLimits limits{std::nullopt, 1e9};
    double time = 1'700'000'000.0;
    NetworkList list = mergeNetworks(all, {}, time, limits);
    for (auto _ : state) {
        time += 2;
        list = mergeNetworks(static_cast<std::int64_t>(time) % 4 ? most : all, list, time, limits);
        benchmark::DoNotOptimize(list.data());
    }
    state.counters["per network"] = benchmark::Counter(
        static_cast<double>(state.range(0)),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(mergeTick)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

} // namespace
