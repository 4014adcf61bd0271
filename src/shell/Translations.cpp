#include "shell/Translations.h"

#include "foundation/Localized.h"

#include <QCoreApplication>
#include <QFile>
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

QByteArray translatedPage(const QString& name)
{
    // A translation of the word tells the folder of its own pages.
    for (const QString& folder : {localized("en"), QStringLiteral("en")}) {
        QFile page(QStringLiteral(":/pages/%1/%2").arg(folder, name));
        if (page.open(QIODevice::ReadOnly))
            return page.readAll();
    }
    return {};
}

} // namespace tessara
