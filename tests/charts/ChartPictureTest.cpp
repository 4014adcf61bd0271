#include "charts/ChartPicture.h"

#include "charts/ChartNetworks.h"
#include "charts/TSSignalStrengthView.h"
#include "support/ManualClock.h"
#include "support/QtPrinters.h"

#include <QApplication>
#include <QDir>
#include <QDrag>
#include <QFileInfo>
#include <QMouseEvent>
#include <QUrl>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

const char* const kFormats[] = {"image/tiff", "image/png", "text/uri-list"};

class ChartPictureTest : public testing::Test {
protected:
    ChartPictureTest() { image.fill(Qt::darkCyan); }

    QImage image{40, 30, QImage::Format_RGB32};
};

} // namespace

TEST_F(ChartPictureTest, GivesWhatIsAskedForFirstAndNothingElse)
{
    for (const char* first : kFormats) {
        SCOPED_TRACE(first);
        const ChartPicture picture(image, QStringLiteral("chart.png"));
        const QString format = QString::fromLatin1(first);
        const QByteArray given = picture.data(format);
        if (format == QLatin1String("text/uri-list")) {
            const QFileInfo file(picture.urls().at(0).toLocalFile());
            EXPECT_EQ(file.fileName(), QStringLiteral("chart.png"));
            EXPECT_EQ(QImage(file.filePath()).convertToFormat(QImage::Format_RGB32), image);
            // Nobody else can have prepared the place.
            EXPECT_EQ(QFile::permissions(file.path()) & (QFile::ReadOther | QFile::WriteGroup |
                                                         QFile::WriteOther | QFile::ExeOther),
                      QFile::Permissions());
            EXPECT_NE(QFileInfo(file.path()), QFileInfo(QDir::tempPath()));
        } else {
            EXPECT_EQ(QImage::fromData(given).convertToFormat(QImage::Format_RGB32), image);
        }
        for (const char* other : kFormats) {
            EXPECT_TRUE(picture.hasFormat(QString::fromLatin1(other)));
            EXPECT_EQ(picture.data(QString::fromLatin1(other)),
                      other == first ? given : QByteArray());
        }
    }
}

TEST_F(ChartPictureTest, GivesNoFileThatCannotBeWritten)
{
    const ChartPicture picture(image, QStringLiteral("gone/chart.png"));
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
    EXPECT_EQ(QFileInfo(file).fileName(), chartPictureName(kReferenceTime));
    EXPECT_EQ(QImage(file).convertToFormat(QImage::Format_RGB32), view.imageWithSubviews());
}
