#include "model/Amendments.h"

#include <array>
#include <bit>

namespace tessara {

namespace {

constexpr char kFirst = 'a';
constexpr std::size_t kLetters = 26;

/// One text for each letter, which all lists share: lists are made anew at each scan.
const std::array<QString, kLetters>& texts()
{
    static const auto table = [] {
        std::array<QString, kLetters> letters;
        for (std::size_t i = 0; i < kLetters; ++i)
            letters[i] = QLatin1Char(static_cast<char>(kFirst + i));
        return letters;
    }();
    return table;
}

} // namespace

QStringList Amendments::letters() const
{
    QStringList result;
    result.reserve(std::popcount(m_letters));
    for (std::size_t i = 0; i < kLetters; ++i) {
        if (m_letters >> i & 1)
            result += texts()[i];
    }
    return result;
}

} // namespace tessara
