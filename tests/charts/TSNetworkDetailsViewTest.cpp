#include "charts/TSNetworkDetailsView.h"

#include "charts/ChartNetworks.h"
#include "charts/DetailsLayout.h"
#include "charts/PaintedChart.h"
#include "support/ManualClock.h"
#include "support/QtPrinters.h"

#include <QApplication>

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// In this view the chart reaches from (45, 30) to (945, 490): 3 points a second, 5 points a dB.
constexpr QSize kViewSize(995, 515);

class NetworkDetailsViewTest : public testing::Test {
protected:
    NetworkDetailsViewTest()
    {
        QApplication::setActiveWindow(&view);
        view.resize(kViewSize);
        view.setUnits(Units::kDBm);
        view.setReferenceTime(kReferenceTime);
    }

    void show(const NetworkPtr& network, DetailsMetric metric)
    {
        view.setMetric(metric);
        view.setNetwork(network);
    }

    Painting painted() { return paintingOf(view); }

    std::vector<std::string> texts() { return textsOf(view); }

    /// What is painted of the samples, in its order: the lines and areas in the network's colour
    /// and the white areas of noise and veil, by their opacity and extent.
    std::vector<std::string> shapes(const NetworkPtr& network)
    {
        std::vector<std::string> told;
        for (const Painted& item : painted().items) {
            const bool isOwn = item.color.rgb() == network->color().rgb();
            const bool isWhite = item.color.rgb() == QColor(Qt::white).rgb();
            if (!item.isAntialiased || item.kind == Painted::Kind::kText || (!isOwn && !isWhite))
                continue;
            const QRectF box = item.path.controlPointRect();
            told.push_back(QStringLiteral("%1 %2%3 x %4-%5 y %6-%7")
                               .arg(isOwn ? QStringLiteral("own") : QStringLiteral("white"),
                                    item.kind == Painted::Kind::kStroke ? QStringLiteral("line")
                                                                        : QStringLiteral("area"))
                               .arg(std::lround(100 * item.color.alphaF()))
                               .arg(std::lround(box.left()))
                               .arg(std::lround(box.right()))
                               .arg(std::lround(box.top()))
                               .arg(std::lround(box.bottom()))
                               .toStdString());
        }
        return told;
    }

    /// What the bubble tells, or whatever else was painted last.
    std::string bubble() { return texts().end()[-2]; }

    ManualClock clock{kReferenceTime + 3600};
    TSNetworkDetailsView view{clock};
};

/// A network that was away for a while, at both times getting better.
NetworkPtr returnedNetwork()
{
    return chartNetwork(1, {{200, -80}, {140, -70}, {60, -60}, {0, -50}});
}

} // namespace

TEST_F(NetworkDetailsViewTest, StandsEmptyWithoutANetwork)
{
    const auto twice = [](const std::vector<std::string>& labels) {
        std::vector<std::string> both = labels; // at the left and at the right
        both.insert(both.end(), labels.begin(), labels.end());
        return both;
    };
    EXPECT_EQ(texts(), twice({"-90", "-70", "-50", "-30", "-10"}));
    view.setUnits(Units::kPercent);
    EXPECT_EQ(texts(), twice({"10%", "30%", "50%", "70%", "90%"}));
    view.setMetric(DetailsMetric::kSNR);
    EXPECT_EQ(texts(), twice({"10", "30", "50", "70", "90"}));
    EXPECT_EQ(painted().painted(Painted::Kind::kStroke).size(), 2U); // grid and border
    show(chartNetwork(1, {}), DetailsMetric::kSNR); // nor without samples, but for the times
    EXPECT_THAT(shapes(view.network()), IsEmpty());
}

TEST_F(NetworkDetailsViewTest, DrawsAreasThatEndAtGapsAndVeilsWhatIsBelowTheBestValue)
{
    const NetworkPtr network = returnedNetwork();
    show(network, DetailsMetric::kSignal);
    EXPECT_THAT(shapes(network),
                ElementsAre("own line100 x 765-945 y 230-280", "own line100 x 345-525 y 130-180",
                            "own area20 x 765-945 y 30-280", "own area20 x 345-525 y 30-180",
                            "white area10 x 45-945 y 30-280"));
    show(network, DetailsMetric::kSignalAndNoise);
    EXPECT_THAT(shapes(network),
                ElementsAre("white area40 x 765-945 y 30-70", "white area40 x 345-525 y 30-70",
                            "own line100 x 765-945 y 230-280", "own line100 x 345-525 y 130-180",
                            "own area20 x 765-945 y 30-280", "own area20 x 345-525 y 30-180",
                            "white area10 x 45-945 y 30-280"));
    show(network, DetailsMetric::kSNR);
    EXPECT_THAT(shapes(network),
                ElementsAre("own line100 x 765-945 y 190-240", "own line100 x 345-525 y 90-140",
                            "own area20 x 765-945 y 30-240", "own area20 x 345-525 y 30-140",
                            "white area10 x 45-945 y 30-240"));
}

TEST_F(NetworkDetailsViewTest, ShowsASingleSampleAsStubsAtTheRightEdge)
{
    const NetworkPtr network = chartNetwork(1, {{0, -50}});
    show(network, DetailsMetric::kSignalAndNoise);
    EXPECT_THAT(shapes(network),
                ElementsAre("white line75 x 942-945 y 70-70", "white area40 x 945-945 y 30-70",
                            "own line100 x 942-945 y 280-280", "own area20 x 945-945 y 30-280",
                            "white area10 x 45-945 y 30-280"));
}

TEST(QualityArea, ReachesFromTheFloorToTheBestValue)
{
    const auto height = [](std::initializer_list<std::pair<double, std::int64_t>> samples,
                           Units units, Metric metric) {
        const ChartScale scale{.rect = {45, 30, 900, 460}, .topMargin = 10, .units = units};
        return qualityArea(*chartNetwork(1, samples), scale, metric).height();
    };
    EXPECT_EQ(height({{20, -80}, {10, -60}, {0, -120}}, Units::kDBm, Metric::kSignal), 200);
    EXPECT_EQ(height({{10, -60}}, Units::kPercent, Metric::kSignal), 66 * 4.5);
    EXPECT_EQ(height({{10, -60}}, Units::kPercent, Metric::kSNR), 32 * 5);
    EXPECT_EQ(height({{0, 0}}, Units::kDBm, Metric::kSignal), 460); // the chart's, and no more
    EXPECT_EQ(height({{0, -120}}, Units::kDBm, Metric::kSignal), 0);
    EXPECT_EQ(height({{0, -101}}, Units::kDBm, Metric::kSNR), 0); // noise above the signal
}

TEST_F(NetworkDetailsViewTest, TellsTheSampleUnderTheMouse)
{
    const NetworkPtr network = chartNetwork(1, {});
    network->addDataPoint(sampleAt(150, -120, -120));
    network->addDataPoint(sampleAt(50, -60));
    struct Case {
        DetailsMetric metric;
        Units units;
        bool isAlternate;
        std::string data, noData;
    };
    const Case cases[] = {
        {DetailsMetric::kSignal, Units::kDBm, false, "-60 dBm", "No Data"},
        {DetailsMetric::kSignal, Units::kDBm, true, "-60 dBm", "No Data"},
        {DetailsMetric::kSignalAndNoise, Units::kDBm, false, "-60 dBm", "No Data"},
        {DetailsMetric::kSignalAndNoise, Units::kDBm, true, "-92 dBm", "No Data"},
        {DetailsMetric::kSignalAndNoise, Units::kPercent, false, "66%", "0%"},
        {DetailsMetric::kSignalAndNoise, Units::kPercent, true, "3%", "0%"},
        {DetailsMetric::kSNR, Units::kPercent, false, "32 dB", "No Data"},
        {DetailsMetric::kSNR, Units::kDBm, true, "32 dB", "No Data"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.data);
        show(network, c.metric);
        view.setUnits(c.units);
        c.isAlternate ? view.handleAltKeyDownNotification() : view.handleAltKeyUpNotification();
        moveMouse(view, {795, c.units == Units::kDBm ? 230.0
                                                     : 327.0}); // at its signal, whatever is shown
        EXPECT_EQ(bubble(), c.data);
        moveMouse(view, {495, 30});
        EXPECT_EQ(bubble(), c.noData);
    }
}

TEST_F(NetworkDetailsViewTest, PutsTheBubbleOnTheNoiseInWhiteWhileAltIsHeld)
{
    const NetworkPtr network = chartNetwork(1, {{50, -60}});
    show(network, DetailsMetric::kSignalAndNoise);
    moveMouse(view, {795, 230});
    const auto dot = [this](const QColor& color) {
        for (const Painted& item : painted().painted(Painted::Kind::kFill, color)) {
            if (item.path.boundingRect().width() < 10 && item.color.alpha() == 255)
                return item.path.boundingRect().center();
        }
        return QPointF();
    };
    EXPECT_EQ(dot(network->color()), QPointF(795, 230));
    view.handleAltKeyDownNotification();
    EXPECT_EQ(dot(Qt::white), QPointF(795, 70));
}

TEST_F(NetworkDetailsViewTest, HoversOverTheNetworkThatIsShownWhicheverAreSelected)
{
    const NetworkPtr shown = chartNetwork(1, {{50, -60}});
    const NetworkPtr other = chartNetwork(2, {{50, -61}});
    ScanDictionary elsewhere = other->network();
    elsewhere.channelNumber = 40; // or it would stand beside the chart
    other->setNetwork(elsewhere);
    const auto hovers = [this] {
        moveMouse(view, {795, 230});
        return view.networks().size() == 2 && bubble() == "-60 dBm";
    };
    show(shown, DetailsMetric::kSignal);
    other->setUserHighlighted(true);
    view.setNetworks({shown, other});
    EXPECT_TRUE(hovers());

    const auto keeps = [&](const NetworkPtr& network) {
        view.setNetwork(shown);
        moveMouse(view, {795, 230});
        view.setNetwork(network);
        view.setNetwork(shown);
        return bubble() == "-60 dBm";
    };
    EXPECT_TRUE(keeps(chartNetwork(1, {}))); // another record of the same network
    EXPECT_FALSE(keeps(other));
    EXPECT_FALSE(keeps(nullptr));
}

TEST_F(NetworkDetailsViewTest, ShowsOthersBesideTheNetworkAndPicksTheOneThatIsClicked)
{
    const auto network = chartNetwork(1, {{0, -50}});
    const auto other = chartNetwork(2, {{0, -60}}); // on the same channel
    view.setNetworks({other, network});
    show(network, DetailsMetric::kSignal);
    const auto all = texts();
    EXPECT_EQ(std::ranges::count(all, "Channel 36"), 1);
    EXPECT_EQ(std::ranges::count(all, "-50"), 2); // at the two ends of the row
    EXPECT_EQ(std::ranges::count(all, "Net 1"), 1);

    QStringList picked;
    QObject::connect(&view, &TSNetworkDetailsView::userDidPickNetwork, &view,
                     [&](const QString& bssid) { picked.append(bssid); });
    const auto mouse = [this](QEvent::Type type, double x) { sendMouse(view, type, {x, 315}); };
    mouse(QEvent::MouseMove, 300); // over its own chart
    mouse(QEvent::MouseButtonPress, 300);
    EXPECT_THAT(picked, IsEmpty());
    mouse(QEvent::MouseMove, 900); // over the second bar
    EXPECT_EQ(std::ranges::count(texts(), "Net 2"), 1);
    mouse(QEvent::MouseButtonPress, 900);
    EXPECT_EQ(picked, QStringList{other->bssid()});

    view.setNetworks({network});
    EXPECT_EQ(std::ranges::count(texts(), "Channel 36"), 0);
}
