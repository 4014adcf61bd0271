#include "elements/ElementRun.h"
#include "model/TSNetwork.h"
#include "support/Beacons.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>

// Every allocation of the program is counted: the C library's own allocator does the work.
extern "C" void* __libc_malloc(std::size_t size);
static std::atomic<std::uint64_t> allocations = 0;
extern "C" void* malloc(std::size_t size)
{
    ++allocations;
    return __libc_malloc(size);
}

using namespace tessara;

namespace {

/// The attributes of a network anew from each of the beacons.
void setNetwork(benchmark::State& state)
{
    const ScanResults& all = beacons();
    TSNetwork network(all.front(), 0);
    std::uint64_t counted = 0;
    for (auto _ : state) {
        const std::uint64_t before = allocations;
        for (const ScanDictionary& beacon : all)
            network.setNetwork(beacon);
        counted = allocations - before;
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(all.size()));
    state.counters["beacons"] = static_cast<double>(all.size());
    state.counters["allocations/beacon"] =
        static_cast<double>(counted) / static_cast<double>(all.size());
}
BENCHMARK(setNetwork)->Unit(benchmark::kMicrosecond);

/// For comparison: only from element to element.
void bareWalk(benchmark::State& state)
{
    const ScanResults& all = beacons();
    for (auto _ : state) {
        for (const ScanDictionary& beacon : all) {
            for (const ElementView element : ElementRun(*beacon.informationElementData))
                benchmark::DoNotOptimize(element.content.data());
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(all.size()));
}
BENCHMARK(bareWalk)->Unit(benchmark::kMicrosecond);

} // namespace
