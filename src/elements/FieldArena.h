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

/// Makes the texts and the lists of rows and keeps them: an element has hundreds of short texts,
/// and those of a beacon's elements come and go together.
class FieldArena {
public:
    /// @param firstBlock the bytes that are taken at first
    explicit FieldArena(std::size_t firstBlock)
        : m_memory(firstBlock)
    {
    }
    FieldArena(const FieldArena&) = delete;
    FieldArena& operator=(const FieldArena&) = delete;

    /// Room for a text; it is to be filled.
    char* allocateText(std::size_t size)
    {
        if (static_cast<std::size_t>(m_textEnd - m_text) < size)
            makeRoomForTexts(size);
        return std::exchange(m_text, m_text + size);
    }
    std::string_view keep(std::string_view text);
    /// A copy of some bytes, and zeros up to a size.
    Bytes zeroPadded(Bytes bytes, std::size_t size);
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

    void makeRoomForTexts(std::size_t size);

    std::pmr::monotonic_buffer_resource m_memory;
    char* m_text = nullptr; ///< where the next text goes; texts lie close together
    char* m_textEnd = nullptr;
};

} // namespace tessara
