#include "persistence/ResultsFile.h"
#include "shell/FilterField.h"
#include "shell/GraphTabs.h"
#include "shell/MainMenu.h"
#include "shell/RunningApplication.h"
#include "shell/TSAdvancedDetailsView.h"
#include "shell/TSNetworksView.h"
#include "shell/TSProgressWindow.h"
#include "shell/TSSideView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QTest>

#include <gtest/gtest.h>

#include <random>

using namespace tessara;

namespace {

constexpr int kTicks = 5400; // three hours
constexpr int kNetworks = 60;

/// A user who clicks here and there, and looks at what comes of it.
class RestlessUser : public RunningApplication {
public:
    RestlessUser() { launch(); }

    void clickSomewhere()
    {
        const std::function<void()> habits[] = {
            [this] { selectRow(); },
            [this] { selectRow(Qt::ControlModifier); },
            [this] { window().graphTabs().selectGraph(number(4)); },
            [this] { typeFilter(); },
            [this] { clickHeader(); },
            [this] { clickSideView(); },
            [this] { Q_EMIT window().menu().quickFilterSelected(QuickFilter(number(4))); },
            [this] { toggleColumn(); },
            [this] { writeNote(); },
            [this] { action("Make Text &Bigger").trigger(); },
            [this] { action("Make Text Smalle&r").trigger(); },
            [this] { window().resize(800 + number(800), 500 + number(500)); },
            [this] { moveOverChart(); },
            [this] { expandElements(); },
            [this] { action("&Copy").trigger(); },
            [this] { QTest::keyClick(&table(), "1234567890"[number(10)], Qt::AltModifier); },
            [this] { QTest::keyClick(&table(), Qt::Key_Escape); },
            [this] { Defaults::standard().setValue(DefaultKey::Units, number(2)); },
            [this] { startAgain(); },
            [this] { saveAndOpen(); },
        };
        habits[static_cast<std::size_t>(number(std::size(habits)))]();
        settle();
        closeQuestions();
    }

    /// Half of the networks are in sight, and others as the user walks on.
    void scan(int place)
    {
        std::vector<CWNetwork> found;
        for (int i = 0; i < kNetworks; ++i) {
            if (number(2) == 0)
                continue;
            CWNetwork each = network("", i % 3 ? 1 + i % 11 : 36 + 4 * (i % 4), -30 - number(70));
            each.bssid = QString::asprintf("2:0:0:0:%x:%x", place, i);
            each.ssid = i % 7 ? QStringLiteral("Net %1").arg(i % 20) : QString();
            each.informationElementData =
                QByteArray::fromHex("010482848b960b0503007f0000").append("\x30", 1);
            found.push_back(std::move(each));
        }
        if (delegate->scanCycle().isScanning())
            engineScans(std::move(found));
    }

    TSNetworksView& table() { return window().networksView(); }
    int number(std::size_t below) { return static_cast<int>(m_random() % below); }

private:
    void selectRow(Qt::KeyboardModifiers modifiers = {})
    {
        const int rows = table().model()->rowCount();
        if (rows == 0)
            return;
        const QModelIndex index = table().model()->index(number(static_cast<std::size_t>(rows)), 1);
        table().scrollTo(index);
        QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers,
                          table().visualRect(index).center());
    }
    void typeFilter()
    {
        const char* const lines[] = {"", "net 1", "5GHz & >=30%", "!open, chan=6", "((", "20MHz"};
        window().findChild<FilterField*>()->setText(
            QString::fromLatin1(lines[number(std::size(lines))]));
    }
    void clickHeader()
    {
        table().header()->setSortIndicator(number(columnRegistry().size()),
                                           number(2) ? Qt::AscendingOrder : Qt::DescendingOrder);
    }
    void clickSideView()
    {
        TSSideView& view = window().sideView();
        view.expandAll();
        const QPoint place(30, number(static_cast<std::size_t>(view.height())));
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    }
    void toggleColumn()
    {
        const Column& column =
            columnRegistry()[static_cast<std::size_t>(number(columnRegistry().size()))];
        if (TSNetworksView::canBeHidden(column))
            table().setColumnShown(column, number(2));
    }
    void writeNote()
    {
        table().editAnnotations();
        if (auto* editor = table().viewport()->findChild<QLineEdit*>())
            QTest::keyClicks(editor, QStringLiteral("note %1").arg(number(9)));
        table().endEditing();
    }
    void moveOverChart()
    {
        for (QWidget* chart : window().graphTabs().findChildren<QWidget*>()) {
            if (chart->isVisible())
                QTest::mouseMove(chart, {number(400), number(200)});
        }
    }
    void expandElements()
    {
        auto& view = window().graphTabs().advancedDetailsView();
        if (number(2))
            view.expandAll();
        else
            view.collapseAll();
    }
    void startAgain()
    {
        action("Stop").trigger();
        settle();
        action("Scan").trigger();
    }
    void saveAndOpen()
    {
        QString error;
        const QString path = directory.filePath(QStringLiteral("a.tessara"));
        ASSERT_TRUE(writeResultsFile(
            path, ResultsSnapshot::of(delegate->scanCycle().networks(), clock.now()),
            [](double) { return true; }, error));
        delegate->openFile(path);
        settle();
        closeQuestions();
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return window().findChildren<TSProgressWindow*>().isEmpty(); }, 60'000));
        action("Scan").trigger();
    }
    /// Any answer will do.
    void closeQuestions()
    {
        for (QMessageBox* sheet : window().findChildren<QMessageBox*>()) {
            const auto buttons = sheet->buttons();
            // Not "Save", which asks for a name.
            buttons[buttons.size() - 1 - (buttons.size() > 2 ? number(2) : 0)]->click();
        }
        settle();
    }

    std::mt19937 m_random; // NOLINT(cert-msc51-cpp): an evening that can be lived through again
};

} // namespace

TEST(Evening, IsLivedThroughWithoutAFault)
{
    RestlessUser user;
    for (int tick = 0; tick < kTicks; ++tick) {
        user.scan(tick / 600);
        user.tick();
        if (tick % 3 == 0)
            user.clickSomewhere();
        // Whatever was clicked, what is shown is what the list holds.
        ASSERT_EQ(static_cast<std::size_t>(user.table().model()->rowCount()),
                  user.delegate->pipeline().filteredNetworks().size());
        ASSERT_LE(user.delegate->pipeline().filteredNetworks().size(),
                  user.delegate->scanCycle().networks().size());
    }
    if (!user.delegate->scanCycle().isScanning())
        user.action("Scan").trigger();
    user.scan(99);
    user.tick();
    EXPECT_FALSE(user.delegate->scanCycle().networks().empty()) << "and it scans still";
}
