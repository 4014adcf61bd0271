#pragma once

#include <QIcon>

class QColor;
class QPixmap;

namespace tessara {

/// The program's own signs. Each is a drawing in one colour, resources/icons/glyphs/NAME.svg, of
/// which only the opacity counts: it is shown in the colour of the text beside it, so that it reads
/// on light and dark desktops and at every scale.
enum class Glyph {
    kAdvanced,
    kBottomArea,
    kCategory,
    kDot,
    kGeneral,
    kLeftArea,
    kLock,
    kLowSignal,
    kPadlock,
    kScan,
    kSearch,
    kStop,
    kTable,
    kTag,
};

/// For actions, buttons and labels: follows the palette in force, also when it changes.
QIcon glyphIcon(Glyph glyph);

/// For delegates, which know the colour of their cell's text. `side` is in points; the pixmap has
/// side * devicePixelRatio pixels, and drawPixmap(QPointF, pixmap) paints it at its size. Cached.
QPixmap glyphPixmap(Glyph glyph, const QColor& color, int side, double devicePixelRatio);

} // namespace tessara
