// The whole window: how long a tick keeps the main thread from its events, how long opening and
// saving a large file do, and the memory that an hour of scanning takes.
#include "persistence/ResultsFile.h"
#include "shell/GraphTabs.h"
#include "shell/MainMenu.h"
#include "shell/RunningApplication.h"
#include "support/HeapInUse.h"

#include <QApplication>
#include <QFileDialog>
#include <QThreadPool>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <time.h>

#include <algorithm>
#include <random>

using namespace tessara;

namespace {

/// Time of this thread's own work: what else the machine does is no pause of ours.
class Stopwatch {
public:
    double seconds() const { return now() - m_start; }

private:
    static double now()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
    }
    double m_start = now();
};

/// The application at 1100 by 735, where nobody is asked.
class Application : public RunningApplication {
public:
    Application()
    {
        Defaults::standard().setValue(DefaultKey::SaveAlertSupressionButton, 1);
        launch();
        window().resize(1100, 735);
        settle();
    }

    QString path(const char* name) const { return directory.filePath(QLatin1String(name)); }
    const NetworkList& networks() { return delegate->scanCycle().networks(); }

    /// A scan of so many networks, whose signals move; a tenth of them is out of sight.
    void scan(int count)
    {
        std::vector<CWNetwork> found;
        for (int i = 0; i < count; ++i) {
            if (m_random() % 10 == 0)
                continue;
            CWNetwork each =
                network("", i % 2 ? 36 : 6, -40 - i % 50 - static_cast<int>(m_random() % 4));
            each.bssid = QString::asprintf("2:0:0:%x:%x:1", i >> 8, i & 0xff);
            each.ssid = QStringLiteral("Wireless Network %1").arg(i);
            each.informationElementData = QByteArray(250, '\x30');
            found.push_back(std::move(each));
        }
        engineScans(std::move(found));
    }
    /// @return the seconds that the main thread was at work, painting included
    double timedTick()
    {
        const Stopwatch watch;
        tick();
        QThreadPool::globalInstance()->waitForDone(); // a chart that is painted there
        settle();
        return watch.seconds();
    }

private:
    std::mt19937 m_random; // NOLINT(cert-msc51-cpp): the same networks at each run
};

/// A tick of the window with a tab of the lower half: merge, filter, sort, charts and paint.
void tick(benchmark::State& state)
{
    Application application;
    const auto count = static_cast<int>(state.range(0));
    application.window().graphTabs().selectGraph(static_cast<int>(state.range(1)));
    for (int i = 0; i < 5; ++i) {
        application.scan(count);
        application.tick();
    }
    std::vector<double> ticks;
    for (auto _ : state) {
        application.scan(count);
        ticks.push_back(application.timedTick());
        state.SetIterationTime(ticks.back());
    }
    if (application.networks().size() < static_cast<std::size_t>(count) * 9 / 10)
        state.SkipWithError("the networks are not in the list");
    std::ranges::sort(ticks);
    state.counters["median_ms"] = ticks[ticks.size() / 2] * 1000;
    state.counters["longest_ms"] = ticks.back() * 1000;
}
BENCHMARK(tick)
    ->ArgNames({"networks", "tab"})
    ->ArgsProduct({{200, 1000, 5000}, {0, 1, 2}})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(60);

/// An hour of ticks with 200 networks: what it leaves on the heap.
void hourOfScanning(benchmark::State& state)
{
    constexpr int kTicks = 1800;
    for (auto _ : state) {
        Application application;
        application.window().graphTabs().selectGraph(1);
        const double before = heapInUse();
        for (int i = 0; i < kTicks; ++i) {
            application.scan(200);
            application.tick();
        }
        state.counters["MB"] = (heapInUse() - before) / 1e6;
    }
}
BENCHMARK(hourOfScanning)->Unit(benchmark::kMillisecond)->Iterations(1);

// Large files ------------------------------------------------------------------------------------

constexpr int kNetworks = 200;
constexpr int kSamples = 10000;

NetworkList recordsOfADay()
{
    constexpr double kStart = 1'700'000'000;
    std::mt19937 random(1);
    NetworkList networks;
    for (int n = 0; n < kNetworks; ++n) {
        ScanDictionary dictionary;
        dictionary.bssid = QStringLiteral("2:0:0:0:0:%1").arg(n, 0, 16);
        dictionary.ssid = QStringLiteral("Network %1").arg(n);
        dictionary.channelNumber = 1 + n % 11;
        dictionary.informationElementData = QByteArray(300, '\x00');
        networks.push_back(std::make_shared<TSNetwork>(dictionary, kStart));
        for (int i = 0; i < kSamples; ++i) {
            const int rssi = -40 - n % 50 - static_cast<int>(random() % 4);
            networks.back()->addDataPoint(
                TSDataPoint(rssi, -92, n % 30, 10, kStart + ScanCycle::kMergeInterval * i));
        }
    }
    return networks;
}

/// The longest time that the main thread is away from its events until a file is open, or saved.
double longestPause(Application& application, const std::function<void()>& command)
{
    double longest = 0;
    Stopwatch watch;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, &heart, [&] {
        longest = std::max(longest, watch.seconds());
        watch = Stopwatch();
    });
    heart.start(0);
    QTimer::singleShot(0, &heart, command);
    const auto isAtWork = [&] { return !application.window().findChildren<QDialog*>().isEmpty(); };
    for (int rest = 200; rest > 0; --rest) { // what is then left to paint counts, too
        if (isAtWork())
            rest = 200;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return std::max(longest, watch.seconds());
}

void pauses(benchmark::State& state)
{
    for (auto _ : state) {
        Application application;
        const QString path = application.path("day.tessara");
        QString error;
        if (!writeResultsFile(
                path, ResultsSnapshot::of(recordsOfADay(), 0), [](double) { return true; }, error))
            qFatal("%s", qUtf8Printable(error));
        application.window().graphTabs().selectGraph(static_cast<int>(state.range(0)));
        state.counters["open_ms"] =
            1000 * longestPause(application, [&] { application.delegate->openFile(path); });
        if (application.networks().size() != kNetworks)
            qFatal("the file is not shown");
        state.counters["save_ms"] = 1000 * longestPause(application, [&] {
                                        Q_EMIT application.window().menu().saveAsRequested();
                                        auto* panel =
                                            application.window().findChild<QFileDialog*>();
                                        panel->selectFile(application.path("copy.tessara"));
                                        static_cast<QDialog*>(panel)->accept();
                                    });
    }
}
BENCHMARK(pauses)->ArgName("tab")->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
