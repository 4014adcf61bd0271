#include "charts/KeptPicture.h"

#include "charts/TSThemeHelper.h"

#include <QtConcurrentRun>

namespace tessara {

namespace {

/// What is painted within a frame of the screen is painted at once.
constexpr qsizetype kLargestCostAtOnce = 5000;

QSize sizeInPixels(const KeptPicture::Key& key)
{
    return (QSizeF(key.size) * key.pixelRatio).toSize();
}

QImage imageOf(const PaintRecording& recording, const KeptPicture::Key& key, int dotsPerInch)
{
    constexpr double kInch = 0.0254; // metres
    QImage image(sizeInPixels(key), QImage::Format_RGB32);
    image.setDevicePixelRatio(key.pixelRatio);
    image.setDotsPerMeterX(qRound(dotsPerInch / kInch));
    image.setDotsPerMeterY(qRound(dotsPerInch / kInch));
    QPainter painter(&image);
    recording.replay(painter);
    return image;
}

} // namespace

KeptPicture::KeptPicture()
{
    connect(&m_painting, &QFutureWatcher<QImage>::finished, this, [this] {
        m_isPainting = false;
        m_picture = QPixmap::fromImage(m_painting.result());
        Q_EMIT didPaint();
    });
}

KeptPicture::~KeptPicture()
{
    m_painting.waitForFinished(); // the fonts it paints with go with the application
}

void KeptPicture::draw(QPainter& painter, const Key& key, const Paint& paint)
{
    if ((m_isStale || m_key != key) && !m_isPainting)
        repaint(key, paint, painter.device()->logicalDpiY());
    const QRect whole(QPoint(0, 0), key.size);
    if (m_picture.isNull())
        painter.fillRect(whole, TSThemeHelper::backgroundColorForChartView());
    else if (m_picture.size() == sizeInPixels(key))
        painter.drawPixmap(0, 0, m_picture);
    else
        painter.drawPixmap(whole, m_picture); // stretched while one of this size is on its way
}

void KeptPicture::repaint(const Key& key, const Paint& paint, int dotsPerInch)
{
    m_isStale = false;
    m_key = key;
    PaintRecorder recorder(key.size, dotsPerInch);
    {
        QPainter painter(&recorder);
        paint(painter);
    }
    if (recorder.recording().cost() <= kLargestCostAtOnce) {
        m_picture = QPixmap::fromImage(imageOf(recorder.recording(), key, dotsPerInch));
        return;
    }
    m_isPainting = true;
    m_painting.setFuture(QtConcurrent::run([recording = recorder.recording(), key, dotsPerInch] {
        return imageOf(recording, key, dotsPerInch);
    }));
}

} // namespace tessara
