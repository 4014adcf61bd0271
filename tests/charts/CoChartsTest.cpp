#include "charts/CoCharts.h"

#include "charts/ChartNetworks.h"
#include "charts/PaintedChart.h"
#include "charts/TSThemeHelper.h"
#include "support/QtPrinters.h"

#include <QPainter>

#include <gmock/gmock.h>

using namespace tessara;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

namespace {

constexpr QRectF kView(0, 0, 1100, 335);
const QColor kGray = QColor::fromRgbF(1 / 3.0F, 1 / 3.0F, 1 / 3.0F);

NetworkPtr named(const NetworkPtr& network, const QString& ssid)
{
    ScanDictionary dictionary = network->network();
    dictionary.ssid = ssid;
    network->setNetwork(dictionary);
    return network;
}

NetworkPtr home(int number, int channel, std::int64_t rssi)
{
    return named(channelNetwork(number, channel, rssi), QStringLiteral("Home"));
}

class CoChartsTest : public testing::Test {
protected:
    /// In dBm, where 90 dB are 270 points of height.
    CoChartsLook look{.scale = {.rect = {}, .topMargin = 10, .units = Units::kDBm},
                      .metric = Metric::kSignal,
                      .window = {1, 1},
                      .hasHoverPoint = false};

    Painting painted() const
    {
        RecordingPaintDevice device(kView.size().toSize());
        QPainter painter(&device);
        painter.translate(0, kView.height()); // a chart's y grows upward
        painter.scale(1, -1);
        const CoChartsLayout layout = charts.layout(kView);
        if (charts.willDrawCoSSID())
            charts.drawCoSSIDNetworksChart(painter, layout.coSSID, look);
        if (charts.willDrawCoChannel())
            charts.drawCoChannelNetworksChart(painter, layout.coChannel, look);
        painter.end();
        return device.painting();
    }

    std::vector<std::string> texts() const { return textsOf(painted()); }

    /// Moves the mouse to the middle of a bar's pitch.
    bool hover(const QRectF& chart, std::size_t count, std::size_t bar)
    {
        const QRectF rect = NetworkBars(chart, count).bar(bar, chart.bottom());
        return charts.mouseMoved({rect.center().x(), chart.bottom() - 1}, kView);
    }

    NetworkPtr selected = home(1, 6, -50);
    NetworkPtr other = home(2, 36, -60);
    NetworkPtr neighbour = channelNetwork(3, 6, -70);
    CoCharts charts;
};

} // namespace

TEST_F(CoChartsTest, ListTheStrongestOfTheNameByBand)
{
    NetworkList networks = {other, selected, neighbour, home(4, 11, -80), home(5, 40, -55)};
    networks.push_back(home(6, 1, -40));
    networks.back()->setUserHidden(true);
    const auto numbers = [](const CoNetworks& list) {
        std::vector<int> all;
        for (const NetworkPtr& network : list.networks)
            all.push_back(network->bssid().right(2).toInt(nullptr, 16));
        return all;
    };
    EXPECT_THAT(numbers(coSSIDNetworks(networks, selected)), ElementsAre(1, 4, 5, 2));
    EXPECT_THAT(numbers(coSSIDNetworks(networks, other)), ElementsAre(2, 5, 1, 4));
    EXPECT_THAT(numbers(coSSIDNetworks({neighbour}, selected)), ElementsAre(1));

    for (int number = 7; number < 23; ++number)
        networks.push_back(home(number, 6, -90 + number));
    const CoNetworks many = coSSIDNetworks(networks, selected);
    EXPECT_EQ(many.networks.size(), 16U);
    EXPECT_EQ(many.total, 20U);
    EXPECT_THAT(numbers(many), Not(Contains(7))); // the weakest
    EXPECT_THAT(numbers(many), Contains(22));
}

TEST_F(CoChartsTest, ListTheFirstOfTheChannelByStrength)
{
    EXPECT_THAT(coChannelNetworks({neighbour, other, selected}, selected).networks,
                ElementsAre(selected, neighbour));
    selected->setUserHidden(true);
    EXPECT_THAT(coChannelNetworks({neighbour, other, selected}, selected).networks,
                ElementsAre(neighbour));
    selected->setUserHidden(false);
    NetworkList networks;
    for (int number = 10; number < 26; ++number)
        networks.push_back(channelNetwork(number, 6, -90 + number));
    networks.push_back(selected);
    const CoNetworks many = coChannelNetworks(networks, selected);
    EXPECT_EQ(many.total, 17U);
    EXPECT_EQ(many.networks.size(), 15U);
    EXPECT_EQ(many.networks.front(), networks[14]);
    EXPECT_THAT(many.networks, Not(Contains(selected)));
}

TEST_F(CoChartsTest, TakeAQuarterOfTheViewEach)
{
    struct Case {
        NetworkList networks;
        QRectF chart, coSSID, coChannel;
    };
    const Case cases[] = {
        {{selected}, {45, 30, 1005, 280}, {}, {}},
        {{selected, other}, {45, 30, 730, 280}, {782, 30, 268, 280}, {}},
        {{selected, neighbour}, {45, 30, 730, 280}, {}, {782, 30, 268, 280}},
        {{selected, other, neighbour},
         {45, 30, 455, 280},
         {507, 30, 268, 280},
         {782, 30, 268, 280}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.networks.size());
        charts.setNetworks(c.networks, selected, false);
        const CoChartsLayout layout = charts.layout(kView);
        EXPECT_EQ(layout.chart, c.chart);
        EXPECT_EQ(layout.coSSID, c.coSSID);
        EXPECT_EQ(layout.coChannel, c.coChannel);
    }
    charts.setNetworks({selected, other}, nullptr, false);
    EXPECT_FALSE(charts.willDrawCoSSID() || charts.willDrawCoChannel());
}

TEST(NetworkBars, StandSideBySideInTheirChart)
{
    const QRectF chart(500, 30, 130, 280);
    for (const std::size_t count : {2U, 5U, 16U}) {
        SCOPED_TRACE(count);
        const NetworkBars bars(chart, count);
        EXPECT_NEAR(bars.width(), 120.0 / static_cast<double>(2 * count + 2), 1e-5);
        for (std::size_t i = 0; i < count; ++i) {
            const QRectF bar = bars.bar(i, 100);
            EXPECT_TRUE(chart.contains(bar));
            EXPECT_EQ(bar.bottom(), 100);
            EXPECT_EQ(bars.barAt(bar.center().x()), i);
        }
        EXPECT_FALSE(bars.barAt(500));
        EXPECT_FALSE(bars.barAt(500 + bars.width() + 121));
        EXPECT_LE(bars.bar(0, 30).height(), 0); // at the floor
    }
}

TEST(NetworkBars, ShareTheirStripByBand)
{
    const NetworkBars bars({500, 30, 130, 280}, 4); // of 30 points each
    struct Case {
        std::size_t same, other;
        QRectF sameStrip, otherStrip;
    };
    for (const Case& c : {Case{4, 0, {500, 313, 130, 2}, {}},
                          Case{3, 1, {500, 313, 96, 2}, {599, 313, 32, 2}}, Case{0, 0, {}, {}}}) {
        const BandStrips strips = bandStrips(bars, c.same, c.other);
        EXPECT_EQ(strips.same, c.sameStrip);
        EXPECT_EQ(strips.other, c.otherStrip);
    }
}

TEST_F(CoChartsTest, DrawABarForTheLastValueOfEachNetwork)
{
    other->addDataPoint(sampleAt(-2, -120)); // out of sight for now
    charts.setNetworks({selected, other, neighbour}, selected, false);
    const auto barHeight = [this](const QColor& color) {
        const auto fills = painted().painted(Painted::Kind::kFill, color);
        return fills.empty() ? 0 : fills[0].path.boundingRect().height();
    };
    EXPECT_NEAR(barHeight(selected->color()), 150 - 0.5, 0.01);
    EXPECT_NEAR(barHeight(other->color()), 120 - 0.5, 0.01);
    EXPECT_NEAR(barHeight(kGray), 90 - 0.5, 0.01);
    for (const Painted& item : painted().painted(Painted::Kind::kFill))
        EXPECT_FALSE(item.isAntialiased);
    look.metric = Metric::kSNR;
    EXPECT_NEAR(barHeight(selected->color()), 42 * 3 - 0.5, 0.01); // over a noise of -92 dBm
    look.metric = Metric::kSignal;
    charts.setNetworks({selected, other, neighbour}, selected, true);
    EXPECT_EQ(barHeight(other->color()), 0);
}

TEST_F(CoChartsTest, TellTheNameTheChannelAndHowManyAreLeftOut)
{
    charts.setNetworks({selected, other, neighbour}, selected, false);
    EXPECT_THAT(texts(), IsSupersetOf({"Home", "Channel 6", "2.4 GHz", "5 GHz"}));
    NetworkList networks = {selected};
    for (int number = 10; number < 30; ++number)
        networks.push_back(home(number, 6, -60));
    charts.setNetworks(networks, selected, false);
    EXPECT_THAT(texts(), IsSupersetOf({"Home [16/21]", "Channel 6 [15/21]", "2.4 GHz"}));
    EXPECT_THAT(texts(), Not(Contains("5 GHz")));
}

TEST_F(CoChartsTest, TellTheBarUnderTheMouseAndPickIt)
{
    charts.setNetworks({selected, other, neighbour}, selected, false);
    const CoChartsLayout layout = charts.layout(kView);
    const auto isColored = [this](const NetworkPtr& network) {
        return !painted().painted(Painted::Kind::kFill, network->color()).empty();
    };
    EXPECT_FALSE(isColored(neighbour));
    EXPECT_THAT(charts.pickedBssids(), IsEmpty());
    const auto brackets = [this](const NetworkPtr& network) {
        return painted().painted(Painted::Kind::kStroke, network->color()).size();
    };
    EXPECT_EQ(brackets(selected), 1U); // on its channel

    EXPECT_TRUE(hover(layout.coSSID, 2, 1));
    EXPECT_FALSE(hover(layout.coSSID, 2, 1));
    EXPECT_THAT(charts.pickedBssids(), ElementsAre(other->bssid()));
    EXPECT_THAT(texts(), Contains(other->deviceid().toStdString()));
    EXPECT_THAT(texts(), Not(Contains("2.4 GHz"))); // there is room for one text
    EXPECT_EQ(brackets(selected), 0U);

    EXPECT_TRUE(hover(layout.coChannel, 2, 1)); // both charts change at once
    EXPECT_THAT(charts.pickedBssids(), ElementsAre(neighbour->bssid()));
    EXPECT_TRUE(isColored(neighbour));
    EXPECT_THAT(texts(), IsSupersetOf({"Net 3", "2.4 GHz"}));
    look.hasHoverPoint = true;
    EXPECT_THAT(texts(), Not(Contains("Net 3")));

    EXPECT_TRUE(charts.mouseMoved(layout.chart.center(), kView));
    EXPECT_FALSE(charts.mouseExited());
    EXPECT_TRUE(hover(layout.coSSID, 2, 1));
    charts.setNetworks({selected}, selected, false); // the bar is gone
    EXPECT_THAT(charts.pickedBssids(), IsEmpty());
}
