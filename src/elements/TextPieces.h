#pragma once

#include <cstring>
#include <string_view>

namespace tessara {

/// Puts a piece of text where there is room for it. Pieces are short and many: inline copies of
/// fixed sizes take a fraction of the time of as many calls of the library's copy.
/// @return the place behind the piece
inline char* put(char* out, std::string_view piece)
{
    const char* from = piece.data();
    const std::size_t size = piece.size();
    // The last copy of a size overlaps the one before it.
    if (size >= 16) {
        for (std::size_t i = 0; i + 16 < size; i += 16)
            std::memcpy(out + i, from + i, 16);
        std::memcpy(out + size - 16, from + size - 16, 16);
    } else if (size >= 8) {
        std::memcpy(out, from, 8);
        std::memcpy(out + size - 8, from + size - 8, 8);
    } else if (size >= 4) {
        std::memcpy(out, from, 4);
        std::memcpy(out + size - 4, from + size - 4, 4);
    } else {
        for (std::size_t i = 0; i < size; ++i)
            out[i] = from[i];
    }
    return out + size;
}

} // namespace tessara
