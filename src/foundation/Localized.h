#pragma once

#include <QCoreApplication>

namespace tessara {

/// A text for the user, looked up in the language of the session. The key is the English text.
inline QString localized(const char* englishText)
{
    return QCoreApplication::translate("Tessara", englishText);
}

} // namespace tessara
