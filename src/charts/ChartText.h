#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>

class QPaintDevice;
class QPainter;

namespace tessara {

enum class TextStyle { kPlain, kBold, kItalic };

/// How a text of a chart looks.
struct TextAttributes {
    double size; ///< points, which are the units of a chart on every device
    QColor color;
    TextStyle style = TextStyle::kPlain;
};

/// The font of charts at a size, for text that is painted or measured on a device.
QFont chartFont(const TextAttributes& attributes, const QPaintDevice& device);

QSizeF sizeOfText(const QString& text, const TextAttributes& attributes,
                  const QPaintDevice& device);

// Painting of text into a chart, y growing upward. The baseline lies near the y of the origin.
// All text throws a hard shadow one point down, so that it reads on lines and areas too.

/// Text centred at an origin, and moved into bounds if they are not empty.
/// @param highlighted the first word that is this text is set in bold
void centerTextInContextAtOrigin(QPainter& painter, const QPointF& origin, const QString& text,
                                 const TextAttributes& attributes, const QRectF& bounds = {},
                                 const QString& highlighted = {});

/// Text that begins at an origin.
void textInContextAtOrigin(QPainter& painter, const QPointF& origin, const QString& text,
                           const TextAttributes& attributes);

} // namespace tessara
