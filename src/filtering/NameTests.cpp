#include "filtering/NameTests.h"

#include "filtering/FilterText.h"
#include "foundation/TextOrder.h"

#include <QStringMatcher>

namespace tessara {

namespace {

constexpr QStringView kQuotationMark = u"\"";

/// A lone quotation mark both begins and ends its token: it is the empty text in quotation marks.
bool isQuoted(QStringView token)
{
    return token.startsWith(kQuotationMark) && token.endsWith(kQuotationMark);
}

/// The first column in which a name passes.
/// @param passes takes a text
template <typename Predicate>
std::optional<FilterColumn> columnOfName(const FilterSubject& subject, Predicate passes)
{
    if (passes(subject.ssid))
        return FilterColumn::kNetworkName;
    if (!subject.deviceName.isEmpty() && passes(subject.deviceName))
        return FilterColumn::kDeviceName;
    if (!subject.annotations.isEmpty() && passes(subject.annotations))
        return FilterColumn::kAnnotations;
    if (!subject.vendor.isEmpty() && passes(subject.vendor))
        return FilterColumn::kVendor;
    return std::nullopt;
}

bool isCountryCode(const FilterSubject& subject, const QString& text)
{
    const QString& code = subject.network->attributes().countryCode;
    return !code.isEmpty() && caseInsensitiveCompare(code, text) == 0;
}

FilterTest wholeName(const QString& name)
{
    return [name](const FilterSubject& subject) -> std::optional<FilterColumn> {
        const auto isName = [&](const QString& text) {
            return caseInsensitiveCompare(text, name) == 0;
        };
        if (isName(subject.network->bssid()))
            return FilterColumn::kBSSID;
        if (const auto column = columnOfName(subject, isName))
            return column;
        return isCountryCode(subject, name) ? std::optional(FilterColumn::kCountryCode)
                                            : std::nullopt;
    };
}

FilterTest partOfName(const QString& part, const QString& countryCode)
{
    return [matcher = QStringMatcher(part, Qt::CaseInsensitive),
            countryCode](const FilterSubject& subject) -> std::optional<FilterColumn> {
        const auto holdsPart = [&](const QString& text) { return matcher.indexIn(text) >= 0; };
        if (const auto column = columnOfName(subject, holdsPart))
            return column;
        return isCountryCode(subject, countryCode) ? std::optional(FilterColumn::kCountryCode)
                                                   : std::nullopt;
    };
}

} // namespace

FilterTest partOfBSSID(QStringView token)
{
    if (isQuoted(token) || !token.contains(u':'))
        return {};
    return [matcher = QStringMatcher(token.toString(), Qt::CaseInsensitive)](
               const FilterSubject& subject) -> std::optional<FilterColumn> {
        if (matcher.indexIn(subject.network->bssid()) >= 0)
            return FilterColumn::kBSSID;
        return std::nullopt;
    };
}

FilterTest nameTest(QStringView token)
{
    const QString bare = without(kQuotationMark, token);
    return isQuoted(token) ? wholeName(bare) : partOfName(token.toString(), bare);
}

} // namespace tessara
