#include "model/ColumnRegistry.h"

#include "foundation/Localized.h"
#include "foundation/TextOrder.h"
#include "model/SignalPercentage.h"
#include "model/TSNetwork.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

// Cell texts ----------------------------------------------------------------------------------

/// A signal or a noise in the user's unit.
QString signalText(std::int64_t dBm, const CellContext& context)
{
    return context.dBm ? QString::number(dBm) : QStringLiteral("%1%").arg(signalPercentage(dBm));
}

QString decibelText(std::int64_t decibels)
{
    return QStringLiteral("%1 dB").arg(decibels);
}

QDateTime dateOf(double time)
{
    return QDateTime::fromMSecsSinceEpoch(std::llround(time * 1000));
}

QString timeText(double time)
{
    return QLocale::c().toString(dateOf(time), QStringLiteral("yyyy/MM/dd hh:mm:ss AP"));
}

QString seenText(const TSNetwork& network, const CellContext& context)
{
    if (!context.isScanning)
        return QLocale().toString(dateOf(network.lastSeen()), QLocale::ShortFormat);
    constexpr std::int64_t kMinute = 60;
    constexpr std::int64_t kHour = 3600;
    const auto elapsed =
        static_cast<std::int64_t>(std::floor(network.lastSeenElapsedSeconds() + 0.5));
    if (elapsed < 1 && network.rssi() != TSDataPoint::kNoData)
        return localized("Just now");
    // Steps of 5 seconds keep the column calm.
    const std::int64_t seconds = std::max<std::int64_t>(elapsed / 5 * 5, 2);
    if (seconds < kMinute - 1)
        return localized("%1 sec ago").arg(seconds);
    if (seconds < kHour - 1)
        return localized("%1 min ago").arg(seconds / kMinute);
    return localized("%1 hours ago").arg(seconds / kHour); // one hour too: the plural is meant
}

QString beaconIntervalText(const TSNetwork& network)
{
    const float milliseconds = network.beaconInterval();
    return milliseconds > 0 ? QString::number(milliseconds, 'f', 1) : QString();
}

QString withUnit(const QString& value, const char* unit)
{
    return value.isEmpty() ? QString() : value + u' ' + QLatin1String(unit);
}

QString networkTypeText(const TSNetwork& network)
{
    return localized(network.isAdHoc() ? "Ad-Hoc" : "Infrastructure");
}

QString bandText(const TSNetwork& network)
{
    return QLatin1String(bandInfo(network.channelBand()).shortName);
}

// The table -----------------------------------------------------------------------------------

// A column whose cell shows its sort key.
#define TEXT_OF(expression)                                                                        \
    [](const TSNetwork& n) { return QVariant(expression); },                                       \
        [](const TSNetwork& n, const CellContext&) -> QString { return expression; }
#define SIGNAL_OF(expression)                                                                      \
    [](const TSNetwork& n) { return QVariant::fromValue<qlonglong>(expression); },                 \
        [](const TSNetwork& n, const CellContext& context) {                                       \
            return signalText(expression, context);                                                \
        }
#define DECIBELS_OF(expression)                                                                    \
    [](const TSNetwork& n) { return QVariant::fromValue<qlonglong>(expression); },                 \
        [](const TSNetwork& n, const CellContext&) { return decibelText(expression); }

constexpr double kMinimumWidth = 40;

std::vector<Column> makeRegistry()
{
    using enum Comparison;
    using enum CellKind;
    constexpr bool kHidden = true;
    constexpr bool kShown = false;
    constexpr bool kRight = true;
    constexpr bool kLeft = false;
    return {
        {QStringLiteral("IS_USER_HIDDEN"), "", "The colour of the network in the charts.", kShown,
         4, 4, kNone, kMarker, kLeft, [](const TSNetwork&) { return QVariant(); },
         [](const TSNetwork&, const CellContext&) { return QString(); }},
        {QStringLiteral("BSSID"), "BSSID",
         "The address of the access point's radio, the identifier of the basic service set.",
         kShown, 172, kMinimumWidth, kStandard, kText, kLeft, TEXT_OF(n.bssid())},
        {QStringLiteral("SSID"), "Network Name",
         "The name that the network announces (SSID). A padlock marks a protected network.", kShown,
         160, kMinimumWidth, kStandard, kTextAndImage, kLeft, TEXT_OF(n.ssid())},
        {QStringLiteral("BEACON_INT"), "Beacon Interval",
         "Time between two beacons of the access point.", kHidden, 110, kMinimumWidth, kStandard,
         kText, kRight, [](const TSNetwork& n) { return QVariant(beaconIntervalText(n)); },
         [](const TSNetwork& n, const CellContext&) {
             return withUnit(beaconIntervalText(n), "ms");
         }},
        {QStringLiteral("DEVICE_NAME"), "Device Name",
         "The name that the access point gives itself, in its beacons or on the local network.",
         kHidden, 120, kMinimumWidth, kCaseInsensitive, kText, kLeft, TEXT_OF(n.deviceName())},
        {QStringLiteral("VENDOR"), "Vendor", "The maker of the access point, told by its BSSID.",
         kShown, 160, kMinimumWidth, kCaseInsensitive, kText, kLeft,
         TEXT_OF(n.vendor().value_or(QString()))},
        {QStringLiteral("ANNOTATIONS"), "Annotations", "Your own note on this network.", kHidden, 0,
         kMinimumWidth, kCaseInsensitive, kText, kLeft, TEXT_OF(n.annotations())},
        {QStringLiteral("RSSI"), "Signal", "The last signal strength received.", kShown, 135, 60,
         kNumber, kLevel, kLeft, SIGNAL_OF(n.rssiLast())},
        {QStringLiteral("RSSI_AVG"), "Avg Signal", "The average of all signal readings.", kHidden,
         0, kMinimumWidth, kNumber, kText, kLeft, SIGNAL_OF(n.rssiStatistic().avg)},
        {QStringLiteral("RSSI_MIN"), "Min Signal", "The weakest signal read.", kHidden, 0,
         kMinimumWidth, kNumber, kText, kLeft, SIGNAL_OF(n.rssiStatistic().min)},
        {QStringLiteral("RSSI_MAX"), "Max Signal", "The strongest signal read.", kHidden, 0,
         kMinimumWidth, kNumber, kText, kLeft, SIGNAL_OF(n.rssiStatistic().max)},
        {QStringLiteral("NOISE"), "Noise", "The last noise level measured on the channel.", kHidden,
         0, 60, kNumber, kLevel, kLeft, SIGNAL_OF(n.noiseLast())},
        {QStringLiteral("NOISE_AVG"), "Avg Noise", "The average of all noise readings.", kHidden, 0,
         kMinimumWidth, kNumber, kText, kLeft, SIGNAL_OF(n.noiseStatistic().avg)},
        {QStringLiteral("NOISE_MIN"), "Min Noise", "The lowest noise read.", kHidden, 0,
         kMinimumWidth, kNumber, kText, kLeft, SIGNAL_OF(n.noiseStatistic().min)},
        {QStringLiteral("NOISE_MAX"), "Max Noise", "The highest noise read.", kHidden, 0,
         kMinimumWidth, kNumber, kText, kLeft, SIGNAL_OF(n.noiseStatistic().max)},
        {QStringLiteral("SNR"), "SNR", "The last ratio of signal to noise.", kHidden, 0, 75,
         kNumber, kLevel, kLeft, DECIBELS_OF(n.snrLast())},
        {QStringLiteral("SNR_AVG"), "Avg SNR", "The average ratio of signal to noise.", kHidden, 0,
         kMinimumWidth, kNumber, kText, kLeft, DECIBELS_OF(n.snrStatistic().avg)},
        {QStringLiteral("SNR_MIN"), "Min SNR", "The lowest ratio of signal to noise.", kHidden, 0,
         kMinimumWidth, kNumber, kText, kLeft, DECIBELS_OF(n.snrStatistic().min)},
        {QStringLiteral("SNR_MAX"), "Max SNR", "The highest ratio of signal to noise.", kHidden, 0,
         kMinimumWidth, kNumber, kText, kLeft, DECIBELS_OF(n.snrStatistic().max)},
        {QStringLiteral("CHANNEL"), "Channel", "The primary channel.", kShown, 0, kMinimumWidth,
         kStandard, kText, kRight, TEXT_OF(QString::number(n.channel()))},
        {QStringLiteral("CENTER_FREQUENCY"), "Center Frequency",
         "The centre frequency of the primary channel.", kHidden, 0, kMinimumWidth, kStandard,
         kText, kRight,
         [](const TSNetwork& n) { return QVariant(QString::number(n.centerFrequency())); },
         [](const TSNetwork& n, const CellContext&) {
             return withUnit(QString::number(n.centerFrequency()), "MHz");
         }},
        {QStringLiteral("CHANNEL_BAND"), "Band", "The frequency band of the channel.", kShown, 0,
         kMinimumWidth, kStandard, kText, kRight, TEXT_OF(bandText(n))},
        {QStringLiteral("NETWORK_TYPE"), "Network Type",
         "Infrastructure for an access point, Ad-Hoc for stations among themselves.", kHidden, 0,
         kMinimumWidth, kCaseInsensitive, kText, kLeft, TEXT_OF(networkTypeText(n))},
        {QStringLiteral("FIRST_SEEN"), "First Seen", "Time of the first sample of the history.",
         kHidden, 130, kMinimumWidth, kNumber, kText, kLeft,
         [](const TSNetwork& n) {
             const auto first = n.firstDataPoint();
             return first ? QVariant(first->timestamp()) : QVariant();
         },
         [](const TSNetwork& n, const CellContext&) {
             const auto first = n.firstDataPoint();
             return first ? timeText(first->timestamp()) : QString();
         }},
        {QStringLiteral("LAST_SEEN"), "Last Seen", "Time of the last scan that saw the network.",
         kHidden, 130, kMinimumWidth, kNumber, kText, kLeft,
         [](const TSNetwork& n) { return QVariant(n.lastSeen()); },
         [](const TSNetwork& n, const CellContext&) { return timeText(n.lastSeen()); }},
        {QStringLiteral("SEEN"), "Seen", "How long ago the network was last seen.", kShown, 130,
         kMinimumWidth, kNumber, kText, kLeft,
         [](const TSNetwork& n) { return QVariant(n.lastSeenElapsedSeconds()); }, seenText},
    };
}

#undef TEXT_OF
#undef SIGNAL_OF
#undef DECIBELS_OF

} // namespace

std::span<const Column> columnRegistry()
{
    static const std::vector<Column> registry = makeRegistry();
    return registry;
}

const Column* columnWithIdentifier(QStringView identifier)
{
    const auto registry = columnRegistry();
    const auto column = std::ranges::find(registry, identifier, &Column::identifier);
    return column == registry.end() ? nullptr : &*column;
}

int compareSortKeys(const Column& column, const QVariant& a, const QVariant& b)
{
    switch (column.comparison) {
    case Comparison::kStandard:
        return localizedStandardCompare(a.toString(), b.toString());
    case Comparison::kCaseInsensitive:
        return caseInsensitiveCompare(a.toString(), b.toString());
    case Comparison::kNumber: {
        const double left = a.toDouble();
        const double right = b.toDouble();
        return left < right ? -1 : left > right ? 1 : 0;
    }
    case Comparison::kNone:
        break;
    }
    return 0;
}

} // namespace tessara
