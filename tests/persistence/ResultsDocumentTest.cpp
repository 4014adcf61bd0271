#include "persistence/ResultsDocument.h"

#include "foundation/Defaults.h"
#include "persistence/ResultsFile.h"
#include "persistence/TestResults.h"
#include "support/ManualClock.h"
#include "support/QtPrinters.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessara;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// A user who answers as the test has decided.
class DecidedUser final : public UserPrompt {
public:
    AlertId beginAlert(const TSAlert& alert, Answer answer) override
    {
        alerts.push_back((alert.messageText + u'|' + alert.informativeText).toStdString());
        answer(TSAlert::kFirstButton);
        return 0;
    }
    void endAlert(AlertId) override {}
    AlertId beginSuppressibleAlert(const TSAlert& alert, SuppressibleAnswer answer) override
    {
        alerts.push_back(alert.messageText.toStdString());
        answer(code, suppresses);
        return 0;
    }
    ProgressId beginCancellableProgress(const QString& message,
                                        const std::function<void()>& cancel) override
    {
        sheets.push_back(message.toStdString());
        ++openSheets;
        if (cancels)
            cancel();
        return 0;
    }
    void setProgress(ProgressId, double value) override { progress.push_back(value); }
    void endProgress(ProgressId) override { --openSheets; }
    void beginSavePanel(const FileKind&, const FileAnswer& answer) override
    {
        if (!path.isEmpty())
            answer(path);
    }
    void beginOpenPanel(const FileKind&, const FileAnswer& answer) override { answer(pathToOpen); }

    int code = TSAlert::kThirdButton;
    bool suppresses = false;
    bool cancels = false;
    QString path;
    QString pathToOpen;
    std::vector<std::string> alerts;
    std::vector<std::string> sheets;
    std::vector<double> progress;
    int openSheets = 0;
};

class Shown final : public ShownResults {
public:
    const NetworkList& networks() const override { return list; }
    double lastScanTime() const override { return 1'700'000'003; }
    void doStop() override
    {
        isScanning = false;
        document->leaveFile();
    }
    void doStopAndClearResults() override
    {
        doStop();
        list.clear();
    }
    void didFindNetworks(const NetworkList& networks, double scanTime) override
    {
        list = networks;
        referenceTime = scanTime;
    }

    ResultsDocument* document = nullptr;
    NetworkList list = scannedNetworks(2);
    double referenceTime = 0;
    bool isScanning = true;
};

class ResultsDocumentTest : public testing::Test {
protected:
    ResultsDocumentTest() { shown.document = &document; }
    ~ResultsDocumentTest() override
    {
        Defaults::standard().remove(DefaultKey::SaveAlertSupressionButton);
    }

    QString inFolder(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }

    void waitForWork()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return user.openSheets == 0; }, 60'000));
    }
    void save(const QString& path)
    {
        user.path = path;
        document.onFileSaveAs();
        waitForWork();
    }
    void open(const QString& path)
    {
        document.openFile(path);
        waitForWork();
    }
    void write(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QTemporaryDir folder;
    ManualClock clock;
    DecidedUser user;
    Shown shown;
    ResultsDocument document{shown, user, clock};
};

} // namespace

TEST_F(ResultsDocumentTest, ShowsWhatWasSavedUnderTheNameOfTheFile)
{
    EXPECT_TRUE(document.hasUnsavedResults());
    save(inFolder("a.tessara"));
    EXPECT_FALSE(shown.isScanning) << "what is saved stands still";
    EXPECT_EQ(document.title(), inFolder("a"));
    EXPECT_FALSE(document.hasUnsavedResults());

    shown.doStopAndClearResults();
    open(inFolder("a.tessara"));
    EXPECT_EQ(shown.list.size(), 2U);
    EXPECT_EQ(shown.referenceTime, 1'700'000'003);
    EXPECT_EQ(document.title(), inFolder("a"));
    EXPECT_THAT(user.sheets, ElementsAre(HasSubstr("Saving \"/"), HasSubstr("Opening \"/")));
    EXPECT_THAT(user.alerts, IsEmpty());
}

TEST_F(ResultsDocumentTest, AsksBeforeResultsAreLost)
{
    struct Case {
        int code;
        const char* savePath;
        bool isDone;
        bool isSaved;
    };
    const Case cases[] = {
        {TSAlert::kThirdButton, "a.tessara", true, false},
        {TSAlert::kSecondButton, "a.tessara", false, false},
        {TSAlert::kFirstButton, "a.tessara", true, true},
        {TSAlert::kFirstButton, nullptr, false, false}, // the panel is cancelled
        {TSAlert::kFirstButton, "none/a.tessara", false, false},
    };
    for (const Case& c : cases) {
        QFile::remove(inFolder("a.tessara"));
        document.leaveFile();
        user.code = c.code;
        user.path = c.savePath ? inFolder(c.savePath) : QString();
        bool isDone = false;
        document.doAfterSaving([&isDone] { isDone = true; });
        waitForWork();
        EXPECT_EQ(isDone, c.isDone);
        EXPECT_EQ(QFile::exists(inFolder("a.tessara")), c.isSaved);
        EXPECT_EQ(document.hasUnsavedResults(), !c.isSaved);
    }
}

TEST_F(ResultsDocumentTest, DoesNotAskWhereNothingIsLostOrTheUserWantsNoQuestions)
{
    const auto asks = [this] {
        user.alerts.clear();
        document.doAfterSaving([] {});
        return !user.alerts.empty();
    };
    EXPECT_TRUE(asks());
    save(inFolder("a.tessara"));
    EXPECT_FALSE(asks()) << "saved";
    shown.doStopAndClearResults();
    EXPECT_FALSE(asks()) << "empty";
    shown.list = scannedNetworks(1);
    user.suppresses = true;
    user.code = TSAlert::kSecondButton;
    EXPECT_TRUE(asks());
    EXPECT_FALSE(asks()) << "the check box counts with any button";
}

TEST_F(ResultsDocumentTest, ShowsTheSavedResultsRatherThanTheFileThatWasToOpen)
{
    save(inFolder("other.tessara"));
    document.leaveFile();
    shown.list = scannedNetworks(5);
    user.code = TSAlert::kFirstButton;
    user.path = inFolder("mine.tessara");
    document.openFile(inFolder("other.tessara"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return user.sheets.size() == 3; }, 60'000));
    waitForWork();
    EXPECT_EQ(document.title(), inFolder("mine"));
    EXPECT_EQ(shown.list.size(), 5U);
}

TEST_F(ResultsDocumentTest, TellsWhyAFileCannotBeOpened)
{
    write(inFolder("damaged.tessara"), "bplist00 and then nothing");
    save(inFolder("upper.tessara"));
    QFile::rename(inFolder("upper.tessara"), inFolder("upper.TESSARA"));
    struct Case {
        const char* name;
        const char* reason;
        bool keepsResults;
    };
    const Case cases[] = {
        {"upper.TESSARA", "This file's format is not supported in this version of Tessara.", true},
        {"damaged.tessara", "The file does not have a valid format.", false},
        {"none.tessara", "No such file or directory", false},
    };
    for (const Case& c : cases) {
        shown.list = scannedNetworks(1);
        shown.isScanning = true;
        user.alerts.clear();
        open(inFolder(c.name));
        const std::string alert = user.alerts.empty() ? "" : user.alerts.back();
        EXPECT_EQ(alert, std::string("The file \"") + c.name + "\" could not be read.|" + c.reason);
        EXPECT_EQ(shown.isScanning, c.keepsResults);
        EXPECT_EQ(shown.list.empty(), !c.keepsResults);
    }
}

TEST_F(ResultsDocumentTest, TellsWhyResultsCannotBeSavedAndKeepsThemUnsaved)
{
    save(inFolder("none/a.tessara"));
    EXPECT_THAT(user.alerts, ElementsAre(HasSubstr("The file \"a.tessara\" could not be saved.|")));
    save(QStringLiteral("/proc/a.tessara")); // where nobody may make a file
    EXPECT_EQ(user.alerts.size(), 2U);
    EXPECT_TRUE(document.hasUnsavedResults());
    EXPECT_EQ(document.title(), QString());
}

TEST_F(ResultsDocumentTest, MovesTheProgressAndEndsWhenTheUserCancels)
{
    shown.list = scannedNetworks(50, 5000); // more than are copied at once
    save(inFolder("a.tessara"));
    EXPECT_THAT(user.progress, testing::SizeIs(testing::Ge(20U)));
    EXPECT_TRUE(std::ranges::is_sorted(user.progress));
    open(inFolder("a.tessara"));
    ASSERT_EQ(shown.list.size(), 50U);
    EXPECT_EQ(shown.list.back()->history().size(), 5000U);

    user.cancels = true;
    document.leaveFile();
    bool isDone = false;
    user.code = TSAlert::kFirstButton;
    user.path = inFolder("b.tessara");
    document.doAfterSaving([&isDone] { isDone = true; });
    waitForWork();
    EXPECT_FALSE(isDone);
    EXPECT_FALSE(QFile::exists(user.path));
    EXPECT_TRUE(document.hasUnsavedResults());

    user.code = TSAlert::kThirdButton;
    open(inFolder("a.tessara"));
    EXPECT_TRUE(shown.list.empty());
    EXPECT_EQ(document.title(), QString());
    EXPECT_THAT(user.alerts, ElementsAre("Do you want to save the current results?",
                                         "Do you want to save the current results?"));
}

TEST_F(ResultsDocumentTest, SavesWholeWhatTheEndOfTheProgramInterrupts)
{
    constexpr int kSamples = 10'000; // of all records together more than are copied at once
    shown.list = scannedNetworks(30);
    for (const NetworkPtr& network : shown.list) {
        for (int i = 0; i < kSamples; ++i)
            network->addDataPoint({-60, -92, -1, -1, 1.7e9 + i});
    }
    auto ending = std::make_unique<ResultsDocument>(shown, user, clock);
    user.path = inFolder("a.tessara");
    ending->onFileSaveAs();
    ending.reset();

    ResultsFileError error;
    const auto saved = readResultsFile(
        user.path, 0, [](double) { return true; }, error);
    ASSERT_TRUE(saved.has_value()) << error.format.toStdString();
    ASSERT_EQ(saved->networks.size(), 30U);
    EXPECT_GE(saved->networks.back()->dataPoints().size(), static_cast<std::size_t>(kSamples));
}
