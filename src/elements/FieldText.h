#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tessara {

/// A text of a row, or none: absent is not the same as empty. An optional view that travels in two
/// registers, for there are many of them.
class FieldText {
public:
    constexpr FieldText() = default;
    constexpr FieldText(std::string_view text)
        : m_data(text.data() ? text.data() : "")
        , m_size(text.size())
    {
    }
    constexpr FieldText(const char* text)
        : FieldText(std::string_view(text))
    {
    }
    constexpr FieldText(std::optional<std::string_view> text)
        : FieldText(text ? FieldText(*text) : FieldText())
    {
    }

    constexpr bool has_value() const { return m_data != nullptr; }
    constexpr explicit operator bool() const { return has_value(); }
    /// Empty if there is none.
    constexpr std::string_view operator*() const { return {m_data, m_size}; }
    constexpr std::size_t size() const { return m_size; }
    constexpr bool operator==(std::string_view text) const { return has_value() && **this == text; }

private:
    const char* m_data = nullptr;
    std::size_t m_size = 0;
};

} // namespace tessara
