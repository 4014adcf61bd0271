#include "scanning/nl80211/Rfkill.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace tessara;

TEST(Rfkill, ReadsTheSwitchesOfTheInterfacesRadio)
{
    const QTemporaryDir sysfs;
    const QString radio = sysfs.filePath(QStringLiteral("class/net/wlan0/phy80211"));
    const struct {
        const char *name, *text;
    } files[] = {{"rfkill2/index", "2\n"}, {"rfkill2/soft", "0\n"}, {"rfkill2/hard", "0\n"},
                 {"rfkill5/index", "5\n"}, {"rfkill5/soft", "1\n"}, {"rfkill5/hard", "0\n"},
                 {"rfkill7/index", "7\n"}, {"rfkill7/soft", "0\n"}, {"rfkill7/hard", "1\n"}};
    for (const auto& [name, text] : files) {
        QFile file(radio + u'/' + QLatin1String(name));
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    const auto switches = rfkillSwitches(QStringLiteral("wlan0"), sysfs.path());
    ASSERT_EQ(switches.size(), 3U);
    EXPECT_EQ(switches[0].index, 2U);
    EXPECT_FALSE(switches[0].isBlocked());
    EXPECT_TRUE(switches[1].isSoftBlocked && switches[1].isBlocked());
    EXPECT_TRUE(switches[2].isHardBlocked && switches[2].isBlocked());
    EXPECT_TRUE(rfkillSwitches(QStringLiteral("wlan1"), sysfs.path()).empty());
}
