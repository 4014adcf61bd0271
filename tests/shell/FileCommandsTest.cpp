#include "shell/ExchangeCommands.h"

#include "foundation/Defaults.h"
#include "persistence/ResultsFile.h"
#include "shell/ApplicationTest.h"
#include "shell/FilterField.h"
#include "shell/MainMenu.h"
#include "shell/TSProgressWindow.h"
#include "shell/TSSideView.h"
#include "shell/TestNetworks.h"

#include <QClipboard>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessara;
using testing::ElementsAre;

namespace {

/// What goes into files and comes from them, and the clipboard.
class FileCommandsTest : public ApplicationTest {
protected:
    QLineEdit* editor() { return table().viewport()->findChild<QLineEdit*>(); }

    /// Chooses a file in the panel that is open, and waits for the work on it.
    void choose(const QString& path)
    {
        auto* panel = window().findChild<QFileDialog*>();
        ASSERT_NE(panel, nullptr);
        panel->selectFile(path);
        static_cast<QDialog*>(panel)->accept();
        settle();
        waitForWork();
    }
    void waitForWork()
    {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return window().findChildren<TSProgressWindow*>().isEmpty(); }, 60'000));
        settle();
    }
    /// A results file of one network.
    QString savedFile(const char* name)
    {
        const QString path = directory.filePath(QLatin1String(name));
        QString error;
        EXPECT_TRUE(writeResultsFile(
            path, ResultsSnapshot::of(testNetworks(1), 5), [](double) { return true; }, error));
        return path;
    }
    bool accepts(const QStringList& paths)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        QDragEnterEvent enter({10, 10}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window(), &enter);
        if (!enter.isAccepted() || enter.dropAction() != Qt::CopyAction)
            return false;
        QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window(), &drop);
        waitForWork();
        return true;
    }
};

} // namespace

TEST_F(FileCommandsTest, ExportsTheListThatIsAskedFor)
{
    launch();
    Q_EMIT window().menu().fileMenuWillShow();
    EXPECT_FALSE(action("&All Networks...").isEnabled());
    EXPECT_FALSE(action("&Displayed Networks...").isEnabled());
    engineScans({named("0:0:0:0:0:1", "Zoo", 36), named("0:0:0:0:0:2", "Attic"),
                 named("0:0:0:0:0:3", "Cellar")});
    tick();
    window().findChild<FilterField*>()->setText(QStringLiteral("2.4GHz"));
    settle();
    Q_EMIT window().menu().fileMenuWillShow();
    EXPECT_TRUE(action("&Displayed Networks...").isEnabled());
    EXPECT_FALSE(action("&Selected Networks...").isEnabled());
    table().selectNetworks([](const TSNetwork& each) { return each.ssid() == u"Cellar"; });
    table().header()->moveSection(2, 1); // the name before the BSSID
    Q_EMIT window().menu().fileMenuWillShow();
    EXPECT_TRUE(action("&Selected Networks...").isEnabled());

    const std::pair<const char*, std::vector<const char*>> cases[] = {
        {"&All Networks...", {"Network Name,BSSID,", "Zoo,", "Attic,", "Cellar,", ""}},
        {"&Displayed Networks...", {"Network Name,BSSID,", "Attic,", "Cellar,", ""}},
        {"&Selected Networks...", {"Network Name,BSSID,", "Cellar,00:00:00:00:00:03,", ""}},
    };
    for (const auto& [command, lines] : cases) {
        SCOPED_TRACE(command);
        QFile file(directory.filePath(QStringLiteral("out.csv")));
        file.remove();
        action(command).trigger();
        choose(file.fileName());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QList<QByteArray> written = file.readAll().split('\n');
        ASSERT_EQ(written.size(), static_cast<qsizetype>(lines.size()));
        for (qsizetype i = 0; i < written.size(); ++i)
            EXPECT_TRUE(written[i].startsWith(lines[static_cast<std::size_t>(i)]))
                << written[i].constData();
        EXPECT_EQ(written[0].count(','), static_cast<qsizetype>(columnRegistry().size()) - 2)
            << "hidden columns too";
    }
}

TEST_F(FileCommandsTest, ANoteIsWrittenInTheTableWhileTheScanGoesOn)
{
    launch();
    engineScans({named("0:0:0:0:0:1", "Attic"), named("0:0:0:0:0:2", "Cellar")});
    tick();
    action("Edit &Annotation").trigger();
    EXPECT_EQ(editor(), nullptr) << "of which network?";
    table().selectNetworks([](const TSNetwork&) { return true; });
    action("Edit &Annotation").trigger();
    EXPECT_EQ(editor(), nullptr);

    table().selectNetworks([](const TSNetwork& each) { return each.ssid() == u"Cellar"; });
    action("Edit &Annotation").trigger();
    ASSERT_NE(editor(), nullptr) << "the column shows itself";
    QTest::keyClicks(editor(), QStringLiteral(" damp, dark "));
    NetworkList networks = delegate->scanCycle().networks();
    networks.push_back(testNetwork(3)); // "Net 3"
    delegate->scanCycle().didFindNetworks(networks, clock.now());
    settle();
    EXPECT_EQ(table().model()->rowCount(), 2) << "nothing moves under the text";
    ASSERT_NE(editor(), nullptr);
    QTest::keyClick(editor(), Qt::Key_Return);
    settle();
    EXPECT_EQ(table().model()->rowCount(), 3);
    EXPECT_EQ(cell(1, u"ANNOTATIONS"), QStringLiteral("damp, dark"));

    QTest::keyClick(&table(), Qt::Key_Return); // opens it by the keyboard too
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("damp, dark"));
    QTest::keyClicks(editor(), QStringLiteral("x"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(cell(1, u"ANNOTATIONS"), QStringLiteral("damp, dark"));

    action("Edit &Annotation").trigger();
    QTest::keyClicks(editor(), QStringLiteral("wet"));
    window().close();
    answerSheet("Don't Save");
    TSAnnotationsHelper onDisk(directory.filePath(QStringLiteral("annotations.plist")));
    EXPECT_EQ(onDisk.load(), QString());
    EXPECT_EQ(onDisk.annotationsForNetwork(QStringLiteral("00:00:00:00:00:02")),
              QStringLiteral("wet"))
        << "the end of the program does not cost the note";
}

TEST_F(FileCommandsTest, TakesNotesFromAFileAndGivesThemBack)
{
    launch();
    engineScans({named("a:b:c:d:e:f", "Attic")});
    tick();
    EXPECT_EQ(cell(0, u"ANNOTATIONS"), QString());
    QFile file(directory.filePath(QStringLiteral("notes.csv")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("0a:0b:0c:0d:0e:0f,\"damp, dark\"\n");
    file.close();
    action("&Import Annotations...").trigger();
    choose(file.fileName());
    EXPECT_EQ(cell(0, u"ANNOTATIONS"), QStringLiteral("damp, dark"));

    QFile copy(directory.filePath(QStringLiteral("copy.csv")));
    action("E&xport Annotations...").trigger();
    choose(copy.fileName());
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(copy.readAll(), QByteArray("0A:0B:0C:0D:0E:0F,\"damp, dark\"\n"));
}

TEST_F(FileCommandsTest, CopiesTheSelectedRowsWithTheKeyboardInTheTable)
{
    launch();
    engineScans({named("0:0:0:0:0:1", "Attic"), named("0:0:0:0:0:2", "Cellar")});
    tick();
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.setText(QStringLiteral("old"));
    const auto copied = [&](QWidget& focus) {
        focus.setFocus();
        action("&Copy").trigger();
        return clipboard.text();
    };
    EXPECT_EQ(copied(table()), QStringLiteral("old")) << "nothing is selected";
    table().selectNetworks([](const TSNetwork&) { return true; });
    auto& filter = *window().findChild<FilterField*>();
    EXPECT_EQ(copied(filter), QStringLiteral("old"));
    EXPECT_EQ(copied(*window().findChild<QTabBar*>()), QStringLiteral("old"));
    const QString text = copied(table());
    EXPECT_TRUE(text.startsWith(QStringLiteral("BSSID: 00:00:00:00:00:01\nNetwork Name: Attic\n")))
        << text.toStdString();
    EXPECT_EQ(text.count(QStringLiteral("\n\nBSSID: ")), 1);
    EXPECT_FALSE(text.contains(QStringLiteral("Noise"))) << "a hidden column";
    EXPECT_TRUE(clipboard.mimeData()->hasFormat(QStringLiteral("text/rtf")));
}

TEST_F(FileCommandsTest, SavesResultsAndOpensThemAgain)
{
    launch();
    QAction& saveAs = action("Save &As...");
    EXPECT_FALSE(saveAs.isEnabled());
    engineScans({named("0:0:0:0:0:1", "Beta"), named("0:0:0:0:0:2", "alpha")});
    EXPECT_TRUE(saveAs.isEnabled());
    EXPECT_TRUE(window().isWindowModified());

    saveAs.trigger();
    choose(directory.filePath(QStringLiteral("walk [*].tessara")));
    EXPECT_FALSE(delegate->scanCycle().isScanning());
    EXPECT_FALSE(saveAs.isEnabled());
    EXPECT_FALSE(window().isWindowModified());

    action("Scan").trigger(); // asks nothing: all is saved
    EXPECT_TRUE(delegate->scanCycle().isScanning());
    EXPECT_EQ(title(), QStringLiteral("Tessara - Scanning"));
    EXPECT_TRUE(names().empty());

    action("&Open...").trigger();
    choose(directory.filePath(QStringLiteral("walk [*].tessara")));
    EXPECT_THAT(names(), ElementsAre("alpha", "Beta"));
    EXPECT_FALSE(delegate->scanCycle().isScanning());
    EXPECT_EQ(window().windowTitle(),
              directory.filePath(QStringLiteral("walk [*][*]")) + QStringLiteral("[*]"));
    EXPECT_FALSE(saveAs.isEnabled()) << "it is as it was opened";
    action("walk [*].tessara").trigger(); // a recent one
    waitForWork();
    EXPECT_THAT(names(), ElementsAre("alpha", "Beta"));
}

TEST_F(FileCommandsTest, ShowsAFileThatItWasStartedWithInsteadOfScanning)
{
    launch(savedFile("a.tessara"));
    waitForWork();
    EXPECT_FALSE(delegate->scanCycle().isScanning());
    EXPECT_THAT(names(), ElementsAre("Net 0"));
}

TEST_F(FileCommandsTest, TakesOneDroppedResultsFile)
{
    Defaults::standard().setValue(DefaultKey::AutoScan, false);
    const QString file = savedFile("a.tessara");
    launch();
    EXPECT_FALSE(accepts({file, file}));
    EXPECT_FALSE(accepts({directory.filePath(QStringLiteral("a.txt"))}));
    EXPECT_TRUE(names().empty());
    EXPECT_TRUE(accepts({file}));
    EXPECT_THAT(names(), ElementsAre("Net 0"));
    EXPECT_TRUE(accepts({directory.filePath(QStringLiteral("a.TESSARA"))}));
    EXPECT_EQ(sheets().size(), 1) << "case counts when it is opened";
    EXPECT_THAT(names(), ElementsAre("Net 0"));
}

TEST_F(FileCommandsTest, AsksBeforeAScanOrAnEndLosesResults)
{
    launch();
    engineScans({named("0:0:0:0:0:1", "Beta")});
    action("Stop").trigger();
    action("Scan").trigger();
    answerSheet("Cancel");
    EXPECT_FALSE(delegate->scanCycle().isScanning());
    EXPECT_THAT(names(), ElementsAre("Beta"));

    QSignalSpy ends(delegate.get(), &AppDelegate::didTerminate);
    window().close();
    EXPECT_TRUE(window().isVisible());
    answerSheet("Cancel");
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(ends.size(), 0);

    window().close();
    answerSheet("Save");
    Q_EMIT window().findChild<QFileDialog*>()->fileSelected(
        directory.filePath(QStringLiteral("a.tessara")));
    waitForWork();
    EXPECT_EQ(ends.size(), 1);
    EXPECT_TRUE(QFile::exists(directory.filePath(QStringLiteral("a.tessara"))));
}

TEST_F(FileCommandsTest, CopyAndPasteAreForWhatHasTheKeyboard)
{
    launch();
    engineScans({named("0:0:0:0:0:1", "Attic")});
    tick();
    window().activateWindow();
    auto* field = window().findChild<FilterField*>();
    field->setFocus();
    settle();
    EXPECT_TRUE(action("&Paste").isEnabled());
    QGuiApplication::clipboard()->setText(QStringLiteral("att"));
    action("&Paste").trigger();
    EXPECT_EQ(field->text(), QStringLiteral("att"));
    table().setFocus();
    settle();
    EXPECT_FALSE(action("&Paste").isEnabled());
    EXPECT_TRUE(action("&Copy").isEnabled());
    action("Select A&ll").trigger();
    EXPECT_EQ(table().selectedItems().size(), 1U);
    action("&Side View").trigger();
    window().sideView().setFocus();
    settle();
    EXPECT_FALSE(action("&Copy").isEnabled());

    action("&Side View").trigger();
    settle();
    EXPECT_TRUE(table().hasFocus()) << "an area that is shut has no keyboard";
    EXPECT_FALSE(window().sideView().isEnabled());
}
