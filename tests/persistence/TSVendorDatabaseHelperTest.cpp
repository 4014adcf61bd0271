#include "persistence/TSVendorDatabaseHelper.h"

#include "VendorFiles.h"
#include "foundation/Defaults.h"
#include "persistence/PropertyList.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace tessara;

namespace {

const QString kBSSID = QStringLiteral("00:11:22:33:44:55");
const QByteArray kOld = propertyList({{"00:11:22", "Old"}});
const QByteArray kNew = propertyList({{"00:11:22", "New"}});
const QDateTime kDate(QDate(2024, 5, 6), QTime(7, 8, 10));

class TSVendorDatabaseHelperTest : public testing::Test {
protected:
    void SetUp() override { Defaults::standard().attach(nullptr); }

    /// What a new instance calls the maker, as after a start of the program.
    QString vendor() const
    {
        return TSVendorDatabaseHelper(paths).stringForVendor(kBSSID).value_or(QString());
    }
    QStringList filesOfTheUser() const
    {
        return QDir(QFileInfo(paths.database).path()).entryList(QDir::Files);
    }

    QTemporaryDir folder;
    const TSVendorDatabaseHelper::Paths paths{folder.filePath(QStringLiteral("data/vendors.plist")),
                                              folder.filePath(QStringLiteral("seed.zip")),
                                              folder.filePath(QStringLiteral("urls.plist"))};
};

} // namespace

TEST_F(TSVendorDatabaseHelperTest, InstallsTheSeedWhenItIsTimeTo)
{
    struct Case {
        const char* lastLaunchedVersion;
        bool hasDatabase;
        bool overwrite;
        const char* vendor; ///< afterwards
    };
    const Case cases[] = {
        {"", false, false, "New"},     // the first launch
        {"", true, false, "New"},      // the same, over what an unfinished run has left
        {"0.0.9", true, false, "New"}, // a newer version of the program
        {TESSARA_VERSION, true, false, "Old"},
        {"10.0.0", true, false, "Old"}, // an older one
        {"0.10.0", true, false, "Old"}, // 10 is more than 9
        {TESSARA_VERSION, false, false, "New"},
        {TESSARA_VERSION, true, true, "New"},
    };
    writeArchive(paths.seed, {{"vendors.plist", kNew}}, kDate);
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.lastLaunchedVersion << c.hasDatabase << c.overwrite);
        QDir().mkpath(QFileInfo(paths.database).path());
        QFile::remove(paths.database);
        if (c.hasDatabase)
            writeFile(paths.database, kOld);
        Defaults::standard().setValue(DefaultKey::LastLaunchedVersion,
                                      QString::fromLatin1(c.lastLaunchedVersion));
        TSVendorDatabaseHelper helper(paths);
        EXPECT_TRUE(c.overwrite ? helper.expandDatabaseUsingFile(paths.seed, true)
                                : helper.expandDatabase());
        EXPECT_EQ(vendor(), QString::fromLatin1(c.vendor));
        EXPECT_EQ(filesOfTheUser(), QStringList{QStringLiteral("vendors.plist")});
    }
}

TEST_F(TSVendorDatabaseHelperTest, GivesTheFileTheDateOfTheArchive)
{
    writeArchive(paths.seed, {{"vendors.plist", kNew}}, kDate);
    ASSERT_TRUE(TSVendorDatabaseHelper(paths).expandDatabase());
    EXPECT_EQ(QFileInfo(paths.database).lastModified(), kDate);

    QFile::remove(paths.database);
    writeArchive(paths.seed, {{"vendors.plist", kNew}}, kDate.addYears(80));
    ASSERT_TRUE(TSVendorDatabaseHelper(paths).expandDatabase());
    EXPECT_LE(QFileInfo(paths.database).lastModified(), QDateTime::currentDateTime())
        << "newer databases must look newer";
}

TEST_F(TSVendorDatabaseHelperTest, TakesTheOneFileOfAnArchive)
{
    writeArchive(paths.seed, {{"../vendors.plist", kOld},
                              {"../../outside", kOld},
                              {"sub/vendors.plist", kOld},
                              {"VENDORS.PLIST", kOld},
                              {"vendors.plist", kNew},
                              {"readme.txt", "x"}});
    ASSERT_TRUE(TSVendorDatabaseHelper(paths).expandDatabase());
    EXPECT_EQ(vendor(), QStringLiteral("New"));
    EXPECT_EQ(filesOfTheUser(), QStringList{QStringLiteral("vendors.plist")});
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("seed.zip")});
}

TEST_F(TSVendorDatabaseHelperTest, ADamagedArchiveLeavesTheDatabaseInForce)
{
    const QString archive = folder.filePath(QStringLiteral("new.zip"));
    writeArchive(archive, {{"vendors.plist", propertyList({{"00:11:22", QByteArray(5000, 'n')}})}});
    const QByteArray whole = contentsOf(archive);
    QByteArray flipped = whole;
    flipped[60] = static_cast<char>(~flipped[60]); // within the packed bytes

    const std::pair<const char*, std::function<void()>> cases[] = {
        {"missing", [&] { QFile::remove(archive); }},
        {"empty", [&] { writeFile(archive, {}); }},
        {"no archive", [&] { writeFile(archive, "<html>"); }},
        {"truncated", [&] { writeFile(archive, whole.chopped(whole.size() / 2)); }},
        {"flipped", [&] { writeFile(archive, flipped); }},
        {"other entries",
         [&] {
             writeArchive(archive, {{"../vendors.plist", kNew}});
         }},
        {"no property list",
         [&] {
             writeArchive(archive, {{"vendors.plist", "<html>"}});
         }},
        {"bomb",
         [&] {
             writeArchive(archive,
                          {{"vendors.plist", kNew + QByteArray(kLongestPropertyList, ' ')}});
         }},
    };
    TSVendorDatabaseHelper helper(paths);
    QDir().mkpath(QFileInfo(paths.database).path());
    writeFile(paths.database, kOld, kDate);
    for (const auto& [name, damage] : cases) {
        damage();
        EXPECT_FALSE(helper.expandDatabaseUsingFile(archive, true)) << name;
        EXPECT_EQ(vendor(), QStringLiteral("Old")) << name;
        EXPECT_EQ(QFileInfo(paths.database).lastModified(), kDate) << name;
        EXPECT_EQ(filesOfTheUser(), QStringList{QStringLiteral("vendors.plist")}) << name;
    }
}

TEST_F(TSVendorDatabaseHelperTest, AFolderThatCannotBeMadeIsAFailure)
{
    writeArchive(paths.seed, {{"vendors.plist", kNew}});
    writeFile(folder.filePath(QStringLiteral("data")), "a file where the folder should be");
    EXPECT_FALSE(TSVendorDatabaseHelper(paths).expandDatabase());
    EXPECT_EQ(vendor(), QString());
}

TEST_F(TSVendorDatabaseHelperTest, ReadsTheFileWhenItCanAndKeepsWhatItHasRead)
{
    TSVendorDatabaseHelper helper(paths);
    EXPECT_FALSE(helper.stringForVendor(kBSSID)) << "there is no file yet";
    EXPECT_FALSE(helper.load().isEmpty());

    QDir().mkpath(QFileInfo(paths.database).path());
    writeFile(paths.database, "<html>");
    EXPECT_FALSE(helper.stringForVendor(kBSSID));
    EXPECT_FALSE(helper.load().isEmpty());
    EXPECT_FALSE(helper.shortStringForVendor(kBSSID));

    writeFile(paths.database, kOld);
    EXPECT_EQ(helper.stringForVendor(kBSSID), QStringLiteral("Old"));
    EXPECT_EQ(helper.load(), QString());
    QFile::remove(paths.database);
    EXPECT_EQ(helper.stringForVendor(kBSSID), QStringLiteral("Old"));

    writeFile(paths.database, kNew);
    EXPECT_EQ(helper.stringForVendor(kBSSID), QStringLiteral("Old"));
    helper.dropDatabase();
    EXPECT_EQ(helper.stringForVendor(kBSSID), QStringLiteral("New"));
}

TEST_F(TSVendorDatabaseHelperTest, AnswersFromSeveralThreadsWhileItLoads)
{
    QDir().mkpath(QFileInfo(paths.database).path());
    writeFile(paths.database, kOld);
    TSVendorDatabaseHelper helper(paths);
    helper.loadInBackground();
    WorkerThreads others;
    for (int i = 0; i < 3; ++i) {
        others.start([&helper, i] {
            EXPECT_EQ(helper.stringForVendor(kBSSID), QStringLiteral("Old"));
            if (i == 0)
                helper.dropDatabase();
            EXPECT_EQ(helper.stringForVendor(kBSSID), QStringLiteral("Old"));
        });
    }
}

TEST_F(TSVendorDatabaseHelperTest, ReadsTheIndexInPlaceOfTheListThatItWasMadeFrom)
{
    TSVendorDatabaseHelper::Paths indexed = paths;
    indexed.index = folder.filePath(QStringLiteral("cache/vendors.index"));
    Defaults::standard().setValue(DefaultKey::LastLaunchedVersion, QStringLiteral(TESSARA_VERSION));
    const auto vendorAtNextStart = [&] {
        return TSVendorDatabaseHelper(indexed).stringForVendor(kBSSID).value_or(QString());
    };
    QDir().mkpath(QFileInfo(paths.database).path());
    writeFile(paths.database, kOld, kDate);
    ASSERT_EQ(vendorAtNextStart(), QStringLiteral("Old"));

    // The same date and size: only the index can say "Old" now.
    writeFile(paths.database, kNew, kDate);
    EXPECT_EQ(vendorAtNextStart(), QStringLiteral("Old"));

    TSVendorDatabaseHelper(indexed).expandDatabaseUsingFile(paths.seed, false); // as each start
    EXPECT_EQ(vendorAtNextStart(), QStringLiteral("Old"));

    // An index that is damaged anywhere is made anew from the list.
    const QByteArray index = contentsOf(indexed.index);
    for (qsizetype i = 0; i < index.size(); ++i) {
        QByteArray damaged = index;
        damaged[i] = char(damaged[i] ^ 0x10);
        for (const QByteArray& bytes : {damaged, index.first(i)}) {
            writeFile(indexed.index, bytes);
            ASSERT_EQ(vendorAtNextStart(), QStringLiteral("New")) << i;
            ASSERT_EQ(contentsOf(indexed.index).size(), index.size());
        }
    }

    // A list of another date, and an installed one of the same date and size.
    writeFile(paths.database, kOld, kDate.addSecs(1));
    EXPECT_EQ(vendorAtNextStart(), QStringLiteral("Old"));
    writeArchive(paths.seed, {{"vendors.plist", kNew}}, kDate.addSecs(1));
    EXPECT_TRUE(TSVendorDatabaseHelper(indexed).expandDatabaseUsingFile(paths.seed, true));
    EXPECT_EQ(vendorAtNextStart(), QStringLiteral("New"));
}

TEST_F(TSVendorDatabaseHelperTest, TellsWebSitesByName)
{
    TSVendorDatabaseHelper helper(paths);
    EXPECT_FALSE(helper.urlForVendor(QStringLiteral("New"))) << "without the resource";

    writeFile(paths.urls, propertyList({{"New", "https://new.example"}}));
    TSVendorDatabaseHelper installed(paths);
    EXPECT_EQ(installed.urlForVendor(QStringLiteral("New")), QStringLiteral("https://new.example"));
    EXPECT_FALSE(installed.urlForVendor(QStringLiteral("Old")));
}

// What the program is installed with.
TEST_F(TSVendorDatabaseHelperTest, TheSeedNamesTheCommonMakersAndTheirWebSites)
{
    const QString resources = QStringLiteral(TESSARA_RESOURCES);
    TSVendorDatabaseHelper helper({paths.database, resources + QLatin1String("/vendors.plist.zip"),
                                   resources + QLatin1String("/urls.plist")});
    ASSERT_TRUE(helper.expandDatabase());
    const std::pair<const char*, const char*> makers[] = {
        {"00:18:0A:12:34:56", "Meraki"},   {"70:73:CB:12:34:56", "Apple"},
        {"04:4F:AA:0A:1B:2C", "Ruckus"},   {"24:A4:3C:12:34:56", "Ubiquiti"},
        {"7A:9F:DB:12:34:56", "Ubiquiti"}, {"00:00:0C:12:34:56", "Cisco"},
    };
    for (const auto& [bssid, word] : makers) {
        EXPECT_EQ(helper.shortStringForVendor(QString::fromLatin1(bssid)),
                  QString::fromLatin1(word))
            << bssid;
        EXPECT_TRUE(helper.urlForVendor(
            helper.stringForVendor(QString::fromLatin1(bssid)).value_or(QString())))
            << bssid;
    }
    EXPECT_FALSE(helper.stringForVendor(QStringLiteral("70:B3:D5:12:34:56")))
        << "a block that many share";

    QSet<QByteArray> names;
    QString error;
    ASSERT_TRUE(readTextDictionary(
        contentsOf(paths.database), error,
        [&](QByteArrayView, QByteArrayView name) { names.insert(name.toByteArray()); }));
    int count = 0;
    ASSERT_TRUE(readTextDictionary(contentsOf(resources + QLatin1String("/urls.plist")), error,
                                   [&](QByteArrayView name, QByteArrayView url) {
                                       ++count;
                                       EXPECT_TRUE(names.contains(name.toByteArray()))
                                           << name.toByteArray().toStdString();
                                       EXPECT_TRUE(url.startsWith("https://"));
                                   }));
    EXPECT_GE(count, 50);
}
