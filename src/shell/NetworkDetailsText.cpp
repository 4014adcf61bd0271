#include "shell/NetworkDetailsText.h"

#include "foundation/Localized.h"
#include "model/SignalPercentage.h"

#include <algorithm>

namespace tessara {

namespace {

struct QualityLevel {
    std::int64_t leastSNR; ///< dB
    SignalQuality quality;
};
constexpr QualityLevel kQualityLevels[] = {
    {41, {"Excellent"_en}},
    {26, {"Good"_en}},
    {16, {"Poor"_en, true}},
    {11, {"Very Poor"_en, true}},
};

QString levelText(std::int64_t level, bool dBm)
{
    return dBm ? QStringLiteral("%1 dBm").arg(level)
               : QStringLiteral("%1%").arg(signalPercentage(level));
}

QString statisticText(const RunningStatistic& levels, bool dBm)
{
    if (dBm)
        return QStringLiteral("%1/%2/%3 dBm").arg(levels.avg).arg(levels.min).arg(levels.max);
    return QStringLiteral("%1%/%2%/%3%")
        .arg(signalPercentage(levels.avg))
        .arg(signalPercentage(levels.min))
        .arg(signalPercentage(levels.max));
}

QString withUnit(const QString& value, EnglishText unit)
{
    return value.isEmpty() ? QString() : QStringLiteral("%1 %2").arg(value, localized(unit));
}

} // namespace

SignalQuality signalQuality(std::int64_t snr)
{
    const auto* level = std::ranges::find_if(
        kQualityLevels, [snr](const QualityLevel& each) { return snr >= each.leastSNR; });
    return level == std::end(kQualityLevels) ? SignalQuality{"Extremely Poor"_en, true}
                                             : level->quality;
}

SignalQuality signalQuality(const TSNetwork& network, bool isScanning)
{
    if (isScanning && network.rssi() == TSDataPoint::kNoData)
        return {.text = "No Signal"_en, .isMissing = true};
    return signalQuality(network.snrLast());
}

NetworkDetailsText NetworkDetailsText::of(const TSNetwork& network, bool dBm)
{
    const RunningStatistic& snr = network.snrStatistic();
    const SecurityModeInfo& security = network.security();
    NetworkDetailsText text;
    text.ssid = network.ssid();
    text.bssid = network.bssid();
    text.vendor = network.vendor().value_or(QString());
    text.networkType = network.networkType();
    text.band = network.humanReadableChannelBand();
    text.channel = network.humanReadableChannelRange();
    text.width = network.humanReadableChannelWidth();
    text.rssi = levelText(network.rssiLast(), dBm);
    text.noise = levelText(network.noiseLast(), dBm);
    text.snr = QStringLiteral("%1 dB").arg(network.snrLast());
    text.rssiAvg = statisticText(network.rssiStatistic(), dBm);
    text.noiseAvg = statisticText(network.noiseStatistic(), dBm);
    text.snrAvg = QStringLiteral("%1/%2/%3 dB").arg(snr.avg).arg(snr.min).arg(snr.max);
    text.security = network.securityMode();
    text.wps = network.wpsValue();
    text.rates = withUnit(network.humanReadableBasicDataRates(), "Mbps"_en);
    text.allRates = withUnit(network.humanReadableDataRates(), "Mbps"_en);
    if (!network.phyMode().isEmpty())
        text.mode = QStringLiteral("802.11%1").arg(network.phyMode());
    if (security.isWPA || security.isWPA2)
        text.encryption = network.cipher();
    if (text.wps.isEmpty())
        text.wps = localized("Not Detected");
    if (network.maxRate() > 0)
        text.maxRate =
            withUnit(QString::number(static_cast<qulonglong>(network.maxRate())), "Mbps"_en);
    if (network.beaconInterval() > 0)
        text.beaconInterval = withUnit(
            QString::number(static_cast<double>(network.beaconInterval()), 'f', 1), "ms"_en);
    return text;
}

} // namespace tessara
