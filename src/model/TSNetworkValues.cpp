#include "model/TSNetwork.h"

#include "foundation/Localized.h"
#include "model/EstimatedMCS.h"
#include "model/PhyMode.h"
#include "model/RateText.h"

#include <array>
#include <cmath>

namespace tessara {

namespace {

/// The text of a code that counts from 0; empty for a code beyond the table.
template <std::size_t count>
QString textOf(const std::array<const char*, count>& texts, int code)
{
    return code >= 0 && code < static_cast<int>(count)
               ? QString::fromLatin1(texts[static_cast<std::size_t>(code)])
               : QString();
}

} // namespace

QString TSNetwork::humanReadableChannelBand() const
{
    return localized(tessara::humanReadableChannelBand(channel()));
}

QString TSNetwork::shortChannelBand() const
{
    return localized(bandInfo(channelBand()).shortName);
}

QString TSNetwork::humanReadableChannelWidth() const
{
    const auto width = megahertz(m_attributes.channelWidth);
    return width ? localized("%1 MHz").arg(*width) : QString();
}

QString TSNetwork::phyMode() const
{
    return phyModeText(m_attributes.phyMode);
}

QString TSNetwork::humanReadableHtProtection() const
{
    constexpr std::array kTexts = {"None", "Non Member", "20 MHz", "Non-HT Mixed"};
    return textOf(kTexts, m_attributes.htProtection);
}

QString TSNetwork::humanReadableFastBssTransition() const
{
    constexpr std::array kTexts = {"OTA", "OTD", "OTA (Adaptive)", "OTD (Adaptive)"};
    return textOf(kTexts, m_attributes.fastBssTransition);
}

QString TSNetwork::networkType() const
{
    return localized(isAdHoc() ? "Ad-Hoc"_en : "Infrastructure"_en);
}

int TSNetwork::estimatedMCS() const
{
    return tessara::estimatedMCS(snr(), m_attributes.phyMode, m_attributes.channelWidth);
}

float TSNetwork::minRate() const
{
    const auto& rates = m_attributes.rates;
    return rates.empty() ? 0 : static_cast<float>(std::abs(rates.front()));
}

float TSNetwork::maxRate() const
{
    const auto& rates = m_attributes.rates;
    return rates.empty() ? 0 : static_cast<float>(std::abs(rates.back()));
}

QString TSNetwork::humanReadableDataRates() const
{
    return tessara::humanReadableDataRates(m_attributes.rates);
}

QString TSNetwork::humanReadableBasicDataRates() const
{
    return tessara::humanReadableBasicDataRates(m_attributes.rates);
}

QString TSNetwork::securityMode() const
{
    return localized(security().name);
}

QString TSNetwork::shortSecurityMode() const
{
    return QString::fromLatin1(security().shortName);
}

QString TSNetwork::cipher() const
{
    // By the whole set: a mix without a name of its own counts as none.
    switch (m_attributes.cipherType) {
    case 1:
        return QStringLiteral("WEP-40");
    case 2:
        return QStringLiteral("TKIP");
    case 4:
        return QStringLiteral("AES");
    case 6:
        return QStringLiteral("AES + TKIP");
    case 8:
        return QStringLiteral("WEP-104");
    default:
        return QStringLiteral("None");
    }
}

QString TSNetwork::stationCountValue() const
{
    return stationCount() < 0 ? QString() : QString::number(stationCount());
}

QString TSNetwork::minRateValue() const
{
    return rateValue(minRate());
}

QString TSNetwork::maxRateValue() const
{
    return rateValue(maxRate());
}

QString TSNetwork::wpsValue() const
{
    if (!m_attributes.wpsEnabled)
        return {};
    if (m_attributes.wpsLocked)
        return localized("Locked");
    return localized(m_attributes.wpsConfigured ? "Configured"_en : "Not Configured"_en);
}

QString TSNetwork::beaconIntervalValue() const
{
    const float milliseconds = beaconInterval();
    return milliseconds > 0 ? QString::number(milliseconds, 'f', 1) : QString();
}

std::optional<double> TSNetwork::firstSeenValue() const
{
    const auto first = firstDataPoint();
    return first ? std::optional(first->timestamp()) : std::nullopt;
}

} // namespace tessara
