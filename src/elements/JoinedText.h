#pragma once

#include "elements/FieldArena.h"

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
        m_text = m_isEmpty ? item : m_arena.concatenated({m_text, m_separator, item});
        m_isEmpty = false;
    }
    /// Whether nothing was added.
    bool isEmpty() const { return m_isEmpty; }
    std::string_view text() const { return m_text; }

private:
    FieldArena& m_arena;
    std::string_view m_separator;
    std::string_view m_text = "";
    bool m_isEmpty = true;
};

} // namespace tessara
