#include "model/TSNetwork.h"
#include "support/HeapInUse.h"

#include <benchmark/benchmark.h>

using namespace tessara;

namespace {

TSNetwork freshNetwork()
{
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("0:0:0:0:0:1");
    return {dictionary, 0};
}

const TSDataPoint kSample(-60, -90, 7, 40, 1'700'000'000.0);

/// What a sample costs on the heap, in a history of this length.
void bytesPerStoredSample(benchmark::State& state)
{
    const auto samples = static_cast<double>(state.range(0));
    double bytes = 0;
    for (auto _ : state) {
        TSNetwork network = freshNetwork();
        const double before = heapInUse();
        for (int i = 0; i < state.range(0); ++i)
            network.addDataPoint(kSample);
        bytes = heapInUse() - before;
    }
    state.counters["bytes/sample"] = bytes / samples;
}
BENCHMARK(bytesPerStoredSample)->Arg(1000)->Arg(10000)->Arg(32769)->Iterations(3);

/// Adding a sample to a history of this length; the last two are at the cap and beyond it.
void addSample(benchmark::State& state)
{
    TSNetwork network = freshNetwork();
    for (int i = 0; i < state.range(0); ++i)
        network.addDataPoint(kSample);
    // Few enough that the history stays close to the length it has.
    constexpr int kBatch = 1000;
    for (auto _ : state) {
        for (int i = 0; i < kBatch; ++i)
            network.addDataPoint(kSample);
    }
    state.SetItemsProcessed(state.iterations() * kBatch);
}
BENCHMARK(addSample)->Arg(0)->Arg(16000)->Iterations(16);
BENCHMARK(addSample)->Arg(32769)->Arg(100000)->Iterations(16);

/// The last real reading of a network that has been out of sight for this many samples.
void lastReadingAfterAbsence(benchmark::State& state)
{
    TSNetwork network = freshNetwork();
    network.addDataPoint(kSample);
    for (int i = 0; i < state.range(0); ++i)
        network.addDataPoint(TSDataPoint(-120, -120, -1, -1, 0));
    for (auto _ : state)
        benchmark::DoNotOptimize(network.rssiLast());
}
BENCHMARK(lastReadingAfterAbsence)->Arg(1)->Arg(30000);

} // namespace
