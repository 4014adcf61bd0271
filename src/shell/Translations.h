#pragma once

#include <QStringList>

namespace tessara {

/// Makes the application speak the first of the user's languages that it knows; English is the
/// one of the sources. Qt's own texts, such as the buttons of a file dialog, follow where Qt has
/// them in that language.
/// @param languages BCP 47 tags such as "de-DE", the preferred one first
void installTranslations(const QStringList& languages);

} // namespace tessara
