#pragma once

#include "elements/FieldArena.h"

#include <fmt/format.h>

namespace tessara {

/// Texts with a separator between them: a summary, a list of names.
class JoinedText {
public:
    JoinedText(FieldArena& arena, std::string_view separator)
        : m_arena(arena)
        , m_separator(separator)
    {
    }

    void add(std::string_view item)
    {
        if (!isEmpty())
            m_text.append(m_separator);
        m_text.append(item);
        m_isEmpty = false;
    }
    /// Continues the last item.
    void extend(std::string_view more) { m_text.append(more); }
    /// Whether nothing was added.
    bool isEmpty() const { return m_isEmpty; }
    std::string_view text() const { return m_arena.keep({m_text.data(), m_text.size()}); }

private:
    FieldArena& m_arena;
    std::string_view m_separator;
    fmt::memory_buffer m_text;
    bool m_isEmpty = true;
};

} // namespace tessara
