#include "filtering/NameTests.h"

#include "filtering/FilterText.h"

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
    return !subject.countryCode.isEmpty() && subject.countryCode == text;
}

FilterTest wholeName(const QString& name)
{
    return [name](const FilterSubject& subject) -> std::optional<FilterColumn> {
        if (subject.bssid == name)
            return FilterColumn::kBSSID;
        if (const auto column =
                columnOfName(subject, [&](const QString& text) { return text == name; }))
            return column;
        return isCountryCode(subject, name) ? std::optional(FilterColumn::kCountryCode)
                                            : std::nullopt;
    };
}

FilterTest partOfName(const QString& part, const QString& countryCode)
{
    return [part, countryCode, marks = characterMarks(part)](
               const FilterSubject& subject) -> std::optional<FilterColumn> {
        if ((marks & ~subject.nameMarks) == 0) {
            if (const auto column =
                    columnOfName(subject, [&](const QString& text) { return text.contains(part); }))
                return column;
        }
        return isCountryCode(subject, countryCode) ? std::optional(FilterColumn::kCountryCode)
                                                   : std::nullopt;
    };
}

} // namespace

FilterTest partOfBSSID(QStringView token)
{
    if (isQuoted(token) || !token.contains(u':'))
        return {};
    return [part = caseFolded(token)](const FilterSubject& subject) -> std::optional<FilterColumn> {
        if (subject.bssid.contains(part))
            return FilterColumn::kBSSID;
        return std::nullopt;
    };
}

FilterTest nameTest(QStringView token)
{
    const QString folded = caseFolded(token);
    const QString bare = without(kQuotationMark, folded);
    return isQuoted(token) ? wholeName(bare) : partOfName(folded, bare);
}

} // namespace tessara
