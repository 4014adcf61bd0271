#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace tessara {

/// Reads an XML property list whose root is a dictionary, and gives each entry whose value is
/// text, in the order of the file. Entries with other values are passed over.
///
/// The list is never held as a tree: its depth, the number of its entries and the length of its
/// texts cost no more than reading them.
///
/// @return false, with the reason in `error`, if it is no such list or is damaged; what was given
///         up to there is then void
bool readTextDictionary(const QByteArray& bytes, QString& error,
                        const std::function<void(QStringView key, QStringView value)>& entry);

} // namespace tessara
