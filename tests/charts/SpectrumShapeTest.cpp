#include "charts/SpectrumShape.h"

#include "charts/ChartNetworks.h"
#include "charts/SpectrumLayout.h"

#include <gtest/gtest.h>

using namespace tessara;

namespace {

constexpr QRectF kChart(45, 56, 1010, 655);
const WindowScale kFresh{1, 1};
constexpr int kDSSSRate = 22; // in 500 kbit/s

/// The chart of a band over all of the chart's width, in dBm: 90 dB are 582 points.
SpectrumBand bandOf(Band band, Units units = Units::kDBm, bool isAlone = false)
{
    const ChartScale scale{.rect = kChart, .topMargin = 73, .units = units};
    return {ChannelAxis(band, kChart, false), scale, isAlone};
}

/// From the left to the right end at the floor, in positions from the centre.
std::pair<double, double> reach(const SpectrumShape& shape, const SpectrumBand& band)
{
    const QRectF bounds = shape.outline.boundingRect();
    return {(bounds.left() - shape.center) / band.axis.step(),
            (bounds.right() - shape.center) / band.axis.step()};
}

} // namespace

TEST(SpectrumShape, SpansTheWidthOfTheNetworkAroundItsCentre)
{
    const SpectrumBand band = bandOf(Band::k5GHz);
    struct Case {
        ChannelWidth width;
        int offset;
        int center; ///< channel number
        double halfWidth;
    };
    for (const Case& c :
         {Case{ChannelWidth::kUnknown, 0, 36, 2}, Case{ChannelWidth::k20MHz, 0, 36, 2},
          Case{ChannelWidth::k40MHz, 1, 38, 4}, Case{ChannelWidth::k80MHz, 1, 42, 8},
          Case{ChannelWidth::k160MHz, 1, 50, 16}}) {
        SCOPED_TRACE(static_cast<int>(c.width));
        const auto network = channelNetwork(1, 36, -55, c.width, c.offset);
        const auto shape = spectrumShape(*network, band, kFresh);
        ASSERT_TRUE(shape);
        EXPECT_DOUBLE_EQ(shape->center, band.axis.xFor(c.center, 36));
        EXPECT_NEAR(reach(*shape, band).first, -c.halfWidth, 1e-9);
        EXPECT_NEAR(reach(*shape, band).second, c.halfWidth, 1e-9);
    }
    EXPECT_EQ(halfWidthInPositions(ChannelWidth::k80Plus80MHz), 2);
    EXPECT_FALSE(spectrumShape(*channelNetwork(1, 6, -55), band, kFresh));
    EXPECT_FALSE(spectrumShape(*channelNetwork(1, 0, -55), bandOf(Band::k2Dot4GHz), kFresh));
}

TEST(SpectrumShape, EndsAtTheEdgesOfTheChart)
{
    const SpectrumBand band = bandOf(Band::k5GHz);
    const auto network = channelNetwork(1, 36, -55);
    const auto whole = spectrumShape(*network, band, kFresh);
    SpectrumBand narrow = band;
    narrow.scale.rect = {whole->center - 1, kChart.y(), 2, kChart.height()};
    const auto cut = spectrumShape(*network, narrow, kFresh);
    for (const QPainterPath& path : {cut->outline, cut->area}) {
        EXPECT_NEAR(path.boundingRect().left(), whole->center - 1, 1e-9);
        EXPECT_NEAR(path.boundingRect().right(), whole->center + 1, 1e-9);
    }
    EXPECT_NEAR(cut->outline.boundingRect().height(), 0, 1e-9); // of the sides nothing is left
    EXPECT_NEAR(cut->area.boundingRect().height(), whole->top - 56, 1e-9);
}

TEST(SpectrumShape, IsAsHighAsTheLastSignal)
{
    struct Case {
        std::int64_t rssi;
        Units units;
        double height; ///< of the scale
    };
    for (const Case& c :
         {Case{-120, Units::kDBm, 0}, Case{-100, Units::kDBm, 0}, Case{-55, Units::kDBm, 0.5},
          Case{-10, Units::kDBm, 1}, Case{0, Units::kDBm, 10.0 / 9}, Case{-20, Units::kPercent, 1},
          Case{0, Units::kPercent, 1}, Case{-120, Units::kPercent, 0}}) {
        SCOPED_TRACE(c.rssi);
        for (const int maxRate : {0, kDSSSRate}) {
            const auto network = channelNetwork(1, 6, c.rssi, ChannelWidth::k20MHz, 0, maxRate);
            const auto shape = spectrumShape(*network, bandOf(Band::k2Dot4GHz, c.units), kFresh);
            EXPECT_NEAR(shape->top, 56 + c.height * 582, 1e-9);
            EXPECT_NEAR(shape->outline.boundingRect().bottom(), shape->top, 1e-9);
            EXPECT_NEAR(shape->outline.boundingRect().top(), 56, 1e-9);
        }
    }
    const auto gone = channelNetwork(1, 6, -55);
    gone->addDataPoint(sampleAt(-2, -120));
    EXPECT_NEAR(spectrumShape(*gone, bandOf(Band::k2Dot4GHz), kFresh)->top, 56 + 291, 1e-9);
}

TEST(SpectrumShape, IsABellForDSSSAloneAndFlatForAllOthers)
{
    // A bell's outline begins anew at its right foot; the flat top is one line.
    const auto isBell = [](int channel, int maxRate) {
        const auto network = channelNetwork(1, channel, -55, ChannelWidth::kUnknown, 0, maxRate);
        const Band band = channel < 36 ? Band::k2Dot4GHz : Band::k5GHz;
        const auto shape = spectrumShape(*network, bandOf(band), kFresh);
        return shape->outline.elementAt(4).isMoveTo();
    };
    EXPECT_TRUE(isBell(6, kDSSSRate));
    EXPECT_TRUE(isBell(6, 4));
    EXPECT_FALSE(isBell(6, 0)); // unknown
    EXPECT_FALSE(isBell(6, 108));
    EXPECT_FALSE(isBell(36, kDSSSRate));
}

TEST(SpectrumShape, DrawsTheBellWiderWhereItsBandIsAlone)
{
    const auto shape = [](bool isAlone, ChannelWidth width, int offset) {
        return *spectrumShape(*channelNetwork(1, 6, -55, width, offset, kDSSSRate),
                              bandOf(Band::k2Dot4GHz, Units::kDBm, isAlone), kFresh);
    };
    const auto pointed = shape(false, ChannelWidth::k20MHz, 0);
    const auto control = [](const SpectrumShape& bell, int element) {
        return QPointF(bell.outline.elementAt(element));
    };
    EXPECT_LT(control(shape(true, ChannelWidth::k20MHz, 0), 2).x(), control(pointed, 2).x());
    // A wide one has a plateau of 20 MHz; its area reaches down to the floor, its outline is open.
    const auto wide = shape(false, ChannelWidth::k40MHz, 1);
    const double step = bandOf(Band::k2Dot4GHz).axis.step();
    EXPECT_NEAR(control(wide, 3).x(), wide.center - 2 * step, 1e-9);
    EXPECT_NEAR(control(wide, 4).x(), wide.center + 2 * step, 1e-9);
    for (const auto& bell : {pointed, wide}) {
        EXPECT_TRUE(bell.area.contains(QPointF(bell.center, 60)));
        EXPECT_EQ(bell.area.boundingRect(), bell.outline.boundingRect());
    }
}

TEST(SpectrumLayout, ShowsWhatTheSettingsAndTheNetworksAskFor)
{
    const auto low = channelNetwork(1, 6, -55);
    const auto high = channelNetwork(2, 36, -55);
    const auto radar = channelNetwork(3, 100, -55);
    struct Case {
        const char* what;
        NetworkList networks;
        SpectrumSettings settings;
        double width2Dot4GHz, width5GHz;
        bool skipsDFS;
    };
    const Case cases[] = {
        {"all", {low}, {}, 0.45 * 1010 - 2, 0.55 * 1010 - 2, false},
        {"without radar", {low, high}, {true, false}, 0.6 * 1010 - 2, 0.4 * 1010 - 2, true},
        {"radar is there", {low, radar}, {true, false}, 0.45 * 1010 - 2, 0.55 * 1010 - 2, false},
        {"2.4 GHz alone", {low}, {false, true}, 1010, 0, false},
        {"5 GHz alone", {high}, {true, true}, 0, 1010, true},
        {"both", {low, high}, {false, true}, 0.45 * 1010 - 2, 0.55 * 1010 - 2, false},
        {"nothing there", {}, {false, true}, 0.45 * 1010 - 2, 0.55 * 1010 - 2, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const SpectrumLayout layout = spectrumLayout(kChart, c.networks, c.settings);
        EXPECT_NEAR(layout.rect2Dot4GHz.width(), c.width2Dot4GHz, 1e-9);
        EXPECT_NEAR(layout.rect5GHz.width(), c.width5GHz, 1e-9);
        EXPECT_EQ(layout.skipsDFS, c.skipsDFS);
        EXPECT_EQ(layout.divider.isEmpty(), c.width2Dot4GHz == 0 || c.width5GHz == 0);
        if (c.width5GHz > 0) {
            EXPECT_NEAR(layout.rect5GHz.right(), kChart.right(), 1e-9);
        }
    }
}
