#include "charts/TSSignalStrengthView.h"

#include "charts/ChartNetworks.h"
#include "charts/PaintedChart.h"
#include "charts/RadioMerge.h"
#include "filtering/TSNetworkCollection.h"
#include "support/ManualClock.h"
#include "support/QtPrinters.h"

#include <QApplication>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPointingDevice>
#include <QStackedWidget>
#include <QWheelEvent>

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

namespace {

/// The chart, with its paintings counted.
class CountedView final : public TSSignalStrengthView {
public:
    using TSSignalStrengthView::drawDataPoints;
    using TSSignalStrengthView::drawTitle;
    using TSSignalStrengthView::TSSignalStrengthView;

    const ChartScale scale() const { return chartScale(viewRect()); }

    int paintings = 0;

protected:
    void drawRect(QPainter& painter, const QRectF& view) override
    {
        ++paintings;
        TSSignalStrengthView::drawRect(painter, view);
    }
};

class SignalStrengthViewTest : public testing::Test {
protected:
    SignalStrengthViewTest()
    {
        QApplication::setActiveWindow(&view);
        view.resize(1100, 735); // the chart reaches from (45, 35) to (925, 705)
        view.setUnits(Units::kDBm);
        view.setReferenceTime(kReferenceTime);
    }

    Painting painted() { return paintingOf(view); }

    std::vector<std::string> texts() { return textsOf(view); }

    void select(std::initializer_list<NetworkPtr> networks)
    {
        for (const NetworkPtr& network : networks)
            network->setUserHighlighted(true);
        view.setItemHighlightEnabled(true);
    }

    void leave()
    {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(&view, &event);
    }

    void turnWheel(int delta)
    {
        QWheelEvent event({500, 300}, {500, 300}, {}, {0, delta}, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&view, &event);
    }

    void pinch(double value)
    {
        QNativeGestureEvent event(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(),
                                  2, {500, 300}, {500, 300}, {500, 300}, value, {});
        QCoreApplication::sendEvent(&view, &event);
    }

    ManualClock clock{kReferenceTime + 3600};
    CountedView view{clock};
};

/// A network with a sample every ten seconds, all of one signal.
NetworkPtr levelNetwork(int number, std::int64_t rssi)
{
    auto network = chartNetwork(number, {});
    for (int age = 300; age >= 0; age -= 10)
        network->addDataPoint(sampleAt(age, rssi));
    return network;
}

} // namespace

TEST_F(SignalStrengthViewTest, StandsEmptyWithoutNetworks)
{
    EXPECT_THAT(texts(),
                ElementsAre("-90", "-80", "-70", "-60", "-50", "-40", "-30", "-20", "-10"));
    view.setUnits(Units::kPercent);
    EXPECT_THAT(texts(), IsSupersetOf({"10%", "100%"}));
}

TEST_F(SignalStrengthViewTest, TellsTimesAndNow)
{
    view.setNetworks({levelNetwork(1, -50)});
    EXPECT_EQ(std::ranges::count(texts(), "Now"), 0);
    clock.advance(-3600 + 30);
    EXPECT_EQ(std::ranges::count(texts(), "Now"), 1);
}

TEST_F(SignalStrengthViewTest, LabelsEachNetworkAtItsLastValue)
{
    const auto plain = levelNetwork(1, -50);
    const auto associated = levelNetwork(2, -70);
    associated->setAssociated(true);
    const auto hidden = chartNetwork(3, {{0, -90}});
    ScanDictionary nameless = hidden->network();
    nameless.ssid.reset();
    hidden->setNetwork(nameless);
    const auto gone = levelNetwork(4, -60);
    gone->setUserHidden(true);
    view.setNetworks({plain, associated, hidden, gone});
    const Painting painting = painted();

    const double unit = (670.0 - 73) / 90; // points a dB
    const Painted label = textOf(painting, "Net 1");
    EXPECT_NEAR(label.origin.x(), 925 + 4.5, 0.01);
    // Near its line: the text is 12.5 high, and stands on its baseline.
    EXPECT_NEAR(label.origin.y(), 35 + 50 * unit - 4.5, 1.5);
    EXPECT_EQ(label.font.pointSizeF(), 12.5);
    EXPECT_EQ(label.color.rgb(), plain->color().rgb());
    EXPECT_NEAR(label.color.alphaF(), 0.8, 0.01);
    EXPECT_FALSE(label.font.bold());
    EXPECT_TRUE(textOf(painting, "Net 2").font.bold());
    textOf(painting, "02:00:00:00:00:03");
    EXPECT_EQ(std::ranges::count(texts(), "Net 4"), 0);
    EXPECT_TRUE(painting.painted(Painted::Kind::kStroke, gone->color()).empty());
}

TEST_F(SignalStrengthViewTest, DimsWhatIsNotSelected)
{
    const auto selected = levelNetwork(1, -50);
    const auto member = levelNetwork(2, -60);
    const auto other = levelNetwork(3, -70);
    const auto collection = std::make_shared<TSNetworkCollection>(QStringLiteral("Both"));
    collection->setUserHighlighted(true);
    member->setParentCollection(collection);
    struct Case {
        bool dims;
        const NetworkPtr& network;
        double label, line;
    };
    const Case cases[] = {
        {false, selected, 1, 0.8}, {false, member, 1, 0.8}, {false, other, 0.8, 0.8},
        {true, selected, 1, 1},    {true, member, 1, 1},    {true, other, 0.2, 0.15},
    };
    selected->setUserHighlighted(true);
    view.setNetworks({selected, member, other});
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.network->ssid().toStdString() << ' ' << c.dims);
        view.setItemHighlightEnabled(c.dims);
        const Painting painting = painted();
        const auto labels = painting.painted(Painted::Kind::kText, c.network->color());
        const auto lines = painting.painted(Painted::Kind::kStroke, c.network->color());
        ASSERT_EQ(labels.size(), 1U);
        ASSERT_FALSE(lines.empty());
        EXPECT_NEAR(labels[0].color.alphaF(), c.label, 0.01);
        EXPECT_NEAR(lines[0].color.alphaF(), c.line, 0.01);
        EXPECT_TRUE(lines[0].isAntialiased);
    }
    // The area below the selected network's line alone is filled.
    const Painting painting = painted();
    const auto areas = painting.painted(Painted::Kind::kFill, selected->color());
    ASSERT_EQ(areas.size(), 1U);
    EXPECT_NEAR(areas[0].color.alphaF(), 0.6, 0.01);
    EXPECT_EQ(areas[0].path.boundingRect().y(), 35);
    EXPECT_TRUE(painting.painted(Painted::Kind::kFill, member->color()).empty());
}

TEST_F(SignalStrengthViewTest, DrawsTheAssociatedNetworkThickerAndAdHocNetworksDashed)
{
    const auto plain = levelNetwork(1, -50);
    const auto associated = levelNetwork(2, -60);
    associated->setAssociated(true);
    const auto adHoc = levelNetwork(3, -70);
    ScanDictionary dictionary = adHoc->network();
    dictionary.ibss = true;
    adHoc->setNetwork(dictionary);
    view.setNetworks({plain, associated, adHoc});
    const Painting painting = painted();
    const auto pen = [&](const NetworkPtr& network) {
        return painting.painted(Painted::Kind::kStroke, network->color()).at(0).pen;
    };
    EXPECT_EQ(pen(plain).widthF(), 2);
    EXPECT_EQ(pen(plain).style(), Qt::SolidLine);
    EXPECT_EQ(pen(associated).widthF(), 3);
    EXPECT_EQ(pen(adHoc).dashPattern(), QList<qreal>({2.5, 1.5})); // of the line's width
}

TEST_F(SignalStrengthViewTest, DrawsLongHistoriesInShortStretchesFromThenOn)
{
    const auto longHistory = chartNetwork(1, {});
    for (int age = 302; age >= 0; age -= 2)
        longHistory->addDataPoint(sampleAt(age, -50));
    longHistory->setUserHidden(true);
    const auto brief = levelNetwork(2, -60);
    const auto stretches = [&](const NetworkList& networks) {
        view.setNetworks(networks);
        return painted().painted(Painted::Kind::kStroke, brief->color()).size();
    };
    EXPECT_EQ(stretches({brief}), 1U);
    EXPECT_EQ(stretches({longHistory, brief}), 2U); // also by one that is not shown
    EXPECT_EQ(stretches({brief}), 2U);
}

TEST_F(SignalStrengthViewTest, NamesTheOneSelectedNetworkAboveTheChart)
{
    const NoteByTheStairs notes(u'1');
    const auto first = levelNetwork(1, -50);
    const auto second = levelNetwork(2, -60);
    select({first});
    view.setNetworks({first, second});
    const Painting painting = painted();

    const Painted title = textOf(painting, "02:00:00:00:00:01");
    const double width = QFontMetricsF(title.font).horizontalAdvance(title.text);
    EXPECT_NEAR(title.origin.x() + width, 925, 1); // ends with the chart
    EXPECT_GT(title.origin.y(), 705);
    const Painted note = textOf(painting, "by the stairs");
    EXPECT_TRUE(note.font.italic());
    EXPECT_NEAR(note.color.alphaF(), 0.5, 0.01);

    select({second});
    view.setNetworks({first, second});
    for (const std::string& text : texts())
        EXPECT_FALSE(text.starts_with("02:")) << text;
}

TEST_F(SignalStrengthViewTest, FollowsTheMouseWithABubble)
{
    const auto first = levelNetwork(1, -50);
    const auto second = levelNetwork(2, -90);
    select({first});
    view.setNetworks({first, second});
    const ChartScale scale = view.scale();
    const auto above = [&](double age, double up) {
        return QPointF(scale.xFor(kReferenceTime - age),
                       scale.yFor(first->history().back(), Metric::kSignal) + up);
    };
    const auto bubble = [this] {
        const auto all = texts();
        return std::vector(all.end() - 2, all.end());
    };
    moveMouse(view, above(100, 60));
    EXPECT_EQ(texts().back(), "02:00:00:00:00:01"); // too far away
    moveMouse(view, above(100, 40));
    EXPECT_THAT(bubble(), ElementsAre("-50 dBm", testing::EndsWith(":40")));
    moveMouse(view, above(151, 200)); // once caught, by time alone
    EXPECT_THAT(bubble(), ElementsAre("-50 dBm", testing::EndsWith(":50")));
    view.setUnits(Units::kPercent);
    EXPECT_EQ(bubble()[0], "79%");
    view.setUnits(Units::kDBm);
    moveMouse(view, {20, 300}); // beside the chart
    EXPECT_EQ(texts().back(), "02:00:00:00:00:01");
    moveMouse(view, above(100, 200));
    EXPECT_EQ(bubble()[0], "-50 dBm");
    leave();
    moveMouse(view, above(100, 200));
    EXPECT_EQ(texts().back(), "02:00:00:00:00:01");
    QApplication::setActiveWindow(nullptr);
    moveMouse(view, above(100, 40)); // behind other windows
    EXPECT_EQ(texts().back(), "02:00:00:00:00:01");
    QApplication::setActiveWindow(&view);

    // Several networks are always told apart by height too.
    select({second});
    view.setNetworks({first, second});
    moveMouse(view, above(100, 40));
    EXPECT_EQ(bubble()[0], "-50 dBm");
    moveMouse(view, {above(100, 0).x(), 120});
    EXPECT_EQ(bubble()[0], "-90 dBm");
}

TEST_F(SignalStrengthViewTest, TellsASampleWithoutData)
{
    const auto network = chartNetwork(1, {{100, -120}});
    select({network});
    view.setNetworks({network});
    moveMouse(view, view.scale().makePointInRect(network->history().back(), Metric::kSignal));
    EXPECT_EQ(std::ranges::count(texts(), "No Data"), 1);
}

TEST_F(SignalStrengthViewTest, LosesTheBubbleWithTheSelectionNotWithTheNetwork)
{
    const auto network = levelNetwork(1, -50);
    const auto other = levelNetwork(2, -60);
    select({network});
    view.setNetworks({network, other});
    const auto hasBubble = [this] { return std::ranges::count(texts(), "-50 dBm") > 0; };
    moveMouse(view, view.scale().makePointInRect(network->history()[5], Metric::kSignal));
    EXPECT_TRUE(hasBubble());
    view.setNetworks({other});
    EXPECT_TRUE(hasBubble());
    view.setNetworks({network, other});
    EXPECT_TRUE(hasBubble());
    network->setUserHighlighted(false);
    view.setNetworks({network, other});
    EXPECT_FALSE(hasBubble());
}

TEST_F(SignalStrengthViewTest, ZoomsByWheelPinchAndMenuWithinLimits)
{
    const auto after = [this](const auto& action) {
        action();
        return view.timescale();
    };
    EXPECT_EQ(after([&] { view.magnifyWithMagnification(0.2); }), 360);
    EXPECT_EQ(after([&] { turnWheel(-120); }), 432);
    EXPECT_EQ(after([&] { pinch(-0.25); }), 540);
    EXPECT_EQ(after([&] { pinch(0.1); }), 486);
    EXPECT_EQ(after([&] { turnWheel(120); }), 388); // whole seconds
    EXPECT_EQ(after([&] { view.magnifyWithMagnification(-0.9); }), 300);
    EXPECT_EQ(after([&] { view.magnifyWithMagnification(100); }), 3600);
    // Fingers that move slowly get there, too.
    view.setTimescale(400);
    for (int i = 0; i < 100; ++i)
        pinch(-0.001);
    EXPECT_GT(view.timescale(), 425);
    EXPECT_EQ(after([&] { view.setTimescale(20); }), 20); // set as it is
}

TEST_F(SignalStrengthViewTest, PaintsItsDataOnceForEachChangeAndNeverWhileHidden)
{
    QStackedWidget tabs;
    auto* chart = new CountedView(clock);
    tabs.addWidget(new QWidget);
    tabs.addWidget(chart);
    tabs.resize(900, 400);
    tabs.show();
    QApplication::setActiveWindow(&tabs);
    const auto paintings = [&] {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        return std::exchange(chart->paintings, 0);
    };
    const auto network = levelNetwork(1, -50);
    network->setUserHighlighted(true);
    paintings();
    chart->setReferenceTime(kReferenceTime);
    chart->setNetworks({network});
    EXPECT_EQ(paintings(), 0);
    tabs.setCurrentIndex(1);
    EXPECT_EQ(paintings(), 1);
    for (int x = 100; x < 700; x += 50) { // the bubble moves
        moveMouse(*chart, {static_cast<double>(x), 150});
        EXPECT_EQ(paintings(), 0);
    }
    chart->setNetworks({network});
    EXPECT_EQ(paintings(), 1);
    tabs.resize(1000, 400);
    EXPECT_EQ(paintings(), 1);
}

TEST_F(SignalStrengthViewTest, NamesRadiosWhereNetworksAreOrganizedByThem)
{
    const NetworkList networks = {levelNetwork(1, -50), levelNetwork(2, -60)}; // of one radio
    const auto textsByRadio = [&] {
        view.setNetworks(networks);
        const RadioMerge merge = mergeNetworksByRadio(networks);
        RecordingPaintDevice device(view.size());
        QPainter painter(&device);
        view.drawDataPoints(painter, view.scale(), networks, &merge);
        view.drawTitle(painter, view.scale(), &merge);
        painter.end();
        return textsOf(device.painting());
    };
    EXPECT_EQ(std::ranges::count(textsByRadio(), networks[0]->apid().toStdString()), 2);
    networks[0]->setUserHighlighted(true);
    EXPECT_EQ(textsByRadio().back(), "Net 1");

    const auto collection = std::make_shared<TSNetworkCollection>(QStringLiteral("Both"));
    collection->setUserHighlighted(true);
    networks[0]->setUserHighlighted(false);
    networks[1]->setParentCollection(collection);
    EXPECT_EQ(textsByRadio().back(), "Net 1, Net 2");
}
