#include "charts/HoverSearch.h"
#include "charts/OffscreenApplication.h"
#include "charts/TSNetworkDetailsView.h"
#include "charts/TSSpectrumView.h"

#include <QImage>
#include <QPainter>
#include <QPolygonF>

#include <benchmark/benchmark.h>

#include <random>

using namespace tessara;

namespace {

constexpr double kReferenceTime = 1'700'000'000;
constexpr int kNetworks = 200;
constexpr int kHour = 3600; // seconds
constexpr QSize kSize(1100, 735);

/// Networks whose signals wander, with a sample every two seconds.
/// @param seconds how long they have been seen
NetworkList wanderingNetworks(int seconds, int count = kNetworks)
{
    std::mt19937 random(1);
    NetworkList networks;
    for (int number = 0; number < count; ++number) {
        ScanDictionary dictionary;
        dictionary.bssid = QStringLiteral("02:00:00:00:00:%1").arg(number, 2, 16, QLatin1Char('0'));
        dictionary.ssid = QStringLiteral("Net %1").arg(number);
        dictionary.channelNumber = 36;
        auto network = std::make_shared<TSNetwork>(dictionary, kReferenceTime);
        int rssi = std::uniform_int_distribution(-90, -40)(random);
        for (int age = seconds; age > 0; age -= 2) {
            rssi = std::clamp(rssi + std::uniform_int_distribution(-2, 2)(random), -95, -25);
            network->addDataPoint({rssi, -92, -1, -1, kReferenceTime - age});
        }
        networks.push_back(std::move(network));
    }
    return networks;
}

/// The chart of networks, an hour wide.
std::unique_ptr<TSSignalStrengthView> chartOf(const Clock& clock, const NetworkList& networks)
{
    auto chart = std::make_unique<TSSignalStrengthView>(clock);
    chart->resize(kSize);
    chart->setTimescale(kHour);
    chart->setUnits(Units::kDBm);
    chart->setReferenceTime(kReferenceTime);
    chart->setNetworks(networks);
    return chart;
}

QImage blankImage()
{
    QImage image(kSize, QImage::Format_RGB32);
    image.fill(Qt::black);
    return image;
}

/// A repaint of the chart: 200 networks, an hour of samples, 360,000 points.
/// @param state its range is the seconds of history, of which an hour is visible
void signalChart(benchmark::State& state)
{
    const SystemClock clock;
    const auto chart = chartOf(clock, wanderingNetworks(static_cast<int>(state.range(0))));
    QImage image = blankImage();
    for (auto _ : state) {
        QPainter painter(&image);
        chart->paint(painter);
    }
    state.counters["points"] = kNetworks * kHour / 2;
}

/// A repaint of the details of one network, with its noise: the longest history, eight hours of
/// which are visible.
void detailsChart(benchmark::State& state)
{
    const SystemClock clock;
    const NetworkPtr network = wanderingNetworks(18 * kHour, 1).front();
    TSNetworkDetailsView chart(clock);
    chart.resize(kSize);
    chart.setTimescale(chart.maxTimescale());
    chart.setUnits(Units::kDBm);
    chart.setReferenceTime(kReferenceTime);
    chart.setNetwork(network);
    chart.setMetric(DetailsMetric::kSignalAndNoise);
    QImage image = blankImage();
    for (auto _ : state) {
        QPainter painter(&image);
        chart.paint(painter);
    }
    state.counters["points"] = static_cast<double>(chart.maxTimescale()); // two each two seconds
}

/// A repaint of the spectrum of 200 networks, with their names.
void spectrumChart(benchmark::State& state)
{
    constexpr int kChannels[] = {1, 6, 11, 13, 36, 44, 52, 100, 116, 149};
    NetworkList networks = wanderingNetworks(10);
    for (std::size_t i = 0; i < networks.size(); ++i) {
        ScanDictionary dictionary = networks[i]->network();
        dictionary.channelNumber = kChannels[i % std::size(kChannels)];
        networks[i]->setNetwork(std::move(dictionary));
    }
    const SystemClock clock;
    TSSpectrumView chart(clock);
    chart.resize(kSize);
    chart.setNetworks(networks);
    QImage image = blankImage();
    for (auto _ : state) {
        QPainter painter(&image);
        chart.paint(painter);
    }
}

/// What a painter takes for polylines of as many points, and nothing else.
/// @param state its range is the points of one polyline: the painter is faster with shorter ones
void barePolylines(benchmark::State& state)
{
    const ChartScale scale{.rect = {45, 30, 880, 670},
                           .topMargin = 73,
                           .units = Units::kDBm,
                           .referenceTime = kReferenceTime,
                           .timescale = kHour};
    std::vector<std::pair<QPen, QPolygonF>> lines;
    for (const NetworkPtr& network : wanderingNetworks(kHour)) {
        QColor color = network->color();
        color.setAlphaF(0.8F);
        const QPen pen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin);
        int points = 0;
        for (const TSDataPoint& sample : network->history()) {
            if (points++ % state.range(0) == 0)
                lines.emplace_back(pen, QPolygonF());
            lines.back().second.append(scale.makePointInRect(sample, Metric::kSignal));
        }
    }
    QImage image = blankImage();
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const auto& [pen, line] : lines) {
            painter.setPen(pen);
            painter.drawPolyline(line);
        }
    }
    state.counters["points"] = kNetworks * kHour / 2;
}

/// The search for the sample under the mouse among all of them.
void hover(benchmark::State& state)
{
    const NetworkList networks = wanderingNetworks(static_cast<int>(state.range(0)));
    const ChartScale scale{.rect = {45, 30, 880, 670},
                           .topMargin = 73,
                           .units = Units::kDBm,
                           .referenceTime = kReferenceTime,
                           .timescale = kHour};
    double x = 45;
    for (auto _ : state) {
        benchmark::DoNotOptimize(nearestSample(networks, scale, {x, 300}, HoverDistance::kInPlane));
        x = x < 900 ? x + 7 : 45;
    }
}

BENCHMARK(barePolylines)->ArgName("length")->Arg(kHour / 2)->Arg(24)->Unit(benchmark::kMillisecond);
BENCHMARK(signalChart)
    ->ArgName("history")
    ->Arg(kHour)
    ->Arg(18 * kHour)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(detailsChart)->Unit(benchmark::kMillisecond);
BENCHMARK(spectrumChart)->Unit(benchmark::kMillisecond);
BENCHMARK(hover)->ArgName("history")->Arg(kHour)->Arg(18 * kHour)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    const auto application = makeOffscreenApplication(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
