#pragma once

#include <QIcon>

namespace tessara {

/// The program's own icons: plain shapes, painted in the text colour of the palette in force, so
/// that they read on light and dark desktops and at every scale.
enum class Glyph { kScan, kStop, kSearch };

QIcon glyphIcon(Glyph glyph);

} // namespace tessara
