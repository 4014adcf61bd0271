#include "filtering/TSNetworkCollection.h"

#include "foundation/Localized.h"
#include "foundation/TextOrder.h"
#include "model/PhyMode.h"

#include <QStringList>

#include <algorithm>
#include <functional>
#include <limits>
#include <set>

namespace tessara {

namespace {

constexpr QStringView kSeparator = u", ";

// One network for all --------------------------------------------------------------------------

/// The first network of the highest ratio among those that count; none if none counts.
template <typename Counts>
const TSNetwork* highestSNR(const NetworkList& members, Counts counts)
{
    const TSNetwork* best = nullptr;
    for (const NetworkPtr& member : members) {
        if (counts(*member) && (!best || member->snrLast() > best->snrLast()))
            best = member.get();
    }
    return best;
}

// Extremes -------------------------------------------------------------------------------------

using Number = std::int64_t (TSNetwork::*)() const;
using Time = std::optional<double> (TSNetwork::*)() const;

std::int64_t greatest(const NetworkList& members, Number number)
{
    std::int64_t result = std::numeric_limits<std::int64_t>::min();
    for (const NetworkPtr& member : members)
        result = std::max(result, std::invoke(number, *member));
    return result;
}

std::int64_t smallest(const NetworkList& members, Number number)
{
    std::int64_t result = std::numeric_limits<std::int64_t>::max();
    for (const NetworkPtr& member : members)
        result = std::min(result, std::invoke(number, *member));
    return result;
}

/// The time that precedes all others; none if no member has one.
template <typename Precedes>
std::optional<double> foremost(const NetworkList& members, Time time, Precedes precedes)
{
    std::optional<double> result;
    for (const NetworkPtr& member : members) {
        const std::optional<double> candidate = std::invoke(time, *member);
        if (candidate && (!result || precedes(*candidate, *result)))
            result = candidate;
    }
    return result;
}

// One value or the placeholder -----------------------------------------------------------------

/// @param text gives the text of a member; one that has none does not count, an empty one does
template <typename Text>
QString sharedText(const NetworkList& members, Text text)
{
    std::optional<QString> shared;
    for (const NetworkPtr& member : members) {
        const std::optional<QString> candidate = std::invoke(text, *member);
        if (!candidate)
            continue;
        if (shared && *candidate != *shared)
            return TSNetworkCollection::multipleValues();
        shared = candidate;
    }
    return shared.value_or(QString());
}

std::optional<QString> noneIfEmpty(const QString& text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

// Distinct values ------------------------------------------------------------------------------

using Comparer = int (*)(const QString&, const QString&);

/// Each text once; those that compare as equal stay in the order of the members.
QString joined(QStringList texts, Comparer compare)
{
    texts.removeDuplicates();
    std::stable_sort(texts.begin(), texts.end(),
                     [compare](const QString& a, const QString& b) { return compare(a, b) < 0; });
    return texts.join(kSeparator);
}

QString joined(const std::set<std::int64_t>& numbers)
{
    QStringList texts;
    for (const std::int64_t number : numbers)
        texts += QString::number(number);
    return texts.join(kSeparator);
}

/// The texts of all members; empty ones do not count.
template <typename Text>
QStringList textsOf(const NetworkList& members, Text text)
{
    QStringList texts;
    for (const NetworkPtr& member : members) {
        const QString candidate = std::invoke(text, *member);
        if (!candidate.isEmpty())
            texts += candidate;
    }
    return texts;
}

template <typename Value>
std::set<std::int64_t> numbersOf(const NetworkList& members, Value value)
{
    std::set<std::int64_t> numbers;
    for (const NetworkPtr& member : members)
        numbers.insert(std::invoke(value, *member));
    return numbers;
}

/// The list with its unit behind it, or nothing for nothing.
QString withUnit(const QString& list, EnglishText format)
{
    return list.isEmpty() ? QString() : localized(format).arg(list);
}

} // namespace

QString TSNetworkCollection::multipleValues()
{
    return localized("<Multiple values>");
}

const TSNetwork* TSNetworkCollection::bestNetwork() const
{
    const TSNetwork* inSight = highestSNR(m_collection, [](const TSNetwork& network) {
        return network.rssi() != TSDataPoint::kNoData;
    });
    return inSight ? inSight : highestSNR(m_collection, [](const TSNetwork&) { return true; });
}

// Of the best network --------------------------------------------------------------------------

std::int64_t TSNetworkCollection::rssiValue() const
{
    const TSNetwork* best = bestNetwork();
    return best ? best->rssiValue() : TSDataPoint::kNoData;
}

std::int64_t TSNetworkCollection::noiseValue() const
{
    const TSNetwork* best = bestNetwork();
    return best ? best->noiseValue() : TSDataPoint::kNoData;
}

std::int64_t TSNetworkCollection::snrValue() const
{
    const TSNetwork* best = bestNetwork();
    return best ? best->snrValue() : 0;
}

std::int64_t TSNetworkCollection::channelUtilizationValue() const
{
    const TSNetwork* best = bestNetwork();
    return best ? best->channelUtilizationValue() : -1;
}

// Extremes -------------------------------------------------------------------------------------

std::int64_t TSNetworkCollection::rssiAvgValue() const
{
    return greatest(m_collection, &TSNetwork::rssiAvgValue);
}

std::int64_t TSNetworkCollection::rssiMinValue() const
{
    return smallest(m_collection, &TSNetwork::rssiMinValue);
}

std::int64_t TSNetworkCollection::rssiMaxValue() const
{
    return greatest(m_collection, &TSNetwork::rssiMaxValue);
}

std::int64_t TSNetworkCollection::noiseAvgValue() const
{
    return greatest(m_collection, &TSNetwork::noiseAvgValue);
}

std::int64_t TSNetworkCollection::noiseMinValue() const
{
    return smallest(m_collection, &TSNetwork::noiseMinValue);
}

std::int64_t TSNetworkCollection::noiseMaxValue() const
{
    return greatest(m_collection, &TSNetwork::noiseMaxValue);
}

std::int64_t TSNetworkCollection::snrAvgValue() const
{
    return greatest(m_collection, &TSNetwork::snrAvgValue);
}

std::int64_t TSNetworkCollection::snrMinValue() const
{
    return smallest(m_collection, &TSNetwork::snrMinValue);
}

std::int64_t TSNetworkCollection::snrMaxValue() const
{
    return greatest(m_collection, &TSNetwork::snrMaxValue);
}

// One value or the placeholder -----------------------------------------------------------------

QString TSNetworkCollection::bssidValue() const
{
    return sharedText(m_collection, &TSNetwork::apid);
}

QString TSNetworkCollection::securityValue() const
{
    return sharedText(m_collection, &TSNetwork::shortSecurityMode);
}

QString TSNetworkCollection::wpsValue() const
{
    return sharedText(m_collection, &TSNetwork::wpsValue);
}

QString TSNetworkCollection::annotationsValue() const
{
    return sharedText(m_collection, &TSNetwork::annotationsValue);
}

QString TSNetworkCollection::htProtectionValue() const
{
    return sharedText(m_collection, &TSNetwork::humanReadableHtProtection);
}

QString TSNetworkCollection::fastBssTransitionValue() const
{
    return sharedText(m_collection, &TSNetwork::humanReadableFastBssTransition);
}

QString TSNetworkCollection::vendorValue() const
{
    return sharedText(m_collection, &TSNetwork::vendor);
}

QString TSNetworkCollection::deviceNameValue() const
{
    return sharedText(m_collection, [](const TSNetwork& n) { return noneIfEmpty(n.deviceName()); });
}

QString TSNetworkCollection::stationCountValue() const
{
    return sharedText(m_collection,
                      [](const TSNetwork& n) { return noneIfEmpty(n.stationCountValue()); });
}

// Distinct values ------------------------------------------------------------------------------

QString TSNetworkCollection::ssidValue() const
{
    return joined(textsOf(m_collection, &TSNetwork::ssid), caseInsensitiveCompare);
}

QString TSNetworkCollection::channelValue() const
{
    return joined(numbersOf(m_collection, &TSNetwork::channel));
}

QString TSNetworkCollection::channelCenterValue() const
{
    return joined(numbersOf(m_collection, &TSNetwork::channelCenter));
}

QString TSNetworkCollection::centerFrequencyValue() const
{
    return joined(numbersOf(m_collection, &TSNetwork::centerFrequency));
}

QString TSNetworkCollection::streamsValue() const
{
    return joined(
        numbersOf(m_collection, [](const TSNetwork& n) { return n.attributes().streams; }));
}

QString TSNetworkCollection::channelBandValue() const
{
    QStringList names;
    for (const BandInfo& info : bands()) {
        const bool isUsed = std::ranges::any_of(m_collection, [&](const NetworkPtr& member) {
            return isChannelOfBand(member->channel(), info.band);
        });
        if (isUsed) // "5 GHz" less the unit, which all of them share
            names += QString::fromLatin1(info.shortName.text()).section(u' ', 0, 0);
    }
    return withUnit(names.join(kSeparator), "%1 GHz"_en);
}

QString TSNetworkCollection::channelWidthValue() const
{
    std::set<std::int64_t> widths;
    for (const NetworkPtr& member : m_collection) {
        // Each code is twice as wide as the one before it. It is meant that 80+80 MHz, which is no
        // single width, comes out as 320.
        const ChannelWidth width = member->attributes().channelWidth;
        if (width != ChannelWidth::kUnknown)
            widths.insert(std::int64_t{10} << static_cast<int>(width));
    }
    return withUnit(joined(widths), "%1 MHz"_en);
}

QString TSNetworkCollection::minRateValue() const
{
    return joined(textsOf(m_collection, &TSNetwork::minRateValue), localizedStandardCompare);
}

QString TSNetworkCollection::maxRateValue() const
{
    return joined(textsOf(m_collection, &TSNetwork::maxRateValue), localizedStandardCompare);
}

QString TSNetworkCollection::basicDataRatesValue() const
{
    QStringList rates;
    for (const NetworkPtr& member : m_collection)
        rates += member->basicDataRatesValue().split(kSeparator.toString(), Qt::SkipEmptyParts);
    return joined(std::move(rates), localizedStandardCompare);
}

QString TSNetworkCollection::networkTypeValue() const
{
    return joined(textsOf(m_collection, &TSNetwork::networkType), caseInsensitiveCompare);
}

QString TSNetworkCollection::countryCodeValue() const
{
    return joined(textsOf(m_collection, &TSNetwork::countryCodeValue), caseInsensitiveCompare);
}

QString TSNetworkCollection::phyModeValue() const
{
    std::int64_t modes = 0;
    for (const NetworkPtr& member : m_collection)
        modes |= member->attributes().phyMode;
    return phyModeText(modes);
}

QString TSNetworkCollection::beaconIntervalValue() const
{
    std::set<float> intervals;
    for (const NetworkPtr& member : m_collection) {
        if (member->beaconInterval() > 0)
            intervals.insert(member->beaconInterval());
    }
    QStringList texts;
    for (const float milliseconds : intervals)
        texts += QString::number(milliseconds, 'f', 1);
    return texts.join(kSeparator);
}

// Times ----------------------------------------------------------------------------------------

std::optional<double> TSNetworkCollection::firstSeenValue() const
{
    return foremost(m_collection, &TSNetwork::firstSeenValue, std::less());
}

std::optional<double> TSNetworkCollection::lastSeenValue() const
{
    return foremost(m_collection, &TSNetwork::lastSeenValue, std::greater());
}

std::optional<double> TSNetworkCollection::lastSeenElapsedSecondsValue() const
{
    return foremost(m_collection, &TSNetwork::lastSeenElapsedSecondsValue, std::less());
}

} // namespace tessara
