#include "persistence/AnnotationsCSV.h"
#include "persistence/CSVExport.h"
#include "persistence/PropertyList.h"
#include "support/HeapInUse.h"

#include <benchmark/benchmark.h>

#include <algorithm>

using namespace tessara;

namespace {

/// Lines of notes as an export writes them, this many megabytes of them.
QByteArray notes(std::int64_t megabytes)
{
    QByteArray lines;
    for (std::uint64_t number = 0; lines.size() < megabytes << 20; ++number) {
        const QByteArray digits = QByteArray::number(number, 16).rightJustified(12, '0');
        for (int octet = 0; octet < 12; octet += 2)
            lines += (octet > 0 ? ":" : "") + digits.sliced(octet, 2);
        lines += ",\"roof, east side, pole " + QByteArray::number(number) + "\"\n";
    }
    return lines;
}

/// Reading a file of notes into an empty store.
void importNotes(benchmark::State& state)
{
    const QByteArray bytes = notes(state.range(0));
    double kept = 0;
    double peak = 0;
    for (auto _ : state) {
        const double before = heapInUse();
        TSAnnotationsHelper store{QString()};
        peak = before;
        std::size_t line = 0;
        readAnnotationsCSV(bytes, [&](const QString& bssid, const QString& note) {
            store.setAnnotationsForNetwork(bssid, note);
            if (++line % 250'000 == 0)
                peak = std::max(peak, heapInUse());
        });
        peak -= before;
        kept = heapInUse() - before;
    }
    state.counters["kept/byte"] = kept / static_cast<double>(bytes.size());
    state.counters["peak/byte"] = peak / static_cast<double>(bytes.size());
    state.SetBytesProcessed(state.iterations() * bytes.size());
}
BENCHMARK(importNotes)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);

TSAnnotationsHelper::Annotations storeOf(std::int64_t megabytes)
{
    TSAnnotationsHelper::Annotations annotations;
    readAnnotationsCSV(notes(megabytes), [&](const QString& bssid, const QString& note) {
        annotations.insert(bssid, note);
    });
    return annotations;
}

/// The store as the property list that a change of a note writes.
void writeStore(benchmark::State& state)
{
    const auto annotations = storeOf(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(textDictionary(annotations));
}
BENCHMARK(writeStore)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);

void exportNotes(benchmark::State& state)
{
    const auto annotations = storeOf(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(csvOfAnnotations(annotations));
}
BENCHMARK(exportNotes)->Arg(1)->Arg(100)->Unit(benchmark::kMillisecond);

/// The text of an export, which the main thread makes.
void exportNetworks(benchmark::State& state)
{
    NetworkList networks;
    for (std::int64_t number = 0; number < state.range(0); ++number) {
        ScanDictionary dictionary;
        dictionary.bssid =
            QStringLiteral("2:0:0:0:%1:%2").arg(number / 256, 0, 16).arg(number % 256, 0, 16);
        dictionary.channelNumber = 1 + number % 11;
        dictionary.ssid = QStringLiteral("Network, %1").arg(number);
        dictionary.informationElementData = QByteArray::fromHex("010882848b960c121824");
        networks.push_back(std::make_shared<TSNetwork>(dictionary, 1.7e9));
        networks.back()->addDataPoint({-60, -95, -1, -1, 1.7e9});
    }
    const auto columns = allColumns();
    for (auto _ : state)
        benchmark::DoNotOptimize(csvText(networks, columns, 0));
}
BENCHMARK(exportNetworks)->Arg(100)->Arg(10'000)->Unit(benchmark::kMillisecond);

} // namespace
