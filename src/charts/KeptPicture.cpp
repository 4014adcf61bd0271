#include "charts/KeptPicture.h"

#include "charts/TSThemeHelper.h"

#include <QtConcurrentRun>

#include <utility>

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
    image.setDotsPerMeterX(qRound(dotsPerInch / kInch));
    image.setDotsPerMeterY(qRound(dotsPerInch / kInch));
    QPainter painter(&image);
    recording.replay(painter);
    painter.end();
    image.setDevicePixelRatio(key.pixelRatio);
    return image;
}

} // namespace

KeptPicture::KeptPicture()
{
    connect(&m_painting, &QFutureWatcher<QImage>::finished, this, [this] {
        m_isPainting = false;
        if (!std::exchange(m_isForgotten, false))
            m_picture = QPixmap::fromImage(m_painting.result());
        Q_EMIT didPaint();
    });
}

KeptPicture::~KeptPicture()
{
    m_painting.waitForFinished(); // the fonts it paints with go with the application
}

void KeptPicture::forget()
{
    m_picture = {};
    m_isStale = true;
    m_isForgotten = m_isPainting;
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
        painter.scale(key.pixelRatio, key.pixelRatio); // in pixels, as lines of one ask for them
        paint(painter);
    }
    PaintRecording recording = recorder.takeRecording();
    if (recording.cost() <= kLargestCostAtOnce) {
        m_picture = QPixmap::fromImage(imageOf(recording, key, dotsPerInch));
        return;
    }
    m_isPainting = true;
    m_painting.setFuture(QtConcurrent::run([recording = std::move(recording), key, dotsPerInch] {
        return imageOf(recording, key, dotsPerInch);
    }));
}

} // namespace tessara
