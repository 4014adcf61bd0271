#include "shell/Translations.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "shell/AdvancedPrefsViewController.h"
#include "shell/ColumnsPrefsViewController.h"
#include "shell/GeneralPrefsViewController.h"
#include "shell/GraphTabs.h"
#include "shell/MainMenu.h"
#include "shell/TSNetworksView.h"
#include "support/ManualClock.h"

#include <QCheckBox>
#include <QDir>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTranslator>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

/// Leaves the other tests in English.
class TranslationsTest : public testing::Test {
protected:
    ~TranslationsTest() override { forget(); }

    static void forget() { qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>()); }

    /// All languages of the program, English too.
    static QStringList languages()
    {
        QStringList tags{QStringLiteral("en")};
        for (const QString& file : QDir(QStringLiteral(":/translations")).entryList())
            tags += file.section(u'_', 1).section(u'.', 0, 0);
        return tags;
    }
};

/// Expects that each key chooses one text.
void expectDistinctMnemonics(const QStringList& texts, const QString& language)
{
    QMap<QString, QString> textsOfKeys;
    for (const QString& text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (key.isEmpty())
            continue;
        EXPECT_FALSE(textsOfKeys.contains(key))
            << language.toStdString() << ", " << key.toStdString() << ": "
            << textsOfKeys[key].toStdString() << " and " << text.toStdString();
        textsOfKeys[key] = text;
    }
}

void expectDistinctMnemonics(const QList<QAction*>& items, const QString& language)
{
    QStringList texts;
    for (const QAction* item : items) {
        texts += item->text();
        if (const QMenu* menu = item->menu())
            expectDistinctMnemonics(menu->actions(), language);
    }
    expectDistinctMnemonics(texts, language);
}

QStringList textsOf(const QWidget& pane)
{
    QStringList texts;
    for (const QLabel* label : pane.findChildren<QLabel*>())
        texts += label->text();
    for (const QAbstractButton* button : pane.findChildren<QAbstractButton*>())
        texts += button->text();
    return texts;
}

} // namespace

TEST_F(TranslationsTest, TheFirstOfTheUsersLanguagesThatIsKnownIsSpoken)
{
    struct Case {
        QStringList languages;
        QString text;
    };
    const auto list = [](const char* tags) { return QString::fromLatin1(tags).split(u' '); };
    const QString english = QStringLiteral("Channel");
    const QString german = QStringLiteral("Kanal");
    for (const auto& [languages, text] :
         {Case{list("de-DE en-GB"), german}, Case{list("de"), german},
          Case{list("tlh de-AT"), german}, Case{list("en-GB de-DE"), english},
          Case{list("tlh"), english}, Case{{}, english}}) {
        installTranslations(languages);
        EXPECT_EQ(localized("Channel"), text) << languages.join(u' ').toStdString();
        EXPECT_EQ(localized(EnglishText()), QString()) << "not the head of the translation";
        EXPECT_TRUE(translatedPage(QStringLiteral("filter.md"))
                        .startsWith(text == german ? "# Der Filter" : "# The filter"));
        forget();
    }
}

TEST_F(TranslationsTest, AKeyChoosesOneItemInEveryLanguage)
{
    EXPECT_GT(languages().size(), 1);
    for (const QString& language : languages()) {
        installTranslations({language});
        const ManualClock clock;
        TSNetworksView table;
        GraphTabs tabs(clock);
        const MainMenu menus(table, tabs, nullptr);
        expectDistinctMnemonics(menus.actions(), language);
        expectDistinctMnemonics(textsOf(GeneralPrefsViewController()), language);
        expectDistinctMnemonics(textsOf(ColumnsPrefsViewController(table)), language);
        expectDistinctMnemonics(textsOf(AdvancedPrefsViewController()), language);
        forget();
    }
}
