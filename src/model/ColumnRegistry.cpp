#include "model/ColumnRegistry.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "foundation/TextOrder.h"
#include "model/SignalPercentage.h"
#include "model/TSNetwork.h"
#include "model/TimeText.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <type_traits>

namespace tessara {

namespace {

// Sort keys -----------------------------------------------------------------------------------

/// The value itself: a text, a number, or a time that may be absent.
template <auto value>
QVariant keyOf(const NetworkRow& row)
{
    const auto key = (row.*value)();
    using Key = std::remove_cvref_t<decltype(key)>;
    if constexpr (std::is_same_v<Key, std::int64_t>)
        return QVariant::fromValue<qlonglong>(key);
    else if constexpr (std::is_same_v<Key, std::optional<double>>)
        return key ? QVariant(*key) : QVariant();
    else
        return QVariant(key);
}

QVariant noKey(const NetworkRow&)
{
    return {};
}

// Cell texts ----------------------------------------------------------------------------------

QString noText(const NetworkRow&, const CellContext&)
{
    return {};
}

template <auto value>
QString textOf(const NetworkRow& row, const CellContext&)
{
    return (row.*value)();
}

/// A signal or a noise in the user's unit.
template <auto value>
QString signalOf(const NetworkRow& row, const CellContext& context)
{
    const std::int64_t dBm = (row.*value)();
    return context.dBm ? QString::number(dBm) : QStringLiteral("%1%").arg(signalPercentage(dBm));
}

template <auto value>
QString decibelsOf(const NetworkRow& row, const CellContext&)
{
    return QStringLiteral("%1 dB").arg((row.*value)());
}

QString withUnit(const QString& value, const QString& unit)
{
    return value.isEmpty() ? QString() : value + u' ' + unit;
}

template <auto value>
QString megabitsOf(const NetworkRow& row, const CellContext&)
{
    return withUnit((row.*value)(), localized("Mbps"));
}

QString beaconIntervalText(const NetworkRow& row, const CellContext&)
{
    return withUnit(row.beaconIntervalValue(), QStringLiteral("ms"));
}

QString centerFrequencyText(const NetworkRow& row, const CellContext&)
{
    return withUnit(row.centerFrequencyValue(), QStringLiteral("MHz"));
}

QString streamsText(const NetworkRow& row, const CellContext&)
{
    const QString streams = row.streamsValue();
    return streams == QLatin1String("0") ? QString() : streams;
}

QString channelUtilizationText(const NetworkRow& row, const CellContext&)
{
    const std::int64_t percent = row.channelUtilizationValue();
    return percent < 0 ? QString() : QStringLiteral("%1%").arg(percent);
}

template <auto value>
QString timeOf(const NetworkRow& row, const CellContext&)
{
    const std::optional<double> time = (row.*value)();
    return time ? timeText(*time) : QString();
}

QString seenText(const NetworkRow& row, const CellContext& context)
{
    if (!context.isScanning) {
        const auto time = row.lastSeenValue();
        return time ? mediumTimeText(*time) : QString();
    }
    constexpr std::int64_t kMinute = 60;
    constexpr std::int64_t kHour = 3600;
    const TSNetwork* network = row.bestNetwork();
    const auto sinceLastSeen = row.lastSeenElapsedSecondsValue();
    if (!network || !sinceLastSeen)
        return {};
    const auto elapsed = static_cast<std::int64_t>(std::floor(*sinceLastSeen + 0.5));
    if (elapsed < 1 && network->rssi() != TSDataPoint::kNoData)
        return localized("Just now");
    // Steps of 5 seconds keep the column calm.
    const std::int64_t seconds = std::max<std::int64_t>(elapsed / 5 * 5, 2);
    if (seconds < kMinute - 1)
        return localized("%1 sec ago").arg(seconds);
    if (seconds < kHour - 1)
        return localized("%1 min ago").arg(seconds / kMinute);
    return localized("%1 hours ago").arg(seconds / kHour); // one hour too: the plural is meant
}

// The table -----------------------------------------------------------------------------------

constexpr bool kHidden = true;
constexpr bool kShown = false;
constexpr bool kRight = true;
constexpr bool kLeft = false;
constexpr double kMinimum = 40;

template <auto value>
Column textColumn(const char* identifier, EnglishText title, EnglishText description, bool hidden,
                  double width, Comparison comparison, bool alignsRight = kLeft)
{
    return {QString::fromLatin1(identifier),
            title,
            description,
            hidden,
            width,
            kMinimum,
            comparison,
            CellKind::kText,
            alignsRight,
            keyOf<value>,
            textOf<value>};
}

/// A column of readings: its cells are bars if it has a minimum width of its own for them.
template <auto value>
Column readingColumn(const char* identifier, EnglishText title, EnglishText description,
                     bool hidden, QString (*text)(const NetworkRow&, const CellContext&),
                     double width = 0, double barMinimum = 0)
{
    const bool isLevel = barMinimum > 0;
    return {QString::fromLatin1(identifier),
            title,
            description,
            hidden,
            width,
            isLevel ? barMinimum : kMinimum,
            Comparison::kNumber,
            isLevel ? CellKind::kLevel : CellKind::kText,
            kLeft,
            keyOf<value>,
            text};
}

/// The same column with cells that do not show the value as it stands.
Column showing(Column column, QString (*text)(const NetworkRow&, const CellContext&))
{
    column.text = text;
    return column;
}

Column with(Column column, CellKind cell)
{
    column.cell = cell;
    return column;
}

std::vector<Column> makeRegistry()
{
    using Row = NetworkRow;
    using enum Comparison;
    return {
        {QStringLiteral("IS_USER_HIDDEN"), EnglishText(),
         "The colour of the network in the charts."_en, kShown, 4, 4, kNone, CellKind::kMarker,
         kLeft, noKey, noText},
        textColumn<&Row::bssidValue>(
            "BSSID", "BSSID"_en,
            "The address of the access point's radio, the identifier of the basic service set."_en,
            kShown, 172, kStandard),
        with(textColumn<&Row::ssidValue>("SSID", "Network Name"_en,
                                         "The name that the network announces (SSID)."_en, kShown,
                                         160, kStandard),
             CellKind::kTextAndImage),
        showing(textColumn<&Row::beaconIntervalValue>(
                    "BEACON_INT", "Beacon Interval"_en,
                    "Time between two beacons of the access point."_en, kHidden, 110, kStandard,
                    kRight),
                beaconIntervalText),
        textColumn<&Row::deviceNameValue>(
            "DEVICE_NAME", "Device Name"_en,
            "The name that the access point gives itself, in its beacons or on the local "
            "network."_en,
            kHidden, 120, kCaseInsensitive),
        textColumn<&Row::vendorValue>("VENDOR", "Vendor"_en,
                                      "The maker of the access point, told by its BSSID."_en,
                                      kShown, 160, kCaseInsensitive),
        textColumn<&Row::annotationsValue>("ANNOTATIONS", "Annotations"_en,
                                           "Your own note on this network."_en, kHidden, 120,
                                           kCaseInsensitive),
        readingColumn<&Row::rssiValue>("RSSI", "Signal"_en, "The last signal strength received."_en,
                                       kShown, signalOf<&Row::rssiValue>, 135, 60),
        readingColumn<&Row::rssiAvgValue>("RSSI_AVG", "Avg Signal"_en,
                                          "The average of all signal readings."_en, kHidden,
                                          signalOf<&Row::rssiAvgValue>),
        readingColumn<&Row::rssiMinValue>("RSSI_MIN", "Min Signal"_en,
                                          "The weakest signal read."_en, kHidden,
                                          signalOf<&Row::rssiMinValue>),
        readingColumn<&Row::rssiMaxValue>("RSSI_MAX", "Max Signal"_en,
                                          "The strongest signal read."_en, kHidden,
                                          signalOf<&Row::rssiMaxValue>),
        readingColumn<&Row::noiseValue>("NOISE", "Noise"_en,
                                        "The last noise level measured on the channel."_en, kHidden,
                                        signalOf<&Row::noiseValue>, 110, 60),
        readingColumn<&Row::noiseAvgValue>("NOISE_AVG", "Avg Noise"_en,
                                           "The average of all noise readings."_en, kHidden,
                                           signalOf<&Row::noiseAvgValue>),
        readingColumn<&Row::noiseMinValue>("NOISE_MIN", "Min Noise"_en, "The lowest noise read."_en,
                                           kHidden, signalOf<&Row::noiseMinValue>),
        readingColumn<&Row::noiseMaxValue>("NOISE_MAX", "Max Noise"_en,
                                           "The highest noise read."_en, kHidden,
                                           signalOf<&Row::noiseMaxValue>),
        readingColumn<&Row::snrValue>("SNR", "SNR"_en, "The last ratio of signal to noise."_en,
                                      kHidden, decibelsOf<&Row::snrValue>, 110, 75),
        readingColumn<&Row::snrAvgValue>("SNR_AVG", "Avg SNR"_en,
                                         "The average ratio of signal to noise."_en, kHidden,
                                         decibelsOf<&Row::snrAvgValue>),
        readingColumn<&Row::snrMinValue>("SNR_MIN", "Min SNR"_en,
                                         "The lowest ratio of signal to noise."_en, kHidden,
                                         decibelsOf<&Row::snrMinValue>),
        readingColumn<&Row::snrMaxValue>("SNR_MAX", "Max SNR"_en,
                                         "The highest ratio of signal to noise."_en, kHidden,
                                         decibelsOf<&Row::snrMaxValue>),
        textColumn<&Row::channelValue>("CHANNEL", "Channel"_en, "The primary channel."_en, kShown,
                                       0, kStandard, kRight),
        showing(textColumn<&Row::centerFrequencyValue>(
                    "CENTER_FREQUENCY", "Center Frequency"_en,
                    "The centre frequency of the primary channel."_en, kHidden, 0, kStandard,
                    kRight),
                centerFrequencyText),
        textColumn<&Row::channelCenterValue>(
            "CHANNEL_CENTER", "Center Channel"_en,
            "The channel number at the centre of all that the network occupies."_en, kHidden, 0,
            kStandard, kRight),
        textColumn<&Row::channelWidthValue>("CHANNEL_WIDTH", "Width"_en,
                                            "The width of the channel that the network uses."_en,
                                            kShown, 0, kStandard, kRight),
        textColumn<&Row::channelBandValue>("CHANNEL_BAND", "Band"_en,
                                           "The frequency band of the channel."_en, kShown, 0,
                                           kStandard, kRight),
        showing(textColumn<&Row::streamsValue>(
                    "STREAMS", "Streams"_en,
                    "The most spatial streams that the access point can send at once."_en, kHidden,
                    0, kStandard, kRight),
                streamsText),
        textColumn<&Row::stationCountValue>(
            "STATION_COUNT", "Stations"_en,
            "Stations associated with the access point, as it announces them."_en, kHidden, 0,
            kStandard, kRight),
        readingColumn<&Row::channelUtilizationValue>(
            "CHANNEL_UTILIZATION", "Ch. Utilization"_en,
            "The share of time in which the channel is busy, as the access point announces it."_en,
            kHidden, channelUtilizationText, 125, 60),
        textColumn<&Row::phyModeValue>("PHY_MODE", "Mode"_en,
                                       "The physical layers in use, by the letters of 802.11."_en,
                                       kShown, 0, kStandard),
        textColumn<&Row::htProtectionValue>(
            "HT_PROTECTION", "HT Protection"_en,
            "How 802.11n transmissions are protected from older or narrower stations."_en, kHidden,
            110, kCaseInsensitive),
        textColumn<&Row::fastBssTransitionValue>(
            "FAST_BSS_TRANSITION", "Fast Transition"_en,
            "How stations may change over to another access point (802.11r): over the air (OTA) or "
            "over the distribution system (OTD)."_en,
            kHidden, 120, kCaseInsensitive),
        textColumn<&Row::countryCodeValue>("CC", "Country"_en,
                                           "The country whose rules the access point announces."_en,
                                           kHidden, 0, kCaseInsensitive),
        showing(textColumn<&Row::basicDataRatesValue>(
                    "BASIC_RATES", "Basic Rates"_en,
                    "The rates that every station of the network must support."_en, kHidden, 150,
                    kStandard),
                megabitsOf<&Row::basicDataRatesValue>),
        showing(textColumn<&Row::minRateValue>("MIN_RATE", "Min Rate"_en,
                                               "The lowest rate announced."_en, kHidden, 90,
                                               kStandard, kRight),
                megabitsOf<&Row::minRateValue>),
        showing(textColumn<&Row::maxRateValue>("MAX_RATE", "Max Rate"_en,
                                               "The highest rate that follows from what the access "
                                               "point announces."_en,
                                               kShown, 110, kStandard, kRight),
                megabitsOf<&Row::maxRateValue>),
        textColumn<&Row::securityValue>("SECURITY_MODE", "Security"_en,
                                        "How the network is protected; empty if it is open."_en,
                                        kShown, 140, kCaseInsensitive),
        textColumn<&Row::wpsValue>("WPS", "WPS"_en, "The state of Wi-Fi Protected Setup."_en,
                                   kHidden, 110, kStandard),
        textColumn<&Row::networkTypeValue>(
            "NETWORK_TYPE", "Network Type"_en,
            "Infrastructure for an access point, Ad-Hoc for stations among themselves."_en, kHidden,
            110, kCaseInsensitive),
        readingColumn<&Row::firstSeenValue>("FIRST_SEEN", "First Seen"_en,
                                            "Time of the first sample of the history."_en, kHidden,
                                            timeOf<&Row::firstSeenValue>, 130),
        readingColumn<&Row::lastSeenValue>("LAST_SEEN", "Last Seen"_en,
                                           "Time of the last scan that saw the network."_en,
                                           kHidden, timeOf<&Row::lastSeenValue>, 130),
        readingColumn<&Row::lastSeenElapsedSecondsValue>(
            "SEEN", "Seen"_en, "How long ago the network was last seen."_en, kShown, seenText, 130),
    };
}

} // namespace

CellContext CellContext::fromDefaults(bool isScanning)
{
    return {Defaults::standard().integerForKey(DefaultKey::Units) == 1, isScanning};
}

std::span<const Column> columnRegistry()
{
    static const std::vector<Column> registry = makeRegistry();
    return registry;
}

std::vector<const Column*> allColumns()
{
    std::vector<const Column*> columns;
    for (const Column& column : columnRegistry())
        columns.push_back(&column);
    return columns;
}

const Column* columnWithIdentifier(QStringView identifier)
{
    const auto registry = columnRegistry();
    const auto column = std::ranges::find(registry, identifier, &Column::identifier);
    return column == registry.end() ? nullptr : &*column;
}

SortKey::SortKey(const Column& column, const QVariant& key)
{
    switch (column.comparison) {
    case Comparison::kStandard:
        m_value = localizedStandardSortKey(key.toString());
        break;
    case Comparison::kCaseInsensitive:
        m_value = key.toString();
        break;
    case Comparison::kNumber:
        m_value = key.toDouble();
        break;
    case Comparison::kNone:
        break;
    }
}

int SortKey::compare(const SortKey& a, const SortKey& b)
{
    if (const double* left = std::get_if<double>(&a.m_value)) {
        const double right = std::get<double>(b.m_value);
        return *left < right ? -1 : *left > right ? 1 : 0;
    }
    if (const auto* left = std::get_if<QCollatorSortKey>(&a.m_value))
        return left->compare(std::get<QCollatorSortKey>(b.m_value));
    if (const QString* left = std::get_if<QString>(&a.m_value))
        return caseInsensitiveCompare(*left, std::get<QString>(b.m_value));
    return 0;
}

} // namespace tessara
