#include "scanning/nl80211/Rfkill.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace tessara;

namespace {

void write(const QString& path, const char* text)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

} // namespace

TEST(Rfkill, ReadsTheSwitchesOfTheInterfacesRadio)
{
    const QTemporaryDir sysfs;
    const QString radio = sysfs.filePath(QStringLiteral("class/net/wlan0/phy80211"));
    const struct {
        const char *name, *index, *soft, *hard;
    } files[] = {{"rfkill2", "2\n", "0\n", "0\n"},
                 {"rfkill5", "5\n", "1\n", "0\n"},
                 {"rfkill7", "7\n", "0\n", "1\n"}};
    for (const auto& file : files) {
        const QString folder = radio + u'/' + QString::fromLatin1(file.name) + u'/';
        ASSERT_TRUE(QDir().mkpath(folder));
        write(folder + QStringLiteral("index"), file.index);
        write(folder + QStringLiteral("soft"), file.soft);
        write(folder + QStringLiteral("hard"), file.hard);
    }
    const auto switches = rfkillSwitches(QStringLiteral("wlan0"), sysfs.path());
    ASSERT_EQ(switches.size(), 3U);
    EXPECT_EQ(switches[0].index, 2U);
    EXPECT_FALSE(switches[0].isBlocked());
    EXPECT_TRUE(switches[1].isSoftBlocked);
    EXPECT_TRUE(switches[1].isBlocked());
    EXPECT_TRUE(switches[2].isHardBlocked);
    EXPECT_TRUE(switches[2].isBlocked());
    EXPECT_TRUE(rfkillSwitches(QStringLiteral("wlan1"), sysfs.path()).empty());
}
