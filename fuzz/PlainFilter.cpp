#include "PlainFilter.h"

#include <QSet>

#include <limits>
#include <set>
#include <vector>

namespace tessara::plain {

namespace {

using Identifiers = QMap<QString, QString>;

// Texts ---------------------------------------------------------------------------------------

/// The UTF-16 units of a text without case.
std::vector<char16_t> withoutCase(const QString& text)
{
    std::vector<char16_t> units;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            const char32_t folded =
                QChar::toCaseFolded(QChar::surrogateToUcs4(text[i], text[i + 1]));
            units.push_back(QChar::highSurrogate(folded));
            units.push_back(QChar::lowSurrogate(folded));
            ++i;
        } else {
            units.push_back(text[i].toCaseFolded().unicode());
        }
    }
    return units;
}

bool isEqualWithoutCase(const QString& a, const QString& b)
{
    return withoutCase(a) == withoutCase(b);
}

bool holdsWithoutCase(const QString& text, const QString& part)
{
    const auto all = withoutCase(text);
    const auto wanted = withoutCase(part);
    for (std::size_t start = 0; start + wanted.size() <= all.size(); ++start) {
        std::size_t same = 0;
        while (same < wanted.size() && all[start + same] == wanted[same])
            ++same;
        if (same == wanted.size())
            return true;
    }
    return false;
}

bool isBlank(QChar c)
{
    return c == u'\t' || c.category() == QChar::Separator_Space;
}

QString trimmed(QString text)
{
    while (!text.isEmpty() && isBlank(text[0]))
        text.remove(0, 1);
    while (!text.isEmpty() && isBlank(text[text.size() - 1]))
        text.chop(1);
    return text;
}

QString without(QString text, std::initializer_list<const char*> parts)
{
    for (const char* part : parts)
        text.replace(QString::fromLatin1(part), QString());
    return text;
}

std::int64_t integerValue(const QString& text)
{
    using Limits = std::numeric_limits<std::int64_t>;
    const bool negative = text.startsWith(u'-');
    std::int64_t value = 0;
    for (qsizetype i = negative ? 1 : 0; i < text.size(); ++i) {
        const int digit = text[i].unicode() - u'0';
        if (digit < 0 || digit > 9)
            break;
        if (value > (Limits::max() - digit) / 10)
            return negative ? Limits::min() : Limits::max();
        value = value * 10 + digit;
    }
    return negative ? -value : value;
}

// Stages --------------------------------------------------------------------------------------

std::int64_t percentOf(std::int64_t r)
{
    if (r == -120)
        return 0;
    if (r >= -19)
        return 100;
    if (r < -96)
        return 0;
    const std::int64_t d = -20 - r;
    return (422500 - (65 * d + 975) * d) / 4225;
}

/// What is known of a term while it is tried against one network after the other.
struct TermState {
    QString token;
    bool percent = false;
};

bool comparisonHolds(const TSNetwork& network, TermState& state)
{
    if (state.token.size() < 2)
        return false;
    if (state.token.endsWith(u'%')) {
        while (state.token.endsWith(u'%'))
            state.token.chop(1);
        while (state.token.startsWith(u'%'))
            state.token.remove(0, 1);
        state.percent = true;
    }
    std::int64_t left = network.rssiLast();
    if (state.percent)
        left = percentOf(left);
    for (const char* text : {">=", "<=", ">", "<"}) {
        const QString sign = QString::fromLatin1(text);
        if (!state.token.startsWith(sign))
            continue;
        const QString rest = trimmed(without(state.token, {text}));
        for (const QChar c : rest) {
            if (!QStringLiteral("-0123456789").contains(c))
                return false;
        }
        const std::int64_t number = integerValue(rest);
        if (sign == QStringLiteral(">="))
            return left >= number;
        if (sign == QStringLiteral("<="))
            return left <= number;
        if (sign == QStringLiteral(">"))
            return left > number;
        return left < number;
    }
    return false;
}

bool isChannelNumber(const QString& text)
{
    for (const char32_t c : text.toUcs4()) {
        if (!QChar::isDigit(c))
            return false;
    }
    static const QSet<std::int64_t> channels = {
        1,  2,  3,  4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  36,  40,  44,  48,  52,
        56, 60, 64, 100, 104, 108, 112, 116, 120, 124, 128, 132, 136, 140, 149, 153, 157, 161, 165};
    return channels.contains(integerValue(text));
}

bool tryNetwork(const TSNetwork& network, TermState& state, Identifiers& identifiers)
{
    bool stopped = false;
    bool matched = false;
    const auto hit = [&](const char* identifier) {
        identifiers[QString::fromLatin1(identifier)] = QString::fromLatin1(identifier);
        matched = true;
    };
    const auto done = [&] { return stopped || matched; };

    // 1 and 2, signal comparison
    const bool quoted = state.token.startsWith(u'"') && state.token.endsWith(u'"');
    if (!quoted && (state.token.startsWith(u'<') || state.token.startsWith(u'>'))) {
        stopped = true;
        if (comparisonHolds(network, state))
            hit("RSSI");
    }
    if (done())
        return matched;
    const QString& token = state.token;

    // 3, security
    const QString security = without(token, {" ", "\"", "."});
    const std::pair<const char*, bool> kinds[] = {{"wpa", network.security().isWPA},
                                                  {"wpa2", network.security().isWPA2},
                                                  {"wep", network.security().isWEP},
                                                  {"psk", network.security().isPSK},
                                                  {"8021X", network.security().is80211X}};
    for (const auto& [keyword, holds] : kinds) {
        if (isEqualWithoutCase(security, QString::fromLatin1(keyword))) {
            stopped = true;
            if (holds)
                hit("SECURITY_MODE");
        }
    }
    if (done())
        return matched;

    // 4, PHY mode; a token that comes down to nothing falls through
    const QString letters = without(token, {".", "80211", "11"}).toLower();
    if (!letters.isEmpty() && network.phyModeValue().split(u'/').contains(letters))
        hit("PHY_MODE");
    else if (QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("g"),
                          QStringLiteral("n"), QStringLiteral("ac")})
                 .contains(letters))
        stopped = true;
    if (done())
        return matched;

    // 5, BSSID
    const QString bare = without(token, {"\""});
    if (quoted) {
        if (isEqualWithoutCase(network.bssid(), bare))
            hit("BSSID");
    } else if (token.contains(u':')) {
        stopped = true;
        if (holdsWithoutCase(network.bssid(), token))
            hit("BSSID");
    }
    if (done())
        return matched;

    // 6, band
    const QString band = without(token, {" ", ".", "\""});
    if (isEqualWithoutCase(band, QStringLiteral("24GHz"))) {
        stopped = true;
        if (network.is2Dot4GHz())
            hit("CHANNEL_BAND");
    } else if (isEqualWithoutCase(band, QStringLiteral("5GHz"))) {
        stopped = true;
        if (network.is5GHz())
            hit("CHANNEL_BAND");
    }
    if (done())
        return matched;

    // 7, width
    const QString width = without(token, {" ", "\""});
    int code = 1;
    for (const char* keyword : {"20MHz", "40MHz", "80MHz", "160MHz"}) {
        if (isEqualWithoutCase(width, QString::fromLatin1(keyword))) {
            stopped = true;
            if (static_cast<int>(network.attributes().channelWidth) == code)
                hit("CHANNEL_WIDTH");
        }
        ++code;
    }
    if (done())
        return matched;

    // 8, channel
    if (isChannelNumber(bare)) {
        stopped = true;
        if (network.channel() == integerValue(bare))
            hit("CHANNEL");
    }
    if (done())
        return matched;

    // 9 to 12, names
    const auto isFound = [&](const QString& value) {
        return quoted ? isEqualWithoutCase(value, bare) : holdsWithoutCase(value, token);
    };
    if (isFound(network.ssid()))
        hit("SSID");
    else if (!network.deviceName().isEmpty() && isFound(network.deviceName()))
        hit("DEVICE_NAME");
    else if (!network.annotations().isEmpty() && isFound(network.annotations()))
        hit("ANNOTATIONS");
    else if (!network.vendorValue().isEmpty() && isFound(network.vendorValue()))
        hit("VENDOR");
    // 13, country
    else if (!network.countryCodeValue().isEmpty() &&
             isEqualWithoutCase(network.countryCodeValue(), bare))
        hit("CC");
    return matched;
}

NetworkList filterNetworksUsing(const QString& term, const NetworkList& networks,
                                Identifiers& identifiers)
{
    TermState state{term};
    bool negated = false;
    if (term.startsWith(u'!')) {
        negated = true;
        state.token = trimmed(term.mid(1));
    }
    const bool selectsAll = state.token.isEmpty();
    NetworkList passing;
    for (const NetworkPtr& network : networks) {
        if (selectsAll || tryNetwork(*network, state, identifiers) != negated)
            passing.push_back(network);
    }
    return passing;
}

} // namespace

NetworkList filterNetworks(const NetworkList& networks, const QString& line,
                           QMap<QString, QString>& identifiers)
{
    NetworkList result = networks;
    for (const QString& group : line.split(u'&')) {
        std::set<NetworkPtr> united;
        for (const QString& piece : group.split(u',')) {
            const QString term = trimmed(piece);
            if (term.isEmpty())
                continue;
            for (const NetworkPtr& network : filterNetworksUsing(term, networks, identifiers))
                united.insert(network);
        }
        std::erase_if(result, [&](const NetworkPtr& network) { return !united.contains(network); });
    }
    return result;
}

} // namespace tessara::plain
