#pragma once

#include <QByteArray>
#include <QStringList>

namespace tessara {

/// Makes the application speak the first of the user's languages that it knows; English is the
/// one of the sources. Qt's own texts, such as the buttons of a file dialog, follow where Qt has
/// them in that language.
/// @param languages BCP 47 tags such as "de-DE", the preferred one first
void installTranslations(const QStringList& languages);

/// A page that comes with the program, such as "filter.md", in the language of the session, or
/// else in English.
QByteArray translatedPage(const QString& name);

} // namespace tessara
