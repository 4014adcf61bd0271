#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>

namespace tessara {

/// A set of amendments to IEEE Std 802.11 by their letters, "d" to "w".
class Amendments {
public:
    void add(char letter) { m_letters |= std::uint32_t{1} << (letter - 'a'); }

    /// In the order of the alphabet.
    QStringList letters() const;

private:
    std::uint32_t m_letters = 0;
};

} // namespace tessara
