#include "foundation/Defaults.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

std::unique_ptr<QSettings> storeIn(const QTemporaryDir& folder)
{
    return std::make_unique<QSettings>(folder.filePath(QStringLiteral("settings.conf")),
                                       QSettings::IniFormat);
}

} // namespace

TEST(Defaults, KeepsValuesAcrossRunsInTheirTypes)
{
    const QTemporaryDir folder;
    {
        Defaults defaults;
        defaults.attach(storeIn(folder));
        defaults.setValue(DefaultKey::ShowSecure, false);
        defaults.setValue(DefaultKey::Units, 1);
        defaults.setValue(DefaultKey::NetworksViewFontSize, 12.5);
        defaults.setValue(DefaultKey::RecentFilters, QStringList{QStringLiteral("a, b")});
        defaults.setValue(DefaultKey::UserDefinedColors,
                          QVariantMap{{QStringLiteral("0A:0B"), QStringLiteral("#ff00ff")}});
        defaults.setValue(DefaultKey::SignalStrengthThreshold, 70);
        defaults.remove(DefaultKey::SignalStrengthThreshold);
        EXPECT_TRUE(defaults.overrideForThisRun(DefaultKey::AutoScan, QStringLiteral("false")));
    }
    Defaults defaults;
    defaults.attach(storeIn(folder));
    EXPECT_FALSE(defaults.boolForKey(DefaultKey::ShowSecure));
    EXPECT_EQ(defaults.value(DefaultKey::ShowSecure).typeId(), QMetaType::Bool);
    EXPECT_EQ(defaults.integerForKey(DefaultKey::Units), 1);
    EXPECT_EQ(defaults.doubleForKey(DefaultKey::NetworksViewFontSize), 12.5);
    EXPECT_EQ(defaults.value(DefaultKey::RecentFilters).toStringList(),
              QStringList{QStringLiteral("a, b")});
    EXPECT_EQ(defaults.value(DefaultKey::UserDefinedColors).toMap().size(), 1);
    EXPECT_EQ(defaults.integerForKey(DefaultKey::SignalStrengthThreshold), 0);
    EXPECT_TRUE(defaults.boolForKey(DefaultKey::AutoScan)) << "an override lasts one run";
}

TEST(Defaults, FallsBackOnTheRegisteredValueWhereTheStoreHoldsNonsense)
{
    const QTemporaryDir folder;
    const auto store = storeIn(folder);
    store->setValue(QStringLiteral("Sensitivity"), QStringLiteral("lots"));
    store->setValue(QStringLiteral("Units"), QStringLiteral("1"));
    store->setValue(QStringLiteral("SideViewFontSize"), QStringLiteral("nan"));
    store->sync();
    Defaults defaults;
    defaults.attach(storeIn(folder));
    EXPECT_EQ(defaults.integerForKey(DefaultKey::Sensitivity), 100);
    EXPECT_EQ(defaults.integerForKey(DefaultKey::Units), 1);
    EXPECT_EQ(defaults.doubleForKey(DefaultKey::SideViewFontSize), 11);
    EXPECT_FALSE(defaults.boolForKey(DefaultKey::RanOnce)) << "not registered reads as false";
    EXPECT_TRUE(defaults.stringForKey(DefaultKey::InterfaceName).isEmpty());
}

TEST(Defaults, CorrectsAValueWhereItStands)
{
    const QTemporaryDir folder;
    {
        Defaults defaults;
        defaults.attach(storeIn(folder));
        defaults.setValue(DefaultKey::Units, 7);
        defaults.overrideForThisRun(DefaultKey::Metric, 9);
        defaults.correctValue(DefaultKey::Units, 1);
        defaults.correctValue(DefaultKey::Metric, 2);
        EXPECT_EQ(defaults.integerForKey(DefaultKey::Metric), 2);
    }
    Defaults defaults;
    defaults.attach(storeIn(folder));
    EXPECT_EQ(defaults.integerForKey(DefaultKey::Units), 1);
    EXPECT_EQ(defaults.integerForKey(DefaultKey::Metric), 0) << "the override lasted one run";
}

TEST(Defaults, TellsItsObserversOfChangesOnly)
{
    Defaults defaults;
    QSignalSpy spy(&defaults, &Defaults::didChange);
    defaults.setValue(DefaultKey::Units, 1);
    defaults.setValue(DefaultKey::Units, 1);
    defaults.remove(DefaultKey::FilterString);
    EXPECT_EQ(spy.size(), 1);

    defaults.overrideForThisRun(DefaultKey::Units, QStringLiteral("0"));
    spy.clear();
    defaults.setValue(DefaultKey::Units, 1); // as it is stored, but not as it was read
    EXPECT_EQ(spy.size(), 1);
}

TEST(Defaults, TakesOverridesAsAUserTypesThem)
{
    struct Case {
        QStringView key;
        const char* text;
        bool taken;
        QVariant value;
    };
    const Case cases[] = {
        {DefaultKey::Units, "1", true, 1},
        {DefaultKey::Units, "one", false, {}},
        {DefaultKey::ShowAdHoc, "FALSE", true, false},
        {DefaultKey::ShowAdHoc, "0", true, false},
        {DefaultKey::ShowAdHoc, "no", false, {}},
        {DefaultKey::SideViewFontSize, "12.5", true, 12.5},
        {DefaultKey::SideViewFontSize, "nan", false, {}},
        {DefaultKey::InterfaceName, "wlan1", true, QStringLiteral("wlan1")},
        {DefaultKey::WindowFrame, "x", false, {}},
        {u"NoSuchKey", "1", false, {}},
    };
    for (const Case& c : cases) {
        Defaults defaults;
        EXPECT_EQ(defaults.overrideForThisRun(c.key, QString::fromLatin1(c.text)), c.taken)
            << c.text;
        if (c.taken) {
            EXPECT_EQ(defaults.value(c.key), c.value) << c.text;
        }
    }
}
