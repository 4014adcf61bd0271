#include "filtering/FilterLine.h"

#include <benchmark/benchmark.h>

using namespace tessara;

namespace {

/// As many networks as asked for, with names and kinds like those of a town.
NetworkList networks(std::int64_t count)
{
    NetworkList list;
    for (std::int64_t i = 0; i < count; ++i) {
        ScanDictionary dictionary;
        dictionary.bssid = QStringLiteral("02:00:00:%1:%2:%3")
                               .arg(i >> 16 & 0xff, 2, 16, QLatin1Char('0'))
                               .arg(i >> 8 & 0xff, 2, 16, QLatin1Char('0'))
                               .arg(i & 0xff, 2, 16, QLatin1Char('0'));
        dictionary.channelNumber = i % 2 ? 36 : 6;
        dictionary.ssid = QStringLiteral("Wireless Network %1").arg(i);
        dictionary.phyMode = i % 3 ? 14 : 16;
        dictionary.securityMode = i % 5;
        auto network = std::make_shared<TSNetwork>(std::move(dictionary), 0);
        network->addDataPoint({-40 - i % 50, -92, -1, -1, 0});
        list.push_back(std::move(network));
    }
    return list;
}

void reportPerNetwork(benchmark::State& state)
{
    state.counters["per network"] = benchmark::Counter(
        static_cast<double>(state.range(0)),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// A line of four terms, read and held against all networks: what a keystroke does.
void filterByFourTerms(benchmark::State& state)
{
    const NetworkList list = networks(state.range(0));
    const QString line = QStringLiteral("wpa2, work 1 & !5GHz, >=50%");
    for (auto _ : state) {
        FilterIdentifiers identifiers;
        benchmark::DoNotOptimize(filterNetworks(list, line, identifiers));
    }
    reportPerNetwork(state);
}
BENCHMARK(filterByFourTerms)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

/// A pasted line of 100,000 characters of which each term is another name.
void filterByManyNames(benchmark::State& state)
{
    const NetworkList list = networks(state.range(0));
    QString line;
    for (int i = 0; line.size() < 100'000; ++i)
        line += QStringLiteral("%1x,").arg(i, 0, 36);
    for (auto _ : state) {
        FilterIdentifiers identifiers;
        benchmark::DoNotOptimize(filterNetworks(list, line, identifiers));
    }
    reportPerNetwork(state);
}
BENCHMARK(filterByManyNames)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace
