#pragma once

#include <QString>

#include <cstdint>

namespace tessara {

/// A text without blanks (Unicode's space separators) and tabs at its ends.
QStringView trimmedOfBlanks(QStringView text);

/// A text without any of some characters.
QString without(QStringView characters, QStringView text);

/// A text as it stands for all its writings in upper and lower case: two texts are equal without
/// case, as `caseInsensitiveCompare` has it, if these are equal.
QString caseFolded(QStringView text);

/// Marks of the characters of a text, for a quick look before a search: a text can only be part of
/// another one whose marks hold all of its own.
std::uint64_t characterMarks(QStringView text);

/// The decimal integer that a text begins with: a sign, then ASCII digits up to the first other
/// character. 0 where there is none; the nearest there is where it does not fit.
std::int64_t leadingInteger(QStringView text);

} // namespace tessara
