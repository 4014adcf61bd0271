#include "persistence/VendorDatabaseFile.h"
#include "persistence/VendorIndex.h"
#include "persistence/VendorLookup.h"
#include "persistence/VendorsArchive.h"
#include "support/HeapInUse.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace tessara;

namespace {

const QString kSeed = QStringLiteral(TESSARA_RESOURCES "/vendors.plist.zip");

/// The database of a fresh installation, unpacked.
const QString& databasePath()
{
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("vendors.plist"));
    static const bool installed = installVendorDatabase(kSeed, path, false);
    if (!installed)
        qFatal("there is no %s", qUtf8Printable(kSeed));
    return path;
}

VendorTable table()
{
    QString error;
    return readVendorDatabase(databasePath(), {}, error).value_or(VendorTable());
}

void load(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(table());
}
BENCHMARK(load)->Unit(benchmark::kMillisecond);

/// The same from the compact form, as at every start but the first after an installation.
void loadIndex(benchmark::State& state)
{
    QString error;
    const QString index = databasePath() + QStringLiteral(".index");
    if (!readVendorDatabase(databasePath(), index, error) ||
        !readVendorIndex(index, FileVersion::of(databasePath())))
        state.SkipWithError("there is no index");
    for (auto _ : state)
        benchmark::DoNotOptimize(readVendorDatabase(databasePath(), index, error));
}
BENCHMARK(loadIndex)->Unit(benchmark::kMillisecond);

void install(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(installVendorDatabase(kSeed, databasePath(), true));
}
BENCHMARK(install)->Unit(benchmark::kMillisecond);

/// What the loaded table keeps on the heap.
void memory(benchmark::State& state)
{
    databasePath();
    double bytes = 0;
    std::size_t entries = 0;
    for (auto _ : state) {
        const double before = heapInUse();
        const VendorTable loaded = table();
        bytes = heapInUse() - before;
        entries = loaded.size();
    }
    state.counters["bytes"] = bytes;
    state.counters["entries"] = static_cast<double>(entries);
}
BENCHMARK(memory)->Iterations(3);

void lookUp(benchmark::State& state, const char* address, bool isKnown)
{
    const VendorTable vendors = table();
    const QString bssid = QString::fromLatin1(address);
    if (vendorOf(vendors, bssid).has_value() != isKnown)
        state.SkipWithError("this address is not of the kind it should be");
    for (auto _ : state)
        benchmark::DoNotOptimize(vendorOf(vendors, bssid));
}
BENCHMARK_CAPTURE(lookUp, hit, "00:18:0A:12:34:56", true);
BENCHMARK_CAPTURE(lookUp, wildcard, "7A:9F:DB:12:34:56", true);
BENCHMARK_CAPTURE(lookUp, rotated, "62:77:55:66:0E:8F", true);
BENCHMARK_CAPTURE(lookUp, repaired, "72:73:CB:12:34:56", true);
BENCHMARK_CAPTURE(lookUp, miss, "FE:FF:FF:12:34:56", false);

} // namespace
