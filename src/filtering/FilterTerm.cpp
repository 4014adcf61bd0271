#include "filtering/FilterTerm.h"

#include "filtering/FilterText.h"
#include "filtering/KeywordTests.h"
#include "filtering/NameTests.h"
#include "filtering/SignalComparison.h"

namespace tessara {

namespace {

using Stage = FilterTest (*)(QStringView token);

// The first stage that knows the token is what the token means; the last one knows any.
constexpr Stage kStages[] = {
    signalComparison, securityKeyword, phyLetter,     partOfBSSID,
    bandKeyword,      widthKeyword,    channelNumber, nameTest,
};

FilterTest testOf(QStringView token)
{
    FilterTest test;
    for (const Stage stage : kStages) {
        test = stage(token);
        if (test)
            break;
    }
    return test;
}

} // namespace

FilterTerm::FilterTerm(QStringView text)
    : m_negated(text.startsWith(u'!'))
{
    const QStringView token = m_negated ? trimmedOfBlanks(text.sliced(1)) : text;
    if (!token.isEmpty())
        m_test = testOf(token);
}

bool FilterTerm::selects(const FilterSubject& subject, FilterIdentifiers& identifiers) const
{
    if (!m_test)
        return true; // also for "!" alone, which inverts nothing
    const std::optional<FilterColumn> column = m_test(subject);
    if (column)
        identifiers.insert(*column);
    return column.has_value() != m_negated;
}

} // namespace tessara
