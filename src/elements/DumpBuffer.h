#pragma once

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <string_view>

namespace tessara {

/// Text that grows by many short pieces. Room is asked for once for the pieces of a line; that of
/// most elements is here and needs no memory of its own.
class DumpBuffer {
public:
    DumpBuffer() = default;
    DumpBuffer(const DumpBuffer&) = delete;
    DumpBuffer& operator=(const DumpBuffer&) = delete;

    /// So many bytes may be put before room is asked for again.
    void makeRoom(std::size_t size)
    {
        if (static_cast<std::size_t>(m_capacityEnd - m_end) < size)
            grow(size);
    }
    void put(char character) { *m_end++ = character; }
    void put(std::string_view piece)
    {
        std::memcpy(m_end, piece.data(), piece.size());
        m_end += piece.size();
    }

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

    std::array<char, 8192> m_first;
    std::unique_ptr<char[]> m_larger;
    char* m_begin = m_first.data();
    char* m_end = m_begin;
    char* m_capacityEnd = m_begin + m_first.size();
};

} // namespace tessara
