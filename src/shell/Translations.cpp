#include "shell/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace tessara {

namespace {

bool install(const QLocale& locale, const QString& texts, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (!translator->load(locale, texts, QStringLiteral("_"), folder))
        return false;
    return QCoreApplication::installTranslator(translator.release()); // the application's own
}

} // namespace

void installTranslations(const QStringList& languages)
{
    for (const QString& language : languages) {
        const QLocale locale(language);
        if (locale.language() == QLocale::English)
            return;
        if (install(locale, QStringLiteral("tessara"), QStringLiteral(":/translations"))) {
            install(locale, QStringLiteral("qtbase"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath));
            return;
        }
    }
}

} // namespace tessara
