#pragma once

#include "elements/TextPieces.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <string_view>

namespace tessara {

/// The deepest line of a dump, and the bytes of room that `putLineStart` needs.
inline constexpr std::size_t kDeepestLine = 7;
inline constexpr std::size_t kLineStart = 32;

/// Begins a line of a dump: a line feed and four blanks for each step of depth.
inline char* putLineStart(char* out, std::size_t depth)
{
    // Always the whole of it, which takes fewer instructions than its part.
    std::memcpy(out, "\n                               ", kLineStart);
    return out + 1 + 4 * std::min(depth, kDeepestLine);
}

/// Text that grows by many short pieces. Room is asked for once for the pieces of a line; that of
/// most beacons is here and needs no memory of its own.
class DumpBuffer {
public:
    DumpBuffer() = default;
    DumpBuffer(const DumpBuffer&) = delete;
    DumpBuffer& operator=(const DumpBuffer&) = delete;

    /// The end of the text, with room for so many bytes behind it.
    char* roomFor(std::size_t size)
    {
        if (static_cast<std::size_t>(m_capacityEnd - m_end) < size)
            grow(size);
        return m_end;
    }
    /// The text ends here now, in the room that was asked for.
    void setEnd(char* end) { m_end = end; }

    std::string_view text() const { return {m_begin, m_end}; }

private:
    void grow(std::size_t size)
    {
        const std::size_t used = text().size();
        const std::size_t capacity = std::max(2 * used, used + size);
        auto larger = std::make_unique_for_overwrite<char[]>(capacity);
        std::memcpy(larger.get(), m_begin, used);
        m_larger = std::move(larger);
        m_begin = m_larger.get();
        m_end = m_begin + used;
        m_capacityEnd = m_begin + capacity;
    }

    std::array<char, 32768> m_first;
    std::unique_ptr<char[]> m_larger;
    char* m_begin = m_first.data();
    char* m_end = m_begin;
    char* m_capacityEnd = m_begin + m_first.size();
};

} // namespace tessara
