#include "elements/TSInfoElement.h"
#include "support/Beacons.h"

#include <benchmark/benchmark.h>

using namespace tessara;

namespace {

/// All elements of all beacons, decoded and written as text.
void decodeToText(benchmark::State& state)
{
    std::size_t bytes = 0;
    for (auto _ : state) {
        bytes = 0;
        for (const ScanDictionary& beacon : beacons()) {
            DumpBuffer text;
            for (const TSInfoElement& element : informationElements(*beacon.informationElementData))
                element.appendDump(text);
            bytes += text.text().size();
        }
    }
    const auto count = static_cast<double>(beacons().size());
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(beacons().size()));
    state.counters["beacons"] = count;
    state.counters["text/beacon"] = static_cast<double>(bytes) / count;
}
BENCHMARK(decodeToText)->Unit(benchmark::kMillisecond);

/// What a list of elements needs: nothing is decoded for it.
void listNamesAndLengths(benchmark::State& state)
{
    for (auto _ : state) {
        for (const ScanDictionary& beacon : beacons()) {
            for (const TSInfoElement& element :
                 informationElements(*beacon.informationElementData)) {
                benchmark::DoNotOptimize(element.ieName());
                benchmark::DoNotOptimize(element.ieLength());
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(beacons().size()));
}
BENCHMARK(listNamesAndLengths)->Unit(benchmark::kMillisecond);

} // namespace
