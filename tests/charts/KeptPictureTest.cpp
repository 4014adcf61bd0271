#include "charts/KeptPicture.h"

#include "charts/ChartNetworks.h"
#include "charts/TSSpectrumView.h"
#include "support/ManualClock.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

constexpr KeptPicture::Key kKey{{60, 40}, 1, {100, 100}, true};

/// Paints so many lines of a colour all over a picture.
KeptPicture::Paint lines(int count, const QColor& color)
{
    return [count, color](QPainter& painter) {
        painter.setPen(QPen(color, 3));
        for (int i = 0; i < count; ++i)
            painter.drawLine(QPointF(0, i % 40), QPointF(60, i % 40));
    };
}

QImage drawn(KeptPicture& picture, const KeptPicture::Paint& paint,
             const KeptPicture::Key& key = kKey)
{
    QImage image(key.size, QImage::Format_RGB32);
    QPainter painter(&image);
    picture.draw(painter, key, paint);
    return image;
}

constexpr int kFew = 80;
constexpr int kMany = 2000;

} // namespace

TEST(KeptPicture, HoldsAChartPixelByPixel)
{
    ManualClock clock{kReferenceTime};
    TSSpectrumView spectrum(clock);
    TSSignalStrengthView signal(clock);
    const NetworkPtr selected = chartNetwork(4, {{90, -70}, {60, -50}, {0, -55}});
    selected->setUserHighlighted(true);
    NetworkList networks{selected, chartNetwork(5, {{200, -60}, {3, -62}})};
    ScanDictionary fox = selected->network();
    fox.ssid = QStringLiteral("Füchse 🦊 שועל");
    fox.bssid = QStringLiteral("02:00:00:00:01:00");
    networks.push_back(std::make_shared<TSNetwork>(fox, kReferenceTime));
    networks.back()->addDataPoint(sampleAt(0, -45));
    networks.back()->setAssociated(true);

    for (TSSignalStrengthView* chart : {static_cast<TSSignalStrengthView*>(&spectrum), &signal}) {
        chart->resize(900, 400);
        chart->setReferenceTime(kReferenceTime);
        chart->setItemHighlightEnabled(true);
        chart->setNetworks(networks);
        for (const double ratio : {1.0, 1.5, 2.0}) {
            QImage direct((QSizeF(chart->size()) * ratio).toSize(), QImage::Format_RGB32);
            direct.setDevicePixelRatio(ratio);
            QImage kept = direct;
            const auto paint = [chart](QPainter& painter) { chart->paint(painter); };
            QPainter painter(&direct);
            paint(painter);
            painter.end();
            painter.begin(&kept);
            KeptPicture().draw(painter, {chart->size(), ratio, {}, true}, paint);
            painter.end();
            EXPECT_EQ(direct, kept) << ratio;
        }
    }
}

TEST(KeptPicture, PaintsLittleAtOnceAndOnlyWhenSomethingHasChanged)
{
    KeptPicture picture;
    EXPECT_EQ(drawn(picture, lines(kFew, Qt::red)).pixelColor(30, 20), QColor(Qt::red));
    EXPECT_EQ(drawn(picture, lines(kFew, Qt::green)).pixelColor(30, 20), QColor(Qt::red));
    picture.invalidate();
    EXPECT_EQ(drawn(picture, lines(kFew, Qt::green)).pixelColor(30, 20), QColor(Qt::green));
    KeptPicture::Key larger = kKey;
    larger.size = {120, 80};
    EXPECT_EQ(drawn(picture, lines(kFew, Qt::blue), larger).pixelColor(30, 20), QColor(Qt::blue));
}

TEST(KeptPicture, KeepsTheFormerPictureUntilALongerOneIsThere)
{
    KeptPicture picture;
    QSignalSpy pictures(&picture, &KeptPicture::didPaint);
    drawn(picture, lines(kFew, Qt::red));
    picture.invalidate();
    KeptPicture::Key larger = kKey;
    larger.size = {120, 80};
    EXPECT_EQ(drawn(picture, lines(kMany, Qt::green), larger).pixelColor(100, 60), QColor(Qt::red))
        << "stretched to the size it is asked for";
    picture.invalidate(); // again before that is ready
    EXPECT_EQ(drawn(picture, lines(kMany, Qt::blue), larger).pixelColor(20, 20), QColor(Qt::red));

    ASSERT_TRUE(pictures.wait());
    // The view draws then, and learns of the last change.
    EXPECT_EQ(drawn(picture, lines(kMany, Qt::blue), larger).pixelColor(20, 20), QColor(Qt::green));
    ASSERT_TRUE(pictures.wait());
    EXPECT_EQ(drawn(picture, lines(kFew, Qt::red), larger).pixelColor(20, 20), QColor(Qt::blue));

    picture.invalidate();
    drawn(picture, lines(kMany, Qt::red), larger);
    picture.forget(); // with what is under way
    ASSERT_TRUE(pictures.wait());
    EXPECT_NE(drawn(picture, lines(kMany, Qt::yellow), larger).pixelColor(20, 20), QColor(Qt::red));
    ASSERT_TRUE(pictures.wait());
    EXPECT_EQ(drawn(picture, lines(kFew, Qt::red), larger).pixelColor(20, 20), QColor(Qt::yellow));
}
