#include "charts/ChartFile.h"

#include "charts/ChartNetworks.h"
#include "charts/PaintedChart.h"
#include "charts/TSSpectrumView.h"
#include "support/ManualClock.h"
#include "support/QtPrinters.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>

using namespace tessara;

namespace {

/// A chart of three networks, one of them selected; not scanning.
class ChartFileTest : public testing::Test {
protected:
    ChartFileTest()
    {
        qputenv("TZ", "UTC");
        tzset();
        const auto selected = chartNetwork(
            10, {{250, -70}, {200, -60}, {120, -50}, {110, -55}, {80, -45}, {40, -52}, {0, -40}});
        selected->setUserHighlighted(true);
        const auto associated = chartNetwork(20, {{300, -50}, {250, -48}, {200, -55}, {0, -30}});
        associated->setAssociated(true);
        const auto dropped = chartNetwork(3, {{150, -80}, {100, -75}, {60, -120}, {0, -120}});
        QApplication::setActiveWindow(&window);
        window.resize(1100, 735); // so that texts and bubble have their usual sizes
        view.resize(800, 320);
        view.setUnits(Units::kDBm);
        view.setItemHighlightEnabled(true);
        view.setReferenceTime(kReferenceTime);
        view.setNetworks({selected, associated, dropped});
    }

    QByteArray written(const char* name) { return written(view, name); }

    QByteArray written(TSSignalStrengthView& chart, const char* name)
    {
        const QString path = folder.filePath(QString::fromLatin1(name));
        EXPECT_EQ(writeChart(chart, path), QString());
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    ManualClock clock{kReferenceTime + 3600};
    QWidget window;
    TSSignalStrengthView& view = *new TSSignalStrengthView(clock, &window);
};

/// The largest difference, from 0 to 255, of two images of one size seen from some distance: a
/// missing line shows, fonts that are rendered a little differently do not.
int difference(const QImage& one, const QImage& other)
{
    constexpr int kDistance = 8;
    const auto farAway = [](const QImage& image) {
        return image.scaled(image.size() / kDistance, Qt::IgnoreAspectRatio,
                            Qt::SmoothTransformation);
    };
    const QImage a = farAway(one);
    const QImage b = farAway(other);
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(p) - qRed(q)),
                                std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return largest;
}

} // namespace

TEST_F(ChartFileTest, LooksAsItIsToLook)
{
    const auto looksLike = [this](TSSignalStrengthView& chart, const char* name) {
        const QImage golden(QStringLiteral(TESSARA_GOLDEN_CHARTS "/%1").arg(QLatin1String(name)));
        const QImage painted = QImage::fromData(written(chart, name));
        const bool isAlike = painted.size() == golden.size() && difference(painted, golden) < 24;
        if (!isAlike) { // it stays, to be looked at
            folder.setAutoRemove(false);
            ADD_FAILURE() << "see " << folder.filePath(QLatin1String(name)).toStdString();
        }
    };
    looksLike(view, "signal-dBm.png");
    view.setUnits(Units::kPercent);
    moveMouse(view, {460, 190});
    looksLike(view, "signal-percent-bubble.png");

    // A bell, flat tops of all widths and the selected one over them.
    auto& spectrum = *new TSSpectrumView(clock, &window);
    spectrum.resize(view.size());
    spectrum.setUnits(Units::kDBm);
    spectrum.setItemHighlightEnabled(true);
    const auto selected = channelNetwork(10, 36, -45, ChannelWidth::k80MHz, 1);
    selected->setUserHighlighted(true);
    const auto associated = channelNetwork(20, 11, -50, ChannelWidth::k20MHz);
    associated->setAssociated(true);
    spectrum.setNetworks({channelNetwork(1, 1, -60, ChannelWidth::k20MHz, 0, 22), selected,
                          channelNetwork(3, 5, -70, ChannelWidth::k40MHz, 1), associated,
                          channelNetwork(15, 100, -35, ChannelWidth::k160MHz, 1),
                          channelNetwork(7, 149, -65)});
    looksLike(spectrum, "spectrum.png");
}

TEST_F(ChartFileTest, WritesVectorsWithTextAsText)
{
    QXmlStreamReader svg(written("chart.svg"));
    QStringList texts;
    int paths = 0;
    while (!svg.atEnd()) {
        if (svg.readNext() == QXmlStreamReader::Characters && !svg.isWhitespace())
            texts.append(svg.text().toString());
        paths += svg.isStartElement() && svg.name() == QLatin1String("path") ? 1 : 0;
    }
    EXPECT_FALSE(svg.hasError()) << svg.errorString().toStdString();
    EXPECT_TRUE(texts.contains(QStringLiteral("-50")));
    EXPECT_TRUE(texts.contains(QStringLiteral("Net 20")));
    EXPECT_GT(paths, 4);
    EXPECT_TRUE(written("chart.PDF").startsWith("%PDF-"));
}

TEST_F(ChartFileTest, LeavesAFileAloneThatItCannotReplace)
{
    EXPECT_TRUE(isChartFileName(QStringLiteral("a.Svg")));
    EXPECT_FALSE(isChartFileName(QStringLiteral("png")));
    const QString path = folder.filePath(QStringLiteral("gone/chart.png"));
    const QString fault = writeChart(view, path);
    EXPECT_TRUE(fault.startsWith(path)) << fault.toStdString();
    EXPECT_GT(fault.size(), path.size() + 5);
}
