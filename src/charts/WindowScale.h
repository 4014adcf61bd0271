#pragma once

#include <QSizeF>

#include <algorithm>

namespace tessara {

/// How large the window of a chart is beside a fresh one: text, lines and bubbles grow with it.
/// Without a window all is 0, and sizes fall to their lower limits.
struct WindowScale {
    double horizontal = 0;
    double vertical = 0;

    static WindowScale ofWindow(const QSizeF& size)
    {
        constexpr QSizeF kFreshWindow(1100, 735);
        return {size.width() / kFreshWindow.width(), size.height() / kFreshWindow.height()};
    }

    /// A size of text, in points, from that in a fresh window.
    double fontSize(double fresh, double smallest, double largest) const
    {
        return std::clamp(horizontal * vertical * fresh, smallest, largest);
    }
};

} // namespace tessara
