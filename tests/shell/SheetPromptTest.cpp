#include "shell/SheetPrompt.h"

#include "shell/TSProgressWindow.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressBar>
#include <QTest>
#include <QWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

using namespace tessara;
using testing::ElementsAre;

namespace {

class SheetPromptTest : public testing::Test {
protected:
    SheetPromptTest() { window.show(); }

    UserPrompt::AlertId begin(const QStringList& buttons)
    {
        return prompt.beginAlert(
            {.messageText = QStringLiteral("Really?"),
             .informativeText = QStringLiteral("It costs <b>nothing</b> & little else."),
             .buttons = buttons},
            [this](int code) { answers.push_back(code); });
    }

    QMessageBox* sheet() const { return window.findChild<QMessageBox*>(); }

    QWidget window;
    SheetPrompt prompt{window};
    std::vector<int> answers;
};

} // namespace

TEST_F(SheetPromptTest, ReportsTheButtonThatWasPressed)
{
    const QStringList titles{QStringLiteral("Save"), QStringLiteral("Cancel"),
                             QStringLiteral("Don't Save")};
    for (const QString& title : titles) {
        begin(titles);
        ASSERT_NE(sheet(), nullptr);
        EXPECT_EQ(sheet()->windowModality(), Qt::WindowModal);
        for (QAbstractButton* button : sheet()->buttons()) {
            if (button->text() == title)
                button->click();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(sheet(), nullptr);
    }
    EXPECT_THAT(answers,
                ElementsAre(TSAlert::kFirstButton, TSAlert::kSecondButton, TSAlert::kThirdButton));
}

TEST_F(SheetPromptTest, AnswersReturnWithTheFirstButtonAndEscapeWithCancel)
{
    begin({QStringLiteral("Turn Wi-Fi On"), QStringLiteral("Cancel")});
    QTest::keyClick(sheet(), Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    begin({QStringLiteral("Turn Wi-Fi On"), QStringLiteral("Cancel")});
    QTest::keyClick(sheet(), Qt::Key_Escape);
    EXPECT_THAT(answers, ElementsAre(TSAlert::kFirstButton, TSAlert::kSecondButton));
}

TEST_F(SheetPromptTest, TakesAClosedAlertForCancelOrItsOnlyButton)
{
    for (const QStringList& buttons : {QStringList{QStringLiteral("OK")},
                                       QStringList{QStringLiteral("Save"), QStringLiteral("Cancel"),
                                                   QStringLiteral("Discard")}}) {
        begin(buttons);
        sheet()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_THAT(answers, ElementsAre(TSAlert::kFirstButton, TSAlert::kSecondButton));
}

TEST_F(SheetPromptTest, TakesASheetAwayWithoutAnAnswer)
{
    const UserPrompt::AlertId alert = begin({QStringLiteral("OK")});
    prompt.endAlert(alert);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(sheet(), nullptr);
    prompt.endAlert(alert); // gone already
    EXPECT_TRUE(answers.empty());
}

TEST_F(SheetPromptTest, KeepsProgressInSightUntilTheWorkHasEnded)
{
    int cancels = 0;
    const auto sheetOf = [this] { return window.findChild<TSProgressWindow*>(); };
    const auto progress =
        prompt.beginCancellableProgress(QStringLiteral("Saving"), [&cancels] { ++cancels; });
    prompt.setProgress(progress, 0.5);
    auto* bar = sheetOf()->findChild<QProgressBar*>();
    EXPECT_EQ(bar->value() * 2, bar->maximum());
    QTest::keyClick(sheetOf(), Qt::Key_Escape);
    QTest::keyClick(sheetOf(), Qt::Key_Escape);
    EXPECT_EQ(cancels, 1);
    EXPECT_TRUE(sheetOf()->isVisible());
    prompt.endProgress(progress);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(sheetOf(), nullptr);
    prompt.setProgress(progress, 1); // late

    prompt.beginProgress(QStringLiteral("Checking"));
    QTest::keyClick(sheetOf(), Qt::Key_Escape);
    EXPECT_TRUE(sheetOf()->isVisible()) << "what cannot be cancelled";
}

TEST_F(SheetPromptTest, GivesASavedFileTheExtensionOfItsKind)
{
    QStringList paths;
    prompt.beginSavePanel({QStringLiteral("Results"), QStringLiteral("tessara")},
                          [&paths](const QString& path) { paths += path; });
    const auto choose = [this](const char* path) {
        auto* panel = window.findChild<QFileDialog*>();
        Q_EMIT panel->fileSelected(QLatin1String(path));
        delete panel;
    };
    choose("/tmp/walk.txt");
    EXPECT_TRUE(paths.isEmpty()) << "the panel asks anew, as there may be such a file";
    choose("/tmp/walk.txt.tessara");
    EXPECT_EQ(paths, QStringList{QStringLiteral("/tmp/walk.txt.tessara")});
}
