#pragma once

#include "filtering/FilterTest.h"

#include <QStringView>

namespace tessara {

/// One term of a filter line, understood once and then held against networks. Every text is a
/// term: what is no comparison and no keyword is looked for in names.
class FilterTerm {
public:
    /// @param text without blanks at its ends; "!" in front makes it the inverse of the rest
    explicit FilterTerm(QStringView text);

    /// Whether the network passes. The column on which the network was found is added also where
    /// "!" then throws the network out.
    bool selects(const FilterSubject& subject, FilterIdentifiers& identifiers) const;

private:
    bool m_negated;
    FilterTest m_test; ///< none for a term without text, which every network passes
};

} // namespace tessara
