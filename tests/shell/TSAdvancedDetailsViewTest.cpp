#include "shell/TSAdvancedDetailsView.h"

#include "persistence/ClipboardText.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;

namespace {

NetworkPtr networkWith(const char* elements)
{
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("2:0:0:0:0:1");
    dictionary.informationElementData = QByteArray::fromHex(elements);
    return std::make_shared<TSNetwork>(dictionary, 0);
}

const char* const kRates = "010482848b96";      // 1, 2, 5.5, 11 Mbit/s
const char* const kName = "0004486f6d65";       // "Home"
const char* const kLoad = "0b0503007f0000";     // 3 stations
const char* const kBusyLoad = "0b0509007f0000"; // 9 stations
const char* const kHTCapabilities = "2d1a6f0017ffffff0000000000000000000000000000000000000000";

NetworkPtr networkWith(std::initializer_list<const char*> elements)
{
    QByteArray all;
    for (const char* element : elements)
        all += element;
    return networkWith(all.constData());
}

class TSAdvancedDetailsViewTest : public testing::Test {
protected:
    TSAdvancedDetailsViewTest() { view.resize(800, 600); }

    std::vector<std::string> names() const
    {
        std::vector<std::string> result;
        for (int row = 0; row < model.rowCount(); ++row)
            result.push_back(text(model.index(row, InfoElementsModel::kElementColumn)));
        return result;
    }
    static std::string text(const QModelIndex& index)
    {
        return index.data().toString().toStdString();
    }
    QModelIndex element(int row) const { return model.index(row, 0); }

    /// Opens the menu at a row and triggers a command, if it is enabled.
    bool choose(const QModelIndex& row, const char* command)
    {
        bool triggered = false;
        QTimer::singleShot(0, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            for (QAction* action : menu->actions()) {
                if (action->text() != QLatin1String(command) || !action->isEnabled())
                    continue;
                triggered = true;
                action->trigger();
            }
            menu->close();
        });
        const QPoint place = view.visualRect(row).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                view.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view.viewport(), &event);
        return triggered;
    }

    TSAdvancedDetailsView view;
    QAbstractItemModel& model = *view.model();
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(TSAdvancedDetailsViewTest, KeepsWhatIsExpandedByKindOfElement)
{
    view.setNetwork(networkWith({kName, kRates, kHTCapabilities}));
    EXPECT_THAT(names(),
                ElementsAre("Service Set Identifier", "Supported Rates", "HT Capabilities"));
    view.expand(element(2));
    view.expand(model.index(2, 0, element(2))); // the capabilities' bits
    ASSERT_TRUE(view.isExpanded(model.index(2, 0, element(2))));

    view.setNetwork(networkWith({kRates}));
    view.setNetwork(networkWith({kHTCapabilities, kRates}));
    EXPECT_TRUE(view.isExpanded(element(0)));
    EXPECT_TRUE(view.isExpanded(model.index(2, 0, element(0))));
    EXPECT_FALSE(view.isExpanded(element(1)));

    view.collapse(element(0));
    view.setNetwork(nullptr);
    view.setNetwork(networkWith({kHTCapabilities}));
    EXPECT_FALSE(view.isExpanded(element(0)));
}

TEST_F(TSAdvancedDetailsViewTest, FollowsTheBeaconWithoutLosingThePlace)
{
    view.setNetwork(networkWith({kName, kLoad}));
    view.expand(element(1));
    view.setCurrentIndex(element(1));
    const QPersistentModelIndex stations =
        model.index(2, InfoElementsModel::kFieldsColumn, element(1));
    EXPECT_EQ(text(stations), "3");
    view.setNetwork(networkWith({kName, kBusyLoad}));
    ASSERT_TRUE(stations.isValid());
    EXPECT_EQ(text(stations), "9");
    EXPECT_EQ(view.currentIndex(), element(1));
}

TEST_F(TSAdvancedDetailsViewTest, SortsElementsAndFindsBackToTheBeacon)
{
    view.setNetwork(networkWith({kRates, kLoad, kName}));
    view.header()->setSortIndicator(InfoElementsModel::kElementColumn, Qt::AscendingOrder);
    EXPECT_THAT(names(), ElementsAre("QBSS Load", "Service Set Identifier", "Supported Rates"));
    view.header()->setSortIndicator(InfoElementsModel::kIDColumn, Qt::DescendingOrder);
    EXPECT_EQ(text(element(0)), "11");
    view.setNetwork(networkWith({kRates, kBusyLoad, kName}));
    EXPECT_EQ(text(element(0)), "11") << "a new beacon comes sorted too";
    view.header()->setSortIndicator(-1, Qt::AscendingOrder);
    EXPECT_EQ(names().front(), "Supported Rates");
    view.header()->setSortIndicator(InfoElementsModel::kIDColumn, Qt::DescendingOrder);
    view.header()->setSortIndicator(InfoElementsModel::kFieldsColumn, Qt::AscendingOrder);
    EXPECT_EQ(view.header()->sortIndicatorSection(), InfoElementsModel::kIDColumn)
        << "there is nothing to sort by";
    view.setNetwork(networkWith({kRates, kLoad, kName}));
    EXPECT_EQ(text(element(0)), "11");
}

TEST_F(TSAdvancedDetailsViewTest, OffersWhatCanBeDoneWithARow)
{
    view.setNetwork(networkWith({kName, kHTCapabilities}));
    const QModelIndex field = model.index(0, 0, element(0));
    EXPECT_FALSE(choose(element(0), "Collapse Item"));
    EXPECT_TRUE(choose(element(0), "Expand Item"));
    EXPECT_TRUE(view.isExpanded(element(0)));
    EXPECT_FALSE(choose(field, "Copy Element"));
    EXPECT_FALSE(model.flags(field).testFlag(Qt::ItemIsSelectable));
    EXPECT_TRUE(choose(element(0), "Expand All Items"));
    EXPECT_TRUE(view.isExpanded(model.index(2, 0, element(1))));

    const TSInfoElement name =
        std::move(networkWith({kName, kHTCapabilities})->informationElements().front());
    ASSERT_TRUE(choose(element(0), "Copy Element"));
    const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(copied->text().toStdString(), name.ieDump());
    EXPECT_EQ(copied->data(QStringLiteral("text/rtf")), richText(copied->text()));
    ASSERT_TRUE(choose(field, "Copy All Elements"));
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(),
                testing::AllOf(testing::StartsWith(name.ieDump() + "\n\n"),
                               testing::HasSubstr("HT Capabilities")));

    EXPECT_TRUE(choose(element(0), "Collapse All Items"));
    EXPECT_FALSE(view.isExpanded(element(0)));
    view.setCurrentIndex(element(1));
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_TRUE(view.isExpanded(element(1)));
    QTest::keyClicks(&view, QStringLiteral("S"));
    EXPECT_EQ(view.currentIndex(), element(1)) << "typing selects nothing";
}
