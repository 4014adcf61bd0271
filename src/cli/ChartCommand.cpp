#include "charts/ChartFile.h"
#include "charts/PaintingOrder.h"
#include "charts/TSNetworkDetailsView.h"
#include "charts/TSSpectrumView.h"
#include "cli/Command.h"
#include "cli/InputOptions.h"
#include "cli/NetworksInput.h"
#include "filtering/DisplayPipeline.h"
#include "foundation/Defaults.h"

#include <QRegularExpression>

#include <algorithm>
#include <memory>

namespace tessara {

namespace {

const QString kKind = QStringLiteral("kind");
const QString kBssid = QStringLiteral("bssid");
const QString kMetric = QStringLiteral("metric");
const QString kTimescale = QStringLiteral("timescale");
const QString kSize = QStringLiteral("size");
const QString kOutput = QStringLiteral("output");

constexpr int kLargestSide = 16384; // points
constexpr qint64 kLongestTimescale = 24 * 60 * 60;

/// One kind of chart.
struct ChartKind {
    const char* name;
    const char16_t* timescale; ///< the setting that has its seconds; none for a chart without time
    std::unique_ptr<TSSignalStrengthView> (*make)(const Clock& clock);
    bool isOfOneNetwork = false;
};

const ChartKind kKinds[] = {
    {"signal", DefaultKey::SignalStrengthViewTimescale,
     [](const Clock& clock) { return std::make_unique<TSSignalStrengthView>(clock); }},
    {"details", DefaultKey::NetworkSignalStrengthViewTimescale,
     [](const Clock& clock) -> std::unique_ptr<TSSignalStrengthView> {
         return std::make_unique<TSNetworkDetailsView>(clock);
     },
     true},
    {"spectrum", nullptr,
     [](const Clock& clock) -> std::unique_ptr<TSSignalStrengthView> {
         return std::make_unique<TSSpectrumView>(clock);
     }},
};

/// What a chart of one network can show.
struct NamedMetric {
    const char* name;
    DetailsMetric metric;
};

const NamedMetric kMetrics[] = {{"signal", DetailsMetric::kSignal},
                                {"noise", DetailsMetric::kSignalAndNoise},
                                {"snr", DetailsMetric::kSNR}};

/// What the command line asks for.
struct ChartOptions {
    const ChartKind* kind = nullptr;
    QStringList bssids;
    DetailsMetric metric{};
    std::optional<qint64> timescale; ///< seconds; none for a chart without time
    QSize size;
    QString output;
};

void addOptions(QCommandLineParser& parser)
{
    addInputOptions(parser);
    QStringList kinds;
    for (const ChartKind& kind : kKinds)
        kinds.append(QLatin1String(kind.name));
    QStringList metrics;
    for (const NamedMetric& metric : kMetrics)
        metrics.append(QLatin1String(metric.name));
    parser.addOptions({
        {kKind, QStringLiteral("What to show: %1.").arg(kinds.join(QStringLiteral(", "))),
         QStringLiteral("KIND"), QLatin1String(kKinds[0].name)},
        {kBssid, QStringLiteral("Select a network, as in the list; may be given more than once."),
         QStringLiteral("BSSID")},
        {kMetric,
         QStringLiteral("What to show of the one network of details: %1.")
             .arg(metrics.join(QStringLiteral(", "))),
         QStringLiteral("METRIC"), QLatin1String(kMetrics[0].name)},
        {kTimescale, QStringLiteral("Seconds from edge to edge."), QStringLiteral("SECONDS")},
        {kSize, QStringLiteral("Size of the picture in points."), QStringLiteral("WxH"),
         QStringLiteral("1100x735")},
        {{QStringLiteral("o"), kOutput},
         QStringLiteral("Where to write it; ends in .png, .pdf or .svg."),
         QStringLiteral("FILE")},
    });
}

std::optional<QSize> parsedSize(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
    const auto match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    if (size.isEmpty() || size.width() > kLargestSide || size.height() > kLargestSide)
        return std::nullopt;
    return size;
}

/// @param error what is wrong, if something is
/// @return none on an error
std::optional<ChartOptions> chartOptions(const QCommandLineParser& parser, QString& error)
{
    ChartOptions options;
    const auto* kind = std::ranges::find(kKinds, parser.value(kKind), [](const ChartKind& k) {
        return QString::fromLatin1(k.name);
    });
    if (kind == std::end(kKinds)) {
        error = QStringLiteral("there is no kind of chart '%1'").arg(parser.value(kKind));
        return std::nullopt;
    }
    options.kind = kind;
    options.bssids = parser.values(kBssid);

    if (kind->isOfOneNetwork && options.bssids.size() != 1) {
        error = QStringLiteral("--kind %1 takes one --bssid").arg(parser.value(kKind));
        return std::nullopt;
    }
    if (!kind->isOfOneNetwork && parser.isSet(kMetric)) {
        error = QStringLiteral("--kind %1 takes no --metric").arg(parser.value(kKind));
        return std::nullopt;
    }
    const auto* metric = std::ranges::find(
        kMetrics, parser.value(kMetric), [](const auto& m) { return QString::fromLatin1(m.name); });
    if (metric == std::end(kMetrics)) {
        error = QStringLiteral("there is no metric '%1'").arg(parser.value(kMetric));
        return std::nullopt;
    }
    options.metric = metric->metric;

    if (!kind->timescale && parser.isSet(kTimescale)) {
        error = QStringLiteral("--kind %1 takes no --timescale").arg(parser.value(kKind));
        return std::nullopt;
    }
    if (kind->timescale) {
        bool isNumber = true;
        options.timescale = parser.isSet(kTimescale)
                                ? parser.value(kTimescale).toLongLong(&isNumber)
                                : Defaults::standard().integerForKey(kind->timescale);
        if (!isNumber || options.timescale < 1 || options.timescale > kLongestTimescale) {
            error = QStringLiteral("--timescale takes seconds from 1 to %1").arg(kLongestTimescale);
            return std::nullopt;
        }
    }
    const auto size = parsedSize(parser.value(kSize));
    if (!size) {
        error = QStringLiteral("--size takes WIDTHxHEIGHT, each from 1 to %1").arg(kLargestSide);
        return std::nullopt;
    }
    options.size = *size;
    options.output = parser.value(kOutput);
    if (!isChartFileName(options.output)) {
        error = QStringLiteral("--output takes a file that ends in .png, .pdf or .svg");
        return std::nullopt;
    }
    return options;
}

/// Marks the networks as the list does what the user selects.
/// @return a BSSID that is not there, or empty
QString select(const QStringList& bssids, const NetworkList& networks)
{
    for (const QString& bssid : bssids) {
        bool isFound = false;
        for (const NetworkPtr& network : networks) {
            if (network->bssid().compare(bssid, Qt::CaseInsensitive) == 0) {
                network->setUserHighlighted(true);
                isFound = true;
            }
        }
        if (!isFound)
            return bssid;
    }
    return {};
}

ExitStatus fail(const QString& message)
{
    complain(message);
    return kFailed;
}

ExitStatus run(const QCommandLineParser& parser, const QStringList& arguments)
{
    if (arguments.size() != 1)
        return wrongUsage(QStringLiteral("chart takes one input"));
    QString error;
    const auto sweep = sweepSeconds(parser, error);
    const auto options = sweep ? chartOptions(parser, error) : std::nullopt;
    if (!options)
        return wrongUsage(error);

    const NetworksInput input = readNetworks(arguments[0], *sweep);
    if (!input.error.isEmpty())
        return fail(input.error);
    const Defaults& defaults = Defaults::standard();
    DisplayPipeline pipeline;
    pipeline.setShownKinds(ShownKinds::fromDefaults(defaults));
    pipeline.filterAndSetNetworks(input.networks);
    const NetworkList& networks = pipeline.filteredNetworks();
    if (const QString absent = select(options->bssids, networks); !absent.isEmpty())
        return fail(QStringLiteral("%1 holds no network %2").arg(arguments[0], absent));
    const NetworkPtr selected = selectedNetwork(networks);
    if (options->kind->isOfOneNetwork && !selected)
        return fail(QStringLiteral("%1 holds several networks %2")
                        .arg(arguments[0], options->bssids.constFirst()));

    const SystemClock clock;
    const auto chart = options->kind->make(clock);
    chart->resize(options->size);
    chart->setUnits(unitsOfSetting(defaults.integerForKey(DefaultKey::Units)));
    if (options->timescale)
        chart->setTimescale(*options->timescale);
    chart->setReferenceTime(input.lastScanTime);
    chart->setItemHighlightEnabled(!options->bssids.isEmpty());
    chart->setNetworks(networks);
    if (auto* details = qobject_cast<TSNetworkDetailsView*>(chart.get())) {
        details->setNetwork(selected);
        details->setMetric(options->metric);
    }
    const QString fault = writeChart(*chart, options->output);
    return fault.isEmpty() ? kDone : fail(fault);
}

} // namespace

const Command kChartCommand = {
    "chart", "INPUT", "Paints a chart of an input (.png, .pdf, .svg).", addOptions, run, true};

} // namespace tessara
