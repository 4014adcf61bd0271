#include "charts/ChartPicture.h"

#include <QBuffer>
#include <QDateTime>
#include <QDrag>
#include <QPixmap>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QUrl>
#include <QWidget>

namespace tessara {

namespace {

const QString kTiff = QStringLiteral("image/tiff");
const QString kPng = QStringLiteral("image/png");
const QString kFile = QStringLiteral("text/uri-list");

QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return image.save(&buffer, format) ? bytes : QByteArray();
}

/// Where files are written: nobody else can have put anything there, and it stays while a receiver
/// may still read from it.
const QTemporaryDir& picturesFolder()
{
    static const QTemporaryDir folder;
    return folder;
}

} // namespace

ChartPicture::ChartPicture(QImage image, QString name)
    : m_image(std::move(image))
    , m_name(std::move(name))
{
}

QStringList ChartPicture::formats() const
{
    return {kTiff, kPng, kFile};
}

bool ChartPicture::hasFormat(const QString& mimeType) const
{
    return formats().contains(mimeType);
}

QVariant ChartPicture::retrieveData(const QString& mimeType, QMetaType /*type*/) const
{
    if (!hasFormat(mimeType))
        return {};
    // A receiver may read what it has got more than once.
    if (m_givenType.isEmpty()) {
        m_givenType = mimeType;
        m_given = made(mimeType);
        m_image = {};
    }
    return mimeType == m_givenType ? QVariant(m_given) : QVariant();
}

QByteArray ChartPicture::made(const QString& mimeType) const
{
    if (mimeType == kTiff)
        return encoded(m_image, "tiff");
    QByteArray png = encoded(m_image, "png");
    if (mimeType == kPng)
        return png;
    QSaveFile file(picturesFolder().filePath(m_name));
    if (!file.open(QIODevice::WriteOnly) || file.write(png) != png.size() || !file.commit())
        return {};
    return QUrl::fromLocalFile(file.fileName()).toEncoded() + "\r\n";
}

QString chartPictureName(double time)
{
    return QStringLiteral("tessara_%1.png")
        .arg(QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(time * 1000))
                 .toString(QStringLiteral("yyyyMMdd_HHmmss")));
}

void dragChartPicture(const QImage& image, const QString& name, QWidget& view)
{
    constexpr double kShownSize = 0.75;
    QPixmap shown = QPixmap::fromImage(
        image.scaled(image.size() * kShownSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    shown.setDevicePixelRatio(image.devicePixelRatio());
    auto* drag = new QDrag(&view);
    drag->setMimeData(new ChartPicture(image, name));
    drag->setPixmap(shown);
    drag->setHotSpot(QRectF({}, shown.deviceIndependentSize()).center().toPoint());
    drag->exec(Qt::CopyAction);
}

} // namespace tessara
