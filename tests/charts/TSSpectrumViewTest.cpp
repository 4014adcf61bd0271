#include "charts/TSSpectrumView.h"

#include "charts/ChartNetworks.h"
#include "charts/PaintedChart.h"
#include "charts/RadioMerge.h"
#include "filtering/TSNetworkCollection.h"
#include "foundation/Defaults.h"
#include "support/ManualClock.h"
#include "support/QtPrinters.h"

#include <QPainter>

#include <gmock/gmock.h>

#include <cmath>

using namespace tessara;
using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

namespace {

class OpenSpectrumView final : public TSSpectrumView {
public:
    using TSSpectrumView::drawDataPoints;
    using TSSpectrumView::TSSpectrumView;
};

class SpectrumViewTest : public testing::Test {
protected:
    SpectrumViewTest()
    {
        view.resize(1100, 735); // the chart reaches from (45, 56) to (1055, 711)
        view.setUnits(Units::kDBm);
    }
    ~SpectrumViewTest() override
    {
        for (const auto* key : {DefaultKey::HideDFSChannels, DefaultKey::HideChannelGraphs,
                                DefaultKey::ShowNetworkLabel})
            Defaults::standard().remove(key);
    }

    Painting painted() { return paintingOf(view); }

    std::vector<std::string> texts() { return textsOf(view); }

    /// The colours in which networks are outlined, in the order of painting.
    std::vector<QColor> outlines()
    {
        std::vector<QColor> colors;
        for (const Painted& item : painted().painted(Painted::Kind::kStroke)) {
            if (item.isAntialiased)
                colors.push_back(item.color);
        }
        return colors;
    }

    ManualClock clock{kReferenceTime};
    OpenSpectrumView view{clock};
};

QColor opaque(QColor color)
{
    color.setAlpha(255);
    return color;
}

} // namespace

TEST_F(SpectrumViewTest, ShowsBothBandsWithTheirChannelsAndNoTime)
{
    view.setReferenceTime(kReferenceTime);
    const auto all = texts();
    for (const char* text : {"-90", "-10", "1", "6", "14", "36", "165", "ISM", "UNII-1", "UNII-2",
                             "UNII-2 Ext", "UNII-3"})
        EXPECT_THAT(all, Contains(text));
    EXPECT_EQ(std::ranges::count(all, "-50"), 2); // on both sides
    EXPECT_THAT(all, Not(Contains("Now")));
}

TEST_F(SpectrumViewTest, FollowsTheSettingsAtEachPainting)
{
    view.setNetworks({channelNetwork(1, 36, -50)});
    Defaults::standard().setValue(DefaultKey::HideDFSChannels, true);
    EXPECT_THAT(texts(), Not(Contains("60")));
    Defaults::standard().setValue(DefaultKey::HideChannelGraphs, true);
    EXPECT_THAT(texts(), Not(Contains("ISM")));
    EXPECT_THAT(texts(), Contains("Net 1"));
    Defaults::standard().setValue(DefaultKey::ShowNetworkLabel, false);
    EXPECT_THAT(texts(), Not(Contains("Net 1")));
}

TEST_F(SpectrumViewTest, PaintsWeakNetworksOverStrongOnesAndSelectedOnesOnTop)
{
    const auto strong = channelNetwork(1, 6, -40);
    const auto middle = channelNetwork(2, 6, -60);
    const auto weak = channelNetwork(3, 6, -80);
    const auto hidden = channelNetwork(4, 6, -70);
    hidden->setUserHidden(true);
    view.setNetworks({weak, strong, hidden, middle});
    const auto order = [this] {
        std::vector<QColor> colors;
        for (const QColor& color : outlines())
            colors.push_back(opaque(color));
        return colors;
    };
    EXPECT_THAT(order(), ElementsAre(strong->color(), middle->color(), weak->color()));
    strong->setUserHighlighted(true);
    view.setNetworks({weak, strong, hidden, middle});
    EXPECT_THAT(order(), ElementsAre(middle->color(), weak->color(), strong->color()));
}

TEST_F(SpectrumViewTest, DimsWhatIsNotSelected)
{
    const auto selected = channelNetwork(1, 6, -50);
    const auto sibling = channelNetwork(2, 6, -60);
    const auto member = channelNetwork(3, 6, -65);
    const auto other = channelNetwork(4, 6, -70);
    const auto family = std::make_shared<TSNetworkCollection>(QStringLiteral("Family"));
    const auto chosen = std::make_shared<TSNetworkCollection>(QStringLiteral("Chosen"));
    selected->setParentCollection(family);
    sibling->setParentCollection(family);
    member->setParentCollection(chosen);
    selected->setUserHighlighted(true);
    chosen->setUserHighlighted(true);
    view.setNetworks({selected, sibling, member, other});
    struct Case {
        const NetworkPtr& network;
        double line;
        double area;
        double width;
    };
    view.setItemHighlightEnabled(true);
    const Painting painting = painted();
    for (const Case& c : {Case{selected, 1, 0.7, 1.5}, Case{sibling, 1, 0, 1.5},
                          Case{member, 1, 0, 2.5}, Case{other, 0.4, 0, 1.5}}) {
        SCOPED_TRACE(c.network->ssid().toStdString());
        const auto lines = painting.painted(Painted::Kind::kStroke, c.network->color());
        const auto areas = painting.painted(Painted::Kind::kFill, c.network->color());
        ASSERT_FALSE(lines.empty());
        EXPECT_NEAR(lines[0].color.alphaF(), c.line, 0.01);
        EXPECT_EQ(lines[0].pen.widthF(), c.width);
        EXPECT_EQ(areas.size(), c.area > 0 ? 1U : 0U);
        if (!areas.empty()) {
            EXPECT_NEAR(areas[0].color.alphaF(), c.area, 0.01);
        }
    }
    view.setItemHighlightEnabled(false);
    for (const QColor& color : outlines())
        EXPECT_NEAR(color.alphaF(), 0.8, 0.01);
}

TEST_F(SpectrumViewTest, ShowsOnlyWhatTheLastScanSawAndTheSelectedAsGhosts)
{
    const auto seen = channelNetwork(1, 6, -50);
    const auto gone = channelNetwork(2, 6, -60);
    gone->addDataPoint(sampleAt(-2, -120));
    view.setNetworks({seen, gone});
    EXPECT_EQ(outlines().size(), 2U);
    view.setDisplayOnlyLastSeen(true);
    EXPECT_EQ(outlines().size(), 1U);
    gone->setUserHighlighted(true);
    view.setNetworks({seen, gone});
    ASSERT_EQ(outlines().size(), 2U);
    EXPECT_EQ(opaque(outlines()[1]), QColor(Qt::white));
    EXPECT_NEAR(outlines()[1].alphaF(), 0.8 * 0.4, 0.01);
}

TEST_F(SpectrumViewTest, LabelsNetworksAboveTheirShapes)
{
    const NoteByTheStairs notes(u'2');
    const auto plain = channelNetwork(1, 1, -55);
    const auto noted = channelNetwork(2, 36, -55);
    noted->setAssociated(true);
    const auto nameless = channelNetwork(3, 149, -55);
    ScanDictionary dictionary = nameless->network();
    dictionary.ssid.reset();
    nameless->setNetwork(dictionary);
    view.setNetworks({plain, noted, nameless});
    const Painting painting = painted();
    const auto label = [&](const char* text) { return textOf(painting, text); };
    const double top = 56 + 291; // half of the scale
    EXPECT_NEAR(label("Net 1").origin.y(), top + 13, 3);
    EXPECT_FALSE(label("Net 1").font.bold());
    EXPECT_TRUE(label("Net 2").font.bold());
    EXPECT_NEAR(label("Net 2").origin.y(), label("Net 1").origin.y() + 14, 0.5);
    EXPECT_TRUE(label("by the stairs").font.italic());
    label("02:00:00:00:00:03");
    view.setDisplayAnnotations(false);
    EXPECT_THAT(texts(), Not(Contains("by the stairs")));
    view.setDisplayAnnotations(true);

    // The selected one's lines stand on a dark box.
    noted->setUserHighlighted(true);
    view.setItemHighlightEnabled(true);
    view.setNetworks({plain, noted, nameless});
    std::vector<QRectF> boxes;
    for (const Painted& item : painted().painted(Painted::Kind::kFill, Qt::black))
        boxes.push_back(item.path.boundingRect());
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(boxes[0].contains(label("Net 2").origin));
    EXPECT_TRUE(boxes[0].contains(label("by the stairs").origin));
    EXPECT_NEAR(boxes[0].y(), top + 13 - 7, 1);
}

TEST_F(SpectrumViewTest, TellsTheChannelsOfSelectedNetworksBelow)
{
    const auto wide = channelNetwork(1, 36, -50, ChannelWidth::k80MHz, 1);
    const auto plain = channelNetwork(2, 1, -50);
    const auto other = channelNetwork(3, 6, -50);
    wide->setUserHighlighted(true);
    plain->setUserHighlighted(true);
    view.setNetworks({wide, plain, other});
    EXPECT_THAT(texts(), Contains("02:00:00:00:00:01, 36 @ 80 MHz"));
    for (const Painted& item : painted().texts()) {
        if (item.text.startsWith(QStringLiteral("02:00:00:00:00:02, 1"))) {
            EXPECT_GE(item.origin.x(), 5); // never beyond the edge
            EXPECT_LT(item.origin.y(), 56 - 19);
        }
    }
    for (const std::string& text : texts())
        EXPECT_FALSE(text.starts_with("02:00:00:00:00:03")) << text;
}

TEST_F(SpectrumViewTest, NamesRadiosWhereNetworksAreOrganizedByThem)
{
    const auto home = channelNetwork(1, 36, -50);
    const auto guests = channelNetwork(2, 36, -60); // of the same radio
    const auto collection = std::make_shared<TSNetworkCollection>(QStringLiteral("Both"));
    collection->setUserHighlighted(true);
    guests->setParentCollection(collection);
    home->setUserHighlighted(true);
    view.setNetworks({home, guests});
    const RadioMerge merge = mergeNetworksByRadio(view.networks());
    RecordingPaintDevice device(view.size());
    QPainter painter(&device);
    view.drawDataPoints(painter, {.rect = {45, 56, 1010, 655}, .topMargin = 73}, &merge);
    painter.end();
    EXPECT_THAT(textsOf(device.painting()),
                IsSupersetOf({guests->apid().toStdString(), home->deviceid().toStdString(),
                              std::string("Net 1, Net 2, 36 @ 20 MHz")}));
    EXPECT_TRUE(textOf(device.painting(), "Net 1")
                    .font.bold()); // in the caption of the one that is selected itself
}

TEST_F(SpectrumViewTest, PaintsAnySizeOfChartAndNothingUnderTheMouse)
{
    const auto network = channelNetwork(1, 6, -50, ChannelWidth::k20MHz, 0, 22);
    network->setUserHighlighted(true);
    view.setNetworks({network, channelNetwork(2, 36, -50)});
    const std::size_t items = painted().items.size();
    moveMouse(view, {400, 435});
    EXPECT_EQ(painted().items.size(), items);
    for (const QSize size : {QSize(1, 1), QSize(90, 88), QSize(94, 89), QSize(20, 400)}) {
        view.resize(size);
        for (const Painted& item : painted().painted(Painted::Kind::kStroke))
            EXPECT_TRUE(std::isfinite(item.path.boundingRect().height()));
    }
}
