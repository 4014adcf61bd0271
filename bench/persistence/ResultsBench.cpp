// Opening and saving a file of 200 networks with 10,000 samples each, beside what libplist takes to
// parse the bare property list of the same file. (To write it takes libplist more than ten
// minutes.) Each run has a process of its own, so that its greatest memory is its own too.
// "records_MB" is the heap that the records take, "above_MB" all that is taken above that at the
// greatest.
#include "persistence/ResultsFile.h"
#include "support/HeapInUse.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <plist/plist.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <random>

using namespace tessara;

namespace {

constexpr int kNetworks = 200;
constexpr int kSamples = 10000;
constexpr double kStart = 1'700'000'000;

const WorkProgress kGoOn = [](double) { return true; };

/// Bytes of memory of this process at its greatest.
double peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024;
}

NetworkList makeNetworks()
{
    std::mt19937 random(1);
    std::uniform_int_distribution<int> step(-2, 2);
    NetworkList networks;
    for (int n = 0; n < kNetworks; ++n) {
        ScanDictionary dictionary;
        dictionary.bssid = QStringLiteral("2:0:0:0:0:%1").arg(n, 0, 16);
        dictionary.ssid = QStringLiteral("Network %1").arg(n);
        dictionary.channelNumber = 1 + n % 11;
        dictionary.rssiValue = -60;
        dictionary.informationElementData = QByteArray(300, '\x00');
        auto network = std::make_shared<TSNetwork>(dictionary, kStart);
        int rssi = -40 - n % 50;
        for (int i = 0; i < kSamples; ++i) {
            rssi = std::clamp(rssi + step(random), -95, -30);
            network->addDataPoint(TSDataPoint(rssi, -92, n % 30, 10, kStart + 2.0 * i));
        }
        networks.push_back(std::move(network));
    }
    return networks;
}

struct Measured {
    double seconds = 0;
    double records = 0; ///< bytes
    double above = 0;   ///< bytes
};

class Stopwatch {
public:
    double seconds() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

/// Runs the work in a process of its own, which keeps nothing of this one's.
Measured inProcessOfItsOwn(const std::function<Measured()>& work)
{
    int channel[2];
    if (pipe(channel) != 0)
        qFatal("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        const Measured measured = work();
        const bool written = write(channel[1], &measured, sizeof measured) == sizeof measured;
        _exit(written ? 0 : 1);
    }
    close(channel[1]);
    Measured measured;
    if (read(channel[0], &measured, sizeof measured) != sizeof measured)
        qFatal("the work failed");
    close(channel[0]);
    waitpid(child, nullptr, 0);
    return measured;
}

const QString& file()
{
    static const QTemporaryDir folder;
    static const QString path = folder.filePath(QStringLiteral("large.tessara"));
    [[maybe_unused]] static const Measured made = inProcessOfItsOwn([] {
        QString error;
        if (!writeResultsFile(path, ResultsSnapshot::of(makeNetworks(), kStart), kGoOn, error))
            qFatal("%s", qUtf8Printable(error));
        return Measured();
    });
    return path;
}

void run(benchmark::State& state, Measured (*work)())
{
    file();
    Measured measured;
    for (auto _ : state) {
        measured = inProcessOfItsOwn(work);
        state.SetIterationTime(measured.seconds);
    }
    constexpr double kMB = 1e6;
    state.counters["records_MB"] = measured.records / kMB;
    state.counters["above_MB"] = measured.above / kMB;
    state.counters["file_MB"] = static_cast<double>(QFile(file()).size()) / kMB;
}

Measured open()
{
    const double heap = heapInUse();
    const double peak = peakMemory();
    const Stopwatch watch;
    ResultsFileError error;
    const auto results = readResultsFile(file(), kStart, kGoOn, error);
    if (!results || results->networks.size() != kNetworks)
        qFatal("the file cannot be read");
    Measured measured{watch.seconds(), heapInUse() - heap, 0};
    measured.above = peakMemory() - peak - measured.records;
    return measured;
}

Measured save()
{
    const NetworkList networks = makeNetworks();
    const double peak = peakMemory();
    const Stopwatch watch;
    QString error;
    if (!writeResultsFile(file() + QStringLiteral(".copy"), ResultsSnapshot::of(networks, kStart),
                          kGoOn, error))
        qFatal("%s", qUtf8Printable(error));
    return {watch.seconds(), 0, peakMemory() - peak};
}

QByteArray content()
{
    QFile source(file());
    if (!source.open(QIODevice::ReadOnly))
        qFatal("the file cannot be read");
    return source.readAll();
}

Measured libplistParse()
{
    const QByteArray bytes = content();
    const double peak = peakMemory();
    const Stopwatch watch;
    plist_t root = nullptr;
    plist_from_bin(bytes.constData(), static_cast<uint32_t>(bytes.size()), &root);
    if (!root)
        qFatal("libplist cannot read the file");
    return {watch.seconds(), 0, peakMemory() - peak};
}

BENCHMARK_CAPTURE(run, open, open)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK_CAPTURE(run, libplistParse, libplistParse)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK_CAPTURE(run, save, save)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
