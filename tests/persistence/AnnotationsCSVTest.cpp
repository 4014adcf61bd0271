#include "persistence/AnnotationsCSV.h"

#include "RecordingPrompt.h"
#include "VendorFiles.h"
#include "support/QtPrinters.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using Annotations = TSAnnotationsHelper::Annotations;

QString bssid(int number)
{
    return QStringLiteral("AA:00:00:00:00:%1").arg(number, 2, 10, QLatin1Char('0'));
}

class AnnotationsCSVTest : public testing::Test {
protected:
    QByteArray exported(const Annotations& overlay = {})
    {
        exchange.exportFile(file, overlay);
        EXPECT_THAT(user.finished(), ElementsAre("Exporting \"" + file.toStdString() + '"'));
        return contentsOf(file);
    }

    /// What there is to see besides the progress.
    std::vector<std::string> import(const QByteArray& bytes)
    {
        writeFile(file, bytes);
        exchange.importFile(file);
        auto seen = user.finished();
        EXPECT_EQ(seen.front(), "Importing \"" + file.toStdString() + '"');
        seen.erase(seen.begin());
        return seen;
    }

    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("notes.csv"));
    RecordingPrompt user;
    TSAnnotationsHelper store{folder.filePath(QStringLiteral("annotations.plist"))};
    AnnotationsCSV exchange{store, user};
};

} // namespace

TEST_F(AnnotationsCSVTest, ExportsSortedLinesWithTheNotesOfAnOpenedFileOverTheStore)
{
    EXPECT_EQ(exported(), "\n") << "an empty store";
    store.setAnnotationsForNetwork(bssid(3), QStringLiteral("roof, east side"));
    store.setAnnotationsForNetwork(bssid(1), QStringLiteral("say \"hi\""));
    store.setAnnotationsForNetwork(bssid(2), QStringLiteral("Büro"));
    EXPECT_EQ(exported({{bssid(2), QStringLiteral("of the file")}, {bssid(4), QString()}}),
              "AA:00:00:00:00:01,\"say \"hi\"\"\n"
              "AA:00:00:00:00:02,\"of the file\"\n"
              "AA:00:00:00:00:03,\"roof, east side\"\n");
    EXPECT_EQ(store.annotationsForNetwork(bssid(2)), QStringLiteral("Büro")) << "in the file alone";
}

TEST_F(AnnotationsCSVTest, TakesBackWhatItHasWritten)
{
    const Annotations notes{{bssid(1), QStringLiteral("roof, east side")},
                            {bssid(2), QStringLiteral("two\nlines")},
                            {bssid(3), QStringLiteral("Büro 🦊")}};
    for (auto each = notes.begin(); each != notes.end(); ++each)
        store.setAnnotationsForNetwork(each.key(), *each);
    const QByteArray lines = exported();
    for (auto each = notes.begin(); each != notes.end(); ++each)
        store.setAnnotationsForNetwork(each.key(), QString());
    EXPECT_THAT(import(lines), ElementsAre());
    EXPECT_EQ(store.annotations(), notes);
}

TEST_F(AnnotationsCSVTest, AddsImportedNotesToTheStoreAndSavesIt)
{
    store.setAnnotationsForNetwork(bssid(1), QStringLiteral("kept"));
    store.setAnnotationsForNetwork(bssid(2), QStringLiteral("to be replaced"));
    store.setAnnotationsForNetwork(bssid(3), QStringLiteral("to go"));
    QSignalSpy imports(&exchange, &AnnotationsCSV::didImport);
    EXPECT_THAT(import("\xef\xbb\xbf" // as spreadsheets begin
                       "aa:00:00:00:00:02,  new \r\n"
                       "AA:00:00:00:00:03,\r\n"
                       "aa:00:00:00:00:04,x,a third field\n"
                       "AA:00:00:00:00:05,\"cut \"here\"\n"
                       "AA:00:00:00:00:06,lost\n"),
                ElementsAre());
    const Annotations expected{{bssid(1), QStringLiteral("kept")},
                               {bssid(2), QStringLiteral("new")},
                               {bssid(4), QStringLiteral("x")},
                               {bssid(5), QStringLiteral("cut")}};
    EXPECT_EQ(store.annotations(), expected) << "up to the mark that is not doubled";
    TSAnnotationsHelper next(folder.filePath(QStringLiteral("annotations.plist")));
    EXPECT_EQ(next.load(), QString());
    EXPECT_EQ(next.annotations(), expected);
    EXPECT_EQ(imports.size(), 1);
}

TEST_F(AnnotationsCSVTest, AFileThatIsNoTextChangesNothing)
{
    store.setAnnotationsForNetwork(bssid(1), QStringLiteral("kept"));
    const Annotations before = store.annotations();
    QSignalSpy imports(&exchange, &AnnotationsCSV::didImport);
    const QString text = QStringLiteral("AA:00:00:00:00:01,Büro\n");
    const auto* units = reinterpret_cast<const char*>(text.utf16());
    const QByteArray files[] = {
        text.toLatin1(),
        QByteArray(units, text.size() * 2),
        "\xff\xfe" + QByteArray(units, text.size() * 2),
        "AA:00:00:00:00:01,new\nAA:00:00:00:00:02,\xf0\x9f\xa6\n",
    };
    for (const QByteArray& bytes : files) {
        EXPECT_THAT(import(bytes), ElementsAre("The import failed. " + file.toStdString() +
                                               ": The file is not text in UTF-8."));
    }
    exchange.importFile(folder.path());
    EXPECT_THAT(user.finished().back(),
                HasSubstr("The import failed. " + folder.path().toStdString()));
    EXPECT_EQ(store.annotations(), before);
    EXPECT_EQ(imports.size(), 0);
}

TEST_F(AnnotationsCSVTest, TellsThatAFileCouldNotBeWritten)
{
    exchange.exportFile(QStringLiteral("/proc/notes.csv"), {});
    EXPECT_THAT(
        user.finished(),
        ElementsAre("Exporting \"/proc/notes.csv\"",
                    HasSubstr("The export failed. /proc/notes.csv: could not be written: ")));
}
