#include "filtering/FilterText.h"

#include <QString>

#include <algorithm>
#include <limits>

namespace tessara {

namespace {

bool isBlank(QChar character)
{
    return character == u'\t' || character.category() == QChar::Separator_Space;
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

QStringView trimmedOfBlanks(QStringView text)
{
    const auto* first = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto* last = text.end();
    while (last != first && isBlank(*(last - 1)))
        --last;
    return {first, last};
}

QString without(QStringView characters, QStringView text)
{
    QString rest;
    rest.reserve(text.size());
    std::ranges::copy_if(text, std::back_inserter(rest),
                         [&](QChar character) { return !characters.contains(character); });
    return rest;
}

std::int64_t leadingInteger(QStringView text)
{
    const bool negative = text.startsWith(u'-');
    const auto* firstDigit = text.begin() + (negative ? 1 : 0);
    const auto* end = std::find_if_not(firstDigit, text.end(), isDigit);
    if (firstDigit == end)
        return 0;
    bool fits = false;
    const qlonglong value = QStringView(text.begin(), end).toLongLong(&fits);
    using Limits = std::numeric_limits<std::int64_t>;
    return fits ? value : negative ? Limits::min() : Limits::max();
}

} // namespace tessara
