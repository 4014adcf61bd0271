#pragma once

#include <QCollatorSortKey>
#include <QString>

namespace tessara {

/// How a person in the session's language would order two names: letters without case first,
/// digits by the number that they spell ("9" before "10"). Negative, 0 or positive.
int localizedStandardCompare(const QString& a, const QString& b);

/// What stands for a name in many comparisons of this order.
QCollatorSortKey localizedStandardSortKey(const QString& text);

/// Order without case, code point by code point. Negative, 0 or positive.
int caseInsensitiveCompare(const QString& a, const QString& b);

} // namespace tessara
