#include "cli/NetworksJSON.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tessara {

namespace {

QJsonValue number(std::int64_t value)
{
    return QJsonValue(static_cast<qint64>(value));
}

QJsonValue textOrNull(const QString& text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

void insertStatistic(QJsonObject& record, const QString& name, const RunningStatistic& statistic)
{
    record[name + QStringLiteral("Avg")] = number(statistic.avg);
    record[name + QStringLiteral("Min")] = number(statistic.min);
    record[name + QStringLiteral("Max")] = number(statistic.max);
}

QJsonArray ratesJSON(const std::vector<double>& rates)
{
    QJsonArray array;
    for (const double rate : rates)
        array.append(rate);
    return array;
}

QJsonObject recordJSON(const TSNetwork& network)
{
    const NetworkAttributes& attributes = network.attributes();
    const auto vendor = network.vendor();
    QJsonObject record{
        {QStringLiteral("bssid"), network.bssid()},
        {QStringLiteral("deviceid"), network.deviceid()},
        {QStringLiteral("apid"), network.apid()},
        {QStringLiteral("vendor"), vendor ? QJsonValue(*vendor) : QJsonValue()},
        {QStringLiteral("ssid"), network.ssid()},
        {QStringLiteral("isHidden"), network.isHidden()},
        {QStringLiteral("deviceName"), textOrNull(network.deviceName())},
        {QStringLiteral("annotations"), textOrNull(network.annotations())},
        {QStringLiteral("countryCode"), textOrNull(attributes.countryCode)},
        {QStringLiteral("channel"), number(network.channel())},
        {QStringLiteral("channelWidth"), static_cast<int>(attributes.channelWidth)},
        {QStringLiteral("channelCenter"), number(network.channelCenter())},
        {QStringLiteral("centerFrequency"), number(network.centerFrequency())},
        {QStringLiteral("secondaryChannelOffset"), attributes.secondaryChannelOffset},
        {QStringLiteral("humanReadableChannel"), network.humanReadableChannel()},
        {QStringLiteral("humanReadableChannelRange"), network.humanReadableChannelRange().text},
        {QStringLiteral("humanReadableChannelBand"), network.humanReadableChannelBand()},
        {QStringLiteral("streams"), attributes.streams},
        {QStringLiteral("stationCount"), number(attributes.stationCount)},
        {QStringLiteral("channelUtilization"), number(attributes.channelUtilization)},
        {QStringLiteral("channelUtilizationMax"), number(attributes.channelUtilizationMax)},
        {QStringLiteral("htProtection"), attributes.htProtection},
        {QStringLiteral("fastBssTransition"), attributes.fastBssTransition},
        {QStringLiteral("phyMode"), number(attributes.phyMode)},
        {QStringLiteral("securityMode"),
         number(static_cast<std::int64_t>(attributes.securityMode))},
        {QStringLiteral("shortSecurityMode"), network.shortSecurityMode()},
        {QStringLiteral("cipherType"), attributes.cipherType},
        {QStringLiteral("cipher"), network.cipher()},
        {QStringLiteral("wpsEnabled"), attributes.wpsEnabled},
        {QStringLiteral("wpsConfigured"), attributes.wpsConfigured},
        {QStringLiteral("wpsLocked"), attributes.wpsLocked},
        {QStringLiteral("rates"), ratesJSON(attributes.rates)},
        {QStringLiteral("minBasicRate"), attributes.minBasicRate},
        {QStringLiteral("maxBasicRate"), attributes.maxBasicRate},
        {QStringLiteral("humanReadableDataRates"), network.humanReadableDataRates()},
        {QStringLiteral("amendments"), QJsonArray::fromStringList(attributes.amendments)},
        {QStringLiteral("ccxDTPC"), number(attributes.ccxDTPC)},
        {QStringLiteral("ccxClientMFP"), attributes.ccxClientMFP},
        {QStringLiteral("beaconInterval"), network.beaconInterval()},
        {QStringLiteral("estimatedMCS"), network.estimatedMCS()},
        {QStringLiteral("lastSeen"), network.lastSeen()},
        {QStringLiteral("lastSeenElapsedSeconds"), network.lastSeenElapsedSeconds()},
        {QStringLiteral("rssi"), number(network.rssi())},
        {QStringLiteral("noise"), number(network.noise())},
        {QStringLiteral("rssiLast"), number(network.rssiLast())},
        {QStringLiteral("noiseLast"), number(network.noiseLast())},
        {QStringLiteral("snrLast"), number(network.snrLast())},
        {QStringLiteral("dataPoints"), number(static_cast<std::int64_t>(network.history().size()))},
    };
    insertStatistic(record, QStringLiteral("rssi"), network.rssiStatistic());
    insertStatistic(record, QStringLiteral("noise"), network.noiseStatistic());
    insertStatistic(record, QStringLiteral("snr"), network.snrStatistic());
    insertStatistic(record, QStringLiteral("snrPerc"), network.snrPercStatistic());
    return record;
}

} // namespace

void writeNetworksJSON(QTextStream& out, const DisplayPipeline& pipeline,
                       const CellContext& context, double lastScanTime)
{
    const auto identifiers =
        QJsonArray::fromStringList(pipeline.filteredColumnIdentifiers().columnIdentifiers());
    // The number in JSON's own form.
    const QByteArray time = QJsonDocument(QJsonArray{lastScanTime}).toJson(QJsonDocument::Compact);
    out << "{\"lastScanTime\": " << time.mid(1, time.size() - 2)
        << ", \"filterIdentifiers\": " << QJsonDocument(identifiers).toJson(QJsonDocument::Compact)
        << ", \"networks\": [";
    const char* separator = "\n";
    for (const NetworkPtr& network : pipeline.filteredNetworks()) {
        QJsonObject columns;
        for (const Column& column : columnRegistry()) {
            if (column.cell != CellKind::kMarker)
                columns[column.identifier] = column.text(*network, context);
        }
        const QJsonObject entry{{QStringLiteral("columns"), columns},
                                {QStringLiteral("record"), recordJSON(*network)}};
        out << separator << QJsonDocument(entry).toJson(QJsonDocument::Compact);
        separator = ",\n";
    }
    out << "\n]}\n";
}

} // namespace tessara
