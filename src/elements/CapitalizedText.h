#pragma once

#include <QString>

namespace tessara {

/// Each word with its first letter in upper case and the rest in lower case; a word begins behind
/// anything that is no letter, but not behind an apostrophe or a full stop ("Wi-Fi", "O'neill").
QString capitalized(const QString& text);

} // namespace tessara
