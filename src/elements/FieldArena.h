#pragma once

#include "elements/Field.h"
#include "foundation/ByteReader.h"

#include <fmt/core.h>

#include <array>
#include <initializer_list>
#include <memory_resource>
#include <new>
#include <utility>

namespace tessara {

/// Makes the texts and the lists of one element's rows and keeps them: an element has hundreds of
/// short texts, which come and go together.
class FieldArena {
public:
    FieldArena() = default;
    FieldArena(const FieldArena&) = delete;
    FieldArena& operator=(const FieldArena&) = delete;

    /// Room for a text; it is to be filled.
    std::span<char> allocateText(std::size_t size);
    std::string_view keep(std::string_view text);
    std::string_view concatenated(std::initializer_list<std::string_view> parts);

    template <typename... Arguments>
    std::string_view text(fmt::format_string<Arguments...> format, Arguments&&... arguments)
    {
        return formatted(format, fmt::make_format_args(arguments...));
    }

    std::string_view decimal(std::int64_t number);
    /// "0x0f": with at least so many digits.
    std::string_view hex(std::uint32_t number, int digits);

    /// All bytes, two digits each, in upper case.
    std::string_view hexadecimalString(Bytes bytes);
    /// The same: the range is ignored, and it is meant so.
    std::string_view hexadecimalString(Bytes bytes, std::size_t start, std::size_t length);
    /// At most `length` bytes from `start` on, with the separator between bytes; upper-cased with
    /// it.
    std::string_view hexadecimalString(Bytes bytes, std::size_t start, std::size_t length,
                                       std::string_view separator);

    /// A list that grows, with room for so many; it lives as long as this.
    FieldList& list(std::size_t capacity = 0);
    /// A list as it stands.
    std::span<const Field> fields(std::initializer_list<Field> fields);
    /// Room for so many rows; they are to be filled.
    std::span<Field> allocateFields(std::size_t count);
    /// An object that lives as long as this. It is never destroyed: what it holds is to be in this
    /// memory, too, and goes with it.
    template <typename Object, typename... Arguments>
    Object& make(Arguments&&... arguments)
    {
        void* place = m_memory.allocate(sizeof(Object), alignof(Object));
        return *new (place) Object(std::forward<Arguments>(arguments)...);
    }

private:
    std::string_view formatted(fmt::string_view format, fmt::format_args arguments);

    std::array<std::byte, 3072> m_firstBlock; ///< enough for most elements
    std::pmr::monotonic_buffer_resource m_memory{m_firstBlock.data(), m_firstBlock.size()};
};

} // namespace tessara
