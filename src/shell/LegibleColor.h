#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

#include <algorithm>

namespace tessara {

inline bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightnessF() < 0.5F;
}

/// A colour meant for text on white, as light as it must be to be read on the palette's ground.
inline QColor legible(const QColor& color, const QPalette& palette)
{
    if (!isDark(palette))
        return color;
    // What was so much darker than the ground is now so much lighter; hue and opacity stay.
    const float lightness = std::clamp(1 - color.lightnessF() * 0.8F, 0.72F, 0.9F);
    return QColor::fromHslF(std::max(color.hslHueF(), 0.0F), color.hslSaturationF() * 0.6F,
                            lightness, color.alphaF());
}

/// Text that stands back: a hint, a heading. The palette's own colour for it may be illegible.
inline QColor dimmed(const QPalette& palette)
{
    QColor color = palette.color(QPalette::Active, QPalette::Text); // also beside what is disabled
    color.setAlphaF(0.55F);
    return color;
}

/// Rich text whose links can be read; of itself it takes the desktop's colour for them.
inline QString withLegibleLinks(const QString& html, const QPalette& palette)
{
    return QStringLiteral("<style>a { color: %1; }</style>%2")
        .arg(legible(Qt::blue, palette).name(), html);
}

} // namespace tessara
