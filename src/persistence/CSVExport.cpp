#include "persistence/CSVExport.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "model/SignalPercentage.h"
#include "model/TimeText.h"
#include "persistence/WholeFile.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

bool isSignal(QStringView identifier)
{
    return identifier.startsWith(u"RSSI") || identifier.startsWith(u"NOISE");
}

/// The unit of a column's cells, as its title tells it.
QString unitSuffix(QStringView identifier, std::int64_t units)
{
    if (isSignal(identifier))
        return units != 0 ? QStringLiteral(" (dBm)") : QStringLiteral(" (%)");
    if (identifier.startsWith(u"SNR"))
        return QStringLiteral(" (dB)");
    if (identifier.startsWith(u"BEACON"))
        return QStringLiteral(" (ms)");
    if (identifier == u"CHANNEL_UTILIZATION")
        return QStringLiteral(" (%)");
    if (identifier.contains(u"RATE"))
        return QStringLiteral(" (Mbps)");
    if (identifier == u"CENTER_FREQUENCY")
        return QStringLiteral(" (MHz)");
    return {};
}

bool isQuoted(QStringView identifier)
{
    constexpr QStringView kQuoted[] = {u"SSID",        u"VENDOR",      u"CHANNEL_BAND",
                                       u"ANNOTATIONS", u"DEVICE_NAME", u"BASIC_RATES"};
    return std::ranges::find(kQuoted, identifier) != std::end(kQuoted);
}

/// A column's value is what it sorts by.
QString numberText(const Column& column, std::int64_t value, const NetworkRow& network,
                   bool usingPercentage)
{
    const QStringView identifier = column.identifier;
    // A network that never had a reading has no noise and no ratio either.
    const bool isLastReading =
        identifier == u"RSSI" || identifier == u"NOISE" || identifier == u"SNR";
    if (isLastReading && network.rssiValue() == TSDataPoint::kNoData)
        return {};
    if (identifier == u"CHANNEL_UTILIZATION" && value < 0)
        return {};
    return QString::number(usingPercentage && isSignal(identifier) ? signalPercentage(value)
                                                                   : value);
}

QString cellText(const Column& column, const NetworkRow& network, bool usingPercentage)
{
    const QStringView identifier = column.identifier;
    if (identifier == u"SEEN")
        return {}; // a title without cells, and it is meant so
    const QVariant value = column.sortKey(network);
    switch (value.typeId()) {
    case QMetaType::LongLong:
        return numberText(column, value.toLongLong(), network, usingPercentage);
    case QMetaType::Double:
        return timeText(value.toDouble());
    default:
        break;
    }
    QString text = value.toString();
    if (identifier == u"BASIC_RATES")
        text.remove(QStringLiteral(".0"));
    return isQuoted(identifier) ? stringByAddingQuotationMarksForCSV(text) : text;
}

} // namespace

QString stringByAddingQuotationMarksForCSV(const QString& text)
{
    return text.contains(u',') ? u'"' + text + u'"' : text;
}

QString toCSV(const NetworkRow& network, const std::vector<const Column*>& columns,
              bool usingPercentage)
{
    QStringList cells;
    for (const Column* column : columns)
        cells.append(cellText(*column, network, usingPercentage));
    return cells.join(u',');
}

QByteArray csvText(const NetworkList& networks, const std::vector<const Column*>& columns,
                   std::int64_t units)
{
    std::vector<const Column*> written;
    QStringList titles;
    for (const Column* column : columns) {
        if (column->cell == CellKind::kMarker)
            continue;
        titles.append(localized(column->title) + unitSuffix(column->identifier, units));
        written.push_back(column);
    }
    QByteArray text = titles.join(u',').toUtf8() + '\n';
    for (const NetworkPtr& network : networks)
        text += toCSV(*network, written, units == 0).toUtf8() + '\n';
    return text;
}

QString CSVExport::suggestedFileName(double now)
{
    return QStringLiteral("tessara-%1_%2.csv")
        .arg(QLatin1String(TESSARA_VERSION),
             QDateTime::fromMSecsSinceEpoch(std::llround(now * 1000))
                 .toString(QStringLiteral("yyyyMMdd_HHmmss")));
}

void CSVExport::doExportWithFileInBackground(const Request& request)
{
    // The records belong to this thread and go on changing: the other one gets their text.
    m_work.start(QStringLiteral("%1 \"%2\"").arg(localized("Exporting"), request.filename),
                 localized("The export failed."),
                 [path = request.filename,
                  text = csvText(request.networks, request.identifiers,
                                 Defaults::standard().integerForKey(DefaultKey::Units))] {
                     return writeWholeFile(path, text);
                 });
}

} // namespace tessara
