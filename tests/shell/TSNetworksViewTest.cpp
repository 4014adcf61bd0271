#include "shell/TSNetworksView.h"

#include "shell/TestNetworks.h"

#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace tessara;
using testing::ElementsAre;

namespace {

int columnNumber(QStringView identifier)
{
    return static_cast<int>(columnWithIdentifier(identifier) - columnRegistry().data());
}

class NetworksViewTest : public testing::Test {
protected:
    NetworksViewTest()
    {
        view.resize(900, 300);
        view.show();
    }

    void show(const NetworkList& networks)
    {
        view.setNetworks(networks, {});
        QCoreApplication::processEvents();
    }

    /// The networks of the selected rows.
    NetworkList selected() const
    {
        NetworkList result;
        for (const QModelIndex& row : view.selectionModel()->selectedRows())
            result.push_back(networksShown().at(static_cast<std::size_t>(row.row())));
        return result;
    }

    const NetworkList& networksShown() const
    {
        return static_cast<const NetworksTableModel*>(view.model())->networks();
    }

    void click(int row)
    {
        const QRect cell = view.visualRect(view.model()->index(row, columnNumber(u"BSSID")));
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, cell.center());
    }

    void clickHeader(QStringView identifier)
    {
        const QHeaderView& header = *view.header();
        const int column = columnNumber(identifier);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                           header.height() / 2});
    }

    std::vector<std::string> sorting() const
    {
        std::vector<std::string> result;
        for (const SortDescriptor& each : view.sortDescriptors())
            result.push_back((each.ascending ? "+" : "-") + each.column->identifier.toStdString());
        return result;
    }

    NetworkList networks = testNetworks(200);
    TSNetworksView view;
};

} // namespace

TEST_F(NetworksViewTest, KeepsSelectionCurrentRowAndScrollPositionAcrossTicksAndNewOrders)
{
    show(networks);
    view.verticalScrollBar()->setValue(400);
    const int row = view.indexAt(view.viewport()->rect().center()).row();
    const NetworkPtr chosen = networks[static_cast<std::size_t>(row)];
    click(row);
    ASSERT_THAT(selected(), ElementsAre(chosen));
    EXPECT_TRUE(chosen->isUserHighlighted());

    QSignalSpy selections(&view, &TSNetworksView::selectionDidChange);
    std::mt19937 random(3);
    for (int tick = 0; tick < 20; ++tick) {
        if (tick % 4 == 0)
            std::ranges::shuffle(networks, random); // sorted by another column
        else
            std::swap(networks[10], networks[150]); // two readings have changed
        show(networks);
        ASSERT_THAT(selected(), ElementsAre(chosen));
        ASSERT_EQ(networksShown().at(static_cast<std::size_t>(view.currentIndex().row())), chosen);
        ASSERT_EQ(view.verticalScrollBar()->value(), 400);
    }
    EXPECT_EQ(selections.size(), 0) << "the user has selected nothing";
}

TEST_F(NetworksViewTest, KeepsALargeScatteredSelectionThroughAnyChange)
{
    NetworkList chosen;
    for (std::size_t row = 0; row < networks.size(); row += 2) {
        networks[row]->setUserHighlighted(true);
        chosen.push_back(networks[row]);
    }
    std::mt19937 random(5);
    for (int change = 0; change < 10; ++change) {
        if (change % 3 == 2)
            std::ranges::shuffle(networks, random);
        else
            std::swap(networks[20], networks[170]);
        show(networks);
        ASSERT_THAT(selected(), testing::UnorderedElementsAreArray(chosen));
    }
}

TEST_F(NetworksViewTest, SelectsANetworkAgainThatLeavesTheListAndComesBack)
{
    show(networks);
    click(3);
    const NetworkPtr chosen = networks[3];
    NetworkList without = networks;
    without.erase(without.begin() + 3);
    show(without);
    EXPECT_TRUE(selected().empty());
    show(networks);
    EXPECT_THAT(selected(), ElementsAre(chosen));

    // What is left out while the user selects another keeps its mark, too.
    show(without);
    click(0);
    show(networks);
    EXPECT_EQ(selected().size(), 2U);

    networks[3]->setUserHighlighted(false); // as another kind of networks is asked for
    show(networks);
    EXPECT_EQ(selected().size(), 1U);
}

TEST_F(NetworksViewTest, MovesByArrowsClearsByEscapeAndIgnoresLetters)
{
    show(networks);
    click(0);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_THAT(selected(), ElementsAre(networks[1]));
    QTest::keyClicks(&view, QStringLiteral("02:00:00:00:00:09"));
    EXPECT_THAT(selected(), ElementsAre(networks[1]));
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_TRUE(selected().empty());
    EXPECT_FALSE(networks[1]->isUserHighlighted());
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_TRUE(selected().empty());
}

TEST_F(NetworksViewTest, SelectsTheNetworksOfAConditionAndScrollsToTheFirst)
{
    show(networks);
    networks[120]->setAssociated(true);
    view.horizontalScrollBar()->setValue(70);
    view.selectNetworks([](const TSNetwork& network) { return network.isAssociated(); });
    EXPECT_THAT(selected(), ElementsAre(networks[120]));
    EXPECT_TRUE(view.viewport()->rect().contains(
        view.visualRect(view.model()->index(120, columnNumber(u"VENDOR"))).center()));
    EXPECT_EQ(view.horizontalScrollBar()->value(), 70) << "the columns stay where they are";
    view.selectNetworks([](const TSNetwork&) { return false; });
    EXPECT_TRUE(selected().empty());
}

TEST_F(NetworksViewTest, SortsByTheClickedColumnAndBreaksTiesByThePreviousOnes)
{
    show(networks);
    EXPECT_THAT(sorting(), ElementsAre("+SSID"));
    QSignalSpy changes(&view, &TSNetworksView::sortDescriptorsDidChange);
    clickHeader(u"CHANNEL");
    EXPECT_THAT(sorting(), ElementsAre("+CHANNEL", "+SSID"));
    clickHeader(u"CHANNEL");
    EXPECT_THAT(sorting(), ElementsAre("-CHANNEL", "+SSID"));
    clickHeader(u"SSID");
    EXPECT_THAT(sorting(), ElementsAre("+SSID", "-CHANNEL"));
    EXPECT_EQ(changes.size(), 3);

    clickHeader(u"IS_USER_HIDDEN");
    EXPECT_THAT(sorting(), ElementsAre("+SSID", "-CHANNEL"));
    EXPECT_EQ(view.header()->sortIndicatorSection(), columnNumber(u"SSID"));
    EXPECT_EQ(changes.size(), 3) << "the marker does not sort";
}

TEST_F(NetworksViewTest, KeepsTheLayoutOfItsColumnsFromRunToRun)
{
    show(networks);
    view.header()->moveSection(view.header()->visualIndex(columnNumber(u"CHANNEL")), 1);
    view.header()->resizeSection(columnNumber(u"VENDOR"), 77);
    view.header()->resizeSection(columnNumber(u"SEEN"), 99);
    view.setColumnHidden(columnNumber(u"SEEN"), true);
    view.setColumnHidden(columnNumber(u"NOISE"), false);
    clickHeader(u"RSSI");
    const QByteArray state = view.layoutState();

    TSNetworksView next;
    next.restoreLayout(state);
    EXPECT_EQ(next.header()->visualIndex(columnNumber(u"CHANNEL")), 1);
    EXPECT_EQ(next.columnWidth(columnNumber(u"VENDOR")), 77);
    EXPECT_TRUE(next.isColumnHidden(columnNumber(u"SEEN")));
    EXPECT_FALSE(next.isColumnHidden(columnNumber(u"NOISE")));
    EXPECT_EQ(next.sortDescriptors().front().column->identifier, QLatin1String("RSSI"));
    EXPECT_EQ(next.layoutState(), state);
    next.setColumnHidden(columnNumber(u"SEEN"), false);
    EXPECT_EQ(next.columnWidth(columnNumber(u"SEEN")), 99) << "a hidden column keeps its width";
}

TEST_F(NetworksViewTest, SizesHiddenColumnsForTheFontToo)
{
    view.setFontSize(18);
    view.restoreLayout({});
    TSNetworksView next;
    next.setFontSize(18);
    next.restoreLayout(view.layoutState());
    const int column = columnNumber(u"FIRST_SEEN");
    view.setColumnHidden(column, false);
    next.setColumnHidden(column, false);
    EXPECT_EQ(next.columnWidth(column), view.columnWidth(column));
}

TEST_F(NetworksViewTest, ComesUpFreshFromALayoutThatIsDamagedOrOfAnotherVersion)
{
    const QByteArray fresh = view.layoutState();
    for (const char* damaged : {"", "{", "[]", R"({"columns": 7, "sorting": "x"})",
                                R"({"columns": [{"identifier": "NO_SUCH", "width": 50}, null]})",
                                R"({"columns": [{"identifier": "SSID", "width": -4}]})",
                                R"({"columns": [{"identifier": "SSID", "width": 1e300}]})",
                                R"({"sorting": [{"identifier": "IS_USER_HIDDEN"}]})"}) {
        view.restoreLayout(damaged);
        EXPECT_EQ(view.layoutState(), fresh) << damaged;
    }
    // The column that tells what a row is cannot be away.
    view.restoreLayout(R"({"columns": [{"identifier": "BSSID", "width": 50, "hidden": true}]})");
    EXPECT_FALSE(view.isColumnHidden(columnNumber(u"BSSID")));
}

TEST_F(NetworksViewTest, OffersEachColumnButTheMarkerInItsMenu)
{
    QMenu menu;
    view.addColumnItems(menu);
    ASSERT_EQ(menu.actions().size(), static_cast<qsizetype>(columnRegistry().size()) - 1);
    QStringList titles;
    for (QAction* item : menu.actions())
        titles.append(item->text());
    EXPECT_TRUE(std::ranges::is_sorted(titles, [](const QString& a, const QString& b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    }));

    const auto item = [&](QStringView identifier) {
        const QString title = localized(columnWithIdentifier(identifier)->title);
        return menu.actions().at(titles.indexOf(title));
    };
    EXPECT_FALSE(item(u"BSSID")->isEnabled());
    EXPECT_TRUE(item(u"SEEN")->isChecked());
    QSignalSpy changes(&view, &TSNetworksView::columnDidChangeHiddenState);
    item(u"SEEN")->trigger();
    item(u"NOISE")->trigger();
    EXPECT_TRUE(view.isColumnHidden(columnNumber(u"SEEN")));
    EXPECT_FALSE(view.isColumnHidden(columnNumber(u"NOISE")));
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(NetworksViewTest, FitsAColumnToTheWidestOfAllRowsNotOnlyOfThoseInSight)
{
    show(networks);
    const int ssid = columnNumber(u"SSID");
    view.resizeColumnToContents(ssid);
    const int narrow = view.columnWidth(ssid);
    ScanDictionary longName = networks.back()->network();
    longName.ssid = QString(32, u'W');
    networks.back()->setNetwork(longName);
    show(networks);
    view.resizeColumnToContents(ssid);
    EXPECT_GT(view.columnWidth(ssid), 2 * narrow);
    EXPECT_GT(view.columnWidth(ssid), view.fontMetrics().horizontalAdvance(*longName.ssid));
}
