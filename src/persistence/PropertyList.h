#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QString>

#include <functional>

namespace tessara {

/// The longest property list of vendors that is read, in bytes: several times their registry.
constexpr qsizetype kLongestPropertyList = 16 << 20;
/// The longest of the user's own making: what the parser's counts can hold.
constexpr qsizetype kLongestOwnPropertyList = 0x7fffffff;

/// Reads an XML property list whose root is a dictionary, and gives each entry whose value is
/// text, in the order of the file and in UTF-8. Entries with other values are passed over.
///
/// The list is never held as a tree: the number of its entries and the length of its texts cost no
/// more than reading them. What could cost more is refused: declarations of the list's own, which
/// may repeat a text without end, and a depth that no list of ours has.
///
/// @return false, with the reason in `error`, if it is no such list, is longer than `longest` or
///         is damaged; what was given up to there is then void
bool readTextDictionary(const QByteArray& bytes, QString& error,
                        const std::function<void(QByteArrayView key, QByteArrayView value)>& entry,
                        qsizetype longest = kLongestPropertyList);

/// The same list, in the order of its keys. A character that XML cannot hold, as a control
/// character is, becomes U+FFFD: it would make the whole list unreadable.
QByteArray textDictionary(const QHash<QString, QString>& entries);

} // namespace tessara
