#pragma once

#include <QColor>

#include <cstddef>
#include <functional>
#include <span>

namespace tessara {

/// Gives each network its colour in the charts: nine well-told-apart colours first, then
/// variations of them without end.
class NetworkColors {
public:
    /// @param random gives a fresh number in the range 0 to 1 at each call
    explicit NetworkColors(std::function<double()> random);

    QColor next();

    /// The colours of the first networks, in their order.
    static std::span<const QColor> named();

private:
    std::function<double()> m_random;
    std::size_t m_counter = 0;
};

/// The next colour of the program's one sequence.
QColor randomColor();

} // namespace tessara
