#pragma once

#include <QImage>
#include <QMimeData>

class QWidget;

namespace tessara {

/// The picture of a chart on its way to another program, which gets it in the form it asks for:
/// TIFF, PNG, or a file that is written when it is asked for, in a folder of this program's own
/// which stays until the program ends. The first form asked for is the only one that it gets.
class ChartPicture final : public QMimeData {
    Q_OBJECT

public:
    /// @param name of the file that is written if one is asked for; a PNG
    ChartPicture(QImage image, QString name);

    QStringList formats() const override;
    bool hasFormat(const QString& mimeType) const override;

protected:
    QVariant retrieveData(const QString& mimeType, QMetaType type) const override;

private:
    QByteArray made(const QString& mimeType) const;

    mutable QImage m_image; ///< until the first request
    QString m_name;
    mutable QString m_givenType;
    mutable QByteArray m_given;
};

/// The name of a picture's file: "tessara_20261123_042500.png".
QString chartPictureName(double time);

/// Drags a picture of a chart out of its view; returns when it has been dropped or given up.
/// @param image the chart as it is on the screen
/// @param name as `ChartPicture` has it
void dragChartPicture(const QImage& image, const QString& name, QWidget& view);

} // namespace tessara
