#include "filtering/SignalComparison.h"

#include "filtering/FilterText.h"

#include <algorithm>
#include <functional>

namespace tessara {

namespace {

struct Operator {
    QStringView text;
    bool (*holds)(std::int64_t signal, std::int64_t bound);
};

// The longer ones first, since they begin like the others.
constexpr Operator kOperators[] = {
    {u">=", [](std::int64_t signal, std::int64_t bound) { return signal >= bound; }},
    {u"<=", [](std::int64_t signal, std::int64_t bound) { return signal <= bound; }},
    {u">", [](std::int64_t signal, std::int64_t bound) { return signal > bound; }},
    {u"<", [](std::int64_t signal, std::int64_t bound) { return signal < bound; }},
};

/// dBm as per cent, without the lower bound of `signalPercentage`: from -94 to -96 dBm the result
/// is negative. That is meant: "<0%" finds the networks at the very edge.
std::int64_t comparedPercentage(std::int64_t dBm)
{
    if (dBm >= -19)
        return 100;
    if (dBm < -96)
        return 0;
    const std::int64_t d = -20 - dBm;
    return (422500 - (65 * d + 975) * d) / 4225;
}

FilterTest noNetwork()
{
    return [](const FilterSubject&) { return std::nullopt; };
}

} // namespace

FilterTest signalComparison(QStringView token)
{
    const auto* comparison = std::ranges::find_if(
        kOperators, [&](const Operator& candidate) { return token.startsWith(candidate.text); });
    if (comparison == std::end(kOperators))
        return {};

    const bool inPercent = token.endsWith(u'%');
    while (token.endsWith(u'%'))
        token.chop(1);
    // A bare operator says nothing, but "<%" asks the first network of the list for less than 0
    // per cent, and the others for nothing. That is meant, too.
    const bool isBare = token.size() < 2;
    if (isBare && !inPercent)
        return noNetwork();

    const QString rest = token.toString().remove(comparison->text.toString());
    const QStringView number = trimmedOfBlanks(rest);
    constexpr QStringView kNumerals = u"-0123456789";
    if (!std::ranges::all_of(number, [&](QChar c) { return kNumerals.contains(c); }))
        return noNetwork();

    return [holds = comparison->holds, bound = leadingInteger(number), inPercent,
            isBare](const FilterSubject& subject) -> std::optional<FilterColumn> {
        const std::int64_t dBm = subject.network->rssiLast();
        const bool asked = !isBare || subject.isFirst;
        if (asked && holds(inPercent ? comparedPercentage(dBm) : dBm, bound))
            return FilterColumn::kSignal;
        return std::nullopt;
    };
}

} // namespace tessara
