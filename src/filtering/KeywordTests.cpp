#include "filtering/KeywordTests.h"

#include "filtering/FilterText.h"
#include "foundation/TextOrder.h"
#include "model/Band.h"
#include "model/ChannelWidth.h"
#include "model/PhyMode.h"
#include "model/SecurityMode.h"

#include <utility>

namespace tessara {

namespace {

struct SecurityKeyword {
    const char* text;
    bool SecurityModeInfo::*kind;
};

constexpr SecurityKeyword kSecurityKeywords[] = {
    {"wpa", &SecurityModeInfo::isWPA},      {"wpa2", &SecurityModeInfo::isWPA2},
    {"wep", &SecurityModeInfo::isWEP},      {"psk", &SecurityModeInfo::isPSK},
    {"8021X", &SecurityModeInfo::is80211X},
};

bool isSame(const QString& token, const QString& keyword)
{
    return caseInsensitiveCompare(token, keyword) == 0;
}

template <typename Predicate>
FilterTest testOn(FilterColumn column, Predicate holds)
{
    return [column, holds](const FilterSubject& subject) -> std::optional<FilterColumn> {
        if (holds(*subject.network))
            return column;
        return std::nullopt;
    };
}

bool isNumber(QStringView text)
{
    const auto codePoints = text.toUcs4();
    return std::ranges::all_of(codePoints, [](char32_t c) { return QChar::isDigit(c); });
}

/// Whether 20 MHz channels of this number are in use (IEEE Std 802.11-2020, annex E).
bool isPrimaryChannel(std::int64_t number)
{
    return (number >= 1 && number <= 14) || (number >= 36 && number <= 64 && number % 4 == 0) ||
           (number >= 100 && number <= 140 && number % 4 == 0) ||
           (number >= 149 && number <= 165 && number % 4 == 1);
}

} // namespace

FilterTest securityKeyword(QStringView token)
{
    const QString bare = without(u" .\"", token);
    for (const SecurityKeyword& keyword : kSecurityKeywords) {
        if (isSame(bare, QString::fromLatin1(keyword.text))) {
            return testOn(FilterColumn::kSecurity, [kind = keyword.kind](const TSNetwork& network) {
                return network.security().*kind;
            });
        }
    }
    return {};
}

FilterTest phyLetter(QStringView token)
{
    const QString letters =
        without(u".", token).remove(QStringLiteral("80211")).remove(QStringLiteral("11")).toLower();
    for (const PhyModeInfo& info : phyModes()) {
        if (letters == QLatin1String(info.letters)) {
            return testOn(FilterColumn::kPhyMode, [mode = info.mode](const TSNetwork& network) {
                return (network.attributes().phyMode & mode) != 0;
            });
        }
    }
    return {};
}

FilterTest bandKeyword(QStringView token)
{
    const QString bare = without(u" .\"", token);
    for (const BandInfo& info : bands()) {
        if (isSame(bare, without(u" .", QString::fromLatin1(info.shortName.text())))) {
            return testOn(FilterColumn::kBand, [band = info.band](const TSNetwork& network) {
                return isChannelOfBand(network.channel(), band);
            });
        }
    }
    return {};
}

FilterTest widthKeyword(QStringView token)
{
    const QString bare = without(u" \"", token);
    for (const ChannelWidthInfo& info : channelWidths()) {
        if (isSame(bare, QStringLiteral("%1MHz").arg(info.megahertz))) {
            return testOn(FilterColumn::kChannelWidth,
                          [width = info.width](const TSNetwork& network) {
                              return network.attributes().channelWidth == width;
                          });
        }
    }
    return {};
}

FilterTest channelNumber(QStringView token)
{
    const QString bare = without(u"\"", token);
    const std::int64_t number = leadingInteger(bare);
    if (!isPrimaryChannel(number) || !isNumber(bare))
        return {};
    return testOn(FilterColumn::kChannel,
                  [number](const TSNetwork& network) { return network.channel() == number; });
}

} // namespace tessara
