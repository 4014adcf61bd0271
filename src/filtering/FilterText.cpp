#include "filtering/FilterText.h"

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

QString caseFolded(QStringView text)
{
    QString folded = text.toString();
    QChar* units = folded.data();
    for (qsizetype i = 0; i < folded.size(); ++i) {
        const QChar unit = units[i];
        if (unit.isHighSurrogate() && i + 1 < folded.size() && units[i + 1].isLowSurrogate()) {
            // No letter's other case needs more units than the letter itself.
            const char32_t letter = QChar::toCaseFolded(QChar::surrogateToUcs4(unit, units[i + 1]));
            units[i] = QChar(QChar::highSurrogate(letter));
            units[++i] = QChar(QChar::lowSurrogate(letter));
        } else {
            units[i] = unit.toCaseFolded();
        }
    }
    return folded;
}

std::uint64_t characterMarks(QStringView text)
{
    std::uint64_t marks = 0;
    for (const QChar character : text)
        marks |= std::uint64_t{1} << (character.unicode() % 64);
    return marks;
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
