#include "filtering/DisplayPipeline.h"
#include "filtering/TSSideViewItem.h"
#include "scanning/NetworkMerge.h"
#include "shell/NetworksTableModel.h"
#include "shell/SideViewModel.h"

#include <benchmark/benchmark.h>

#include <random>

using namespace tessara;

namespace {

constexpr double kStart = 1'700'000'000; // seconds since 1970
constexpr double kInterval = 2;
const MergeLimits kNoLimits{std::nullopt, 1e9};

/// A scan of as many networks as asked for, whose signals move from scan to scan as real ones do;
/// a tenth of them is out of sight at each.
ScanResults scan(std::int64_t count, std::mt19937& random)
{
    ScanResults results;
    for (std::int64_t i = 0; i < count; ++i) {
        if (random() % 10 == 0)
            continue;
        const auto number = static_cast<unsigned>(i);
        ScanDictionary dictionary;
        dictionary.bssid = QString::asprintf("2:0:%x:%x:%x:1", number >> 16U & 0xffU,
                                             number >> 8U & 0xffU, number & 0xffU);
        dictionary.channelNumber = i % 2 ? 36 : 6;
        dictionary.ssid = QStringLiteral("Wireless Network %1").arg(i);
        dictionary.phyMode = i % 3 ? 14 : 16;
        dictionary.securityMode = i % 5;
        dictionary.rssiValue = -40 - i % 50 - static_cast<std::int64_t>(random() % 4);
        dictionary.noiseMeasurement = -92;
        dictionary.beaconInterval = 100;
        dictionary.informationElementData = QByteArray(250, '\x30');
        results.push_back(std::move(dictionary));
    }
    return results;
}

/// The road from a scan to the models of the table and of the side view.
class Window {
public:
    Window()
    {
        m_pipeline.setSortDescriptors(
            {{columnWithIdentifier(u"RSSI"), false}, {columnWithIdentifier(u"SSID"), true}});
    }

    void merge(const ScanResults& results)
    {
        m_time += kInterval;
        m_pipeline.filterAndSetNetworks(
            mergeNetworks(results, m_pipeline.networks(), m_time, kNoLimits));
        publish();
    }
    void filter(const QString& line)
    {
        m_pipeline.onFilter(line);
        publish();
    }
    int rowCount() const { return m_table.rowCount(); }

private:
    void publish()
    {
        m_sideView.setItems(sideViewOf(m_pipeline.sideViewNetworks()));
        m_table.setNetworks(m_pipeline.filteredNetworks(), {});
    }

    DisplayPipeline m_pipeline;
    NetworksTableModel m_table;
    SideViewModel m_sideView;
    double m_time = kStart;
};

void reportPerNetwork(benchmark::State& state)
{
    state.counters["per network"] = benchmark::Counter(
        static_cast<double>(state.range(0)),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// A character more and one less in a line of four terms: read, hold against all networks, sort,
/// and bring the models to it.
void keystroke(benchmark::State& state)
{
    std::mt19937 random; // NOLINT(cert-msc51-cpp): the same networks at each run
    Window window;
    window.merge(scan(state.range(0), random));
    const QString lines[] = {QStringLiteral("wpa2, work 1 & !5GHz, >=50%"),
                             QStringLiteral("wpa2, work 12 & !5GHz, >=50%")};
    int turn = 0;
    for (auto _ : state)
        window.filter(lines[turn++ % 2]);
    if (window.rowCount() == 0)
        state.SkipWithError("the line selects nothing");
    reportPerNetwork(state);
}
BENCHMARK(keystroke)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

/// A tick: merge a scan, filter, sort, and bring the models to it.
void tick(benchmark::State& state)
{
    std::mt19937 random; // NOLINT(cert-msc51-cpp)
    Window window;
    std::vector<ScanResults> scans;
    for (int i = 0; i < 8; ++i)
        scans.push_back(scan(state.range(0), random));
    std::size_t turn = 0;
    for (auto _ : state)
        window.merge(scans[turn++ % scans.size()]);
    reportPerNetwork(state);
}
BENCHMARK(tick)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

} // namespace
