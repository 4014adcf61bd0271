#include "charts/ChartPicture.h"

#include "charts/ChartNetworks.h"
#include "charts/TSSignalStrengthView.h"
#include "support/ManualClock.h"
#include "support/QtPrinters.h"

#include <QApplication>
#include <QDir>
#include <QDrag>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

const char* const kFormats[] = {"image/tiff", "image/png", "text/uri-list"};

class ChartPictureTest : public testing::Test {
protected:
    ChartPictureTest() { image.fill(Qt::darkCyan); }

    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("chart.png"));
    QImage image{40, 30, QImage::Format_RGB32};
};

} // namespace

TEST_F(ChartPictureTest, GivesWhatIsAskedForFirstAndNothingElse)
{
    for (const char* first : kFormats) {
        SCOPED_TRACE(first);
        const ChartPicture picture(image, file);
        EXPECT_FALSE(QFile::exists(file)); // only written when asked for
        const QString format = QString::fromLatin1(first);
        const QByteArray given = picture.data(format);
        if (format == QLatin1String("text/uri-list")) {
            EXPECT_EQ(picture.urls(), QList{QUrl::fromLocalFile(file)});
            EXPECT_EQ(QImage(file).convertToFormat(QImage::Format_RGB32), image);
            QFile::remove(file);
        } else {
            EXPECT_EQ(QImage::fromData(given).convertToFormat(QImage::Format_RGB32), image);
        }
        for (const char* other : kFormats) {
            EXPECT_TRUE(picture.hasFormat(QString::fromLatin1(other)));
            EXPECT_EQ(picture.data(QString::fromLatin1(other)),
                      other == first ? given : QByteArray());
        }
        EXPECT_FALSE(QFile::exists(file));
    }
}

TEST_F(ChartPictureTest, GivesNoFileThatCannotBeWritten)
{
    const ChartPicture picture(image, folder.filePath(QStringLiteral("gone/chart.png")));
    EXPECT_TRUE(picture.urls().isEmpty());
}

TEST_F(ChartPictureTest, LeavesTheChartWithTheMouse)
{
    ManualClock clock(kReferenceTime);
    TSSignalStrengthView view(clock);
    view.resize(800, 400);
    const auto mouse = [&](QEvent::Type type, const QPointF& position) {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, position, position, moves ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
        QCoreApplication::sendEvent(&view, &event);
    };
    mouse(QEvent::MouseButtonPress, {100, 100});
    mouse(QEvent::MouseMove, {101, 100});
    EXPECT_FALSE(view.findChild<QDrag*>()); // a hand that trembles
    mouse(QEvent::MouseMove, {100.0 + QApplication::startDragDistance(), 100});
    const auto* drag = view.findChild<QDrag*>();
    ASSERT_TRUE(drag);
    EXPECT_EQ(drag->pixmap().deviceIndependentSize(), QSizeF(600, 300));
    EXPECT_EQ(drag->hotSpot(), QPoint(300, 150));
    const QList<QUrl> files = drag->mimeData()->urls();
    ASSERT_EQ(files.size(), 1);
    const QString file = files[0].toLocalFile();
    EXPECT_EQ(file, QDir::temp().filePath(chartPictureName(kReferenceTime)));
    EXPECT_EQ(QImage(file).convertToFormat(QImage::Format_RGB32), view.imageWithSubviews());
    QFile::remove(file);
}
