#include "elements/FieldArena.h"

#include "elements/TextPieces.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <memory>

namespace tessara {

void FieldArena::makeRoomForTexts(std::size_t size)
{
    constexpr std::size_t kBlock = 1024; // bytes
    const std::size_t room = std::max(size, kBlock);
    m_text = static_cast<char*>(m_memory.allocate(room, 1));
    m_textEnd = m_text + room;
}

std::string_view FieldArena::keep(std::string_view text)
{
    return concatenated({text});
}

Bytes FieldArena::zeroPadded(Bytes bytes, std::size_t size)
{
    auto* copy = static_cast<std::uint8_t*>(m_memory.allocate(size, 1));
    std::fill(std::ranges::copy(bytes, copy).out, copy + size, 0);
    return {copy, size};
}

std::string_view FieldArena::concatenated(std::initializer_list<std::string_view> parts)
{
    std::size_t size = 0;
    for (const std::string_view part : parts)
        size += part.size();
    char* const text = allocateText(size);
    char* out = text;
    for (const std::string_view part : parts)
        out = put(out, part);
    return {text, size};
}

std::string_view FieldArena::formatted(fmt::string_view format, fmt::format_args arguments)
{
    fmt::memory_buffer text;
    fmt::vformat_to(std::back_inserter(text), format, arguments);
    return keep({text.data(), text.size()});
}

std::string_view FieldArena::decimal(std::int64_t number)
{
    std::array<char, 20> digits;
    const char* end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    return keep({digits.begin(), end});
}

std::string_view FieldArena::hex(std::uint32_t number, int digits)
{
    const int needed = (std::bit_width(number) + 3) / 4;
    const auto size = static_cast<std::size_t>(2 + std::max({digits, needed, 1}));
    char* const text = allocateText(size);
    text[0] = '0';
    text[1] = 'x';
    for (std::size_t i = size - 1; i >= 2; --i, number >>= 4)
        text[i] = "0123456789abcdef"[number & 0xf];
    return {text, size};
}

std::string_view FieldArena::hexadecimalString(Bytes bytes)
{
    return hexadecimalString(bytes, 0, bytes.size(), "");
}

std::string_view FieldArena::hexadecimalString(Bytes bytes, std::size_t, std::size_t)
{
    return hexadecimalString(bytes);
}

std::string_view FieldArena::hexadecimalString(Bytes bytes, std::size_t start, std::size_t length,
                                               std::string_view separator)
{
    const Bytes range = ByteReader(bytes).slice(start, length);
    if (range.empty())
        return "";
    static constexpr std::string_view kDigits = "0123456789ABCDEF";
    const std::size_t size = range.size() * 2 + (range.size() - 1) * separator.size();
    char* const text = allocateText(size);
    char* out = text;
    for (const std::uint8_t& byte : range) {
        if (&byte != range.data()) {
            out = std::ranges::transform(separator, out, [](char c) {
                      return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
                  }).out;
        }
        *out++ = kDigits[byte >> 4];
        *out++ = kDigits[byte & 0xf];
    }
    return {text, size};
}

FieldList& FieldArena::list(std::size_t capacity)
{
    auto& list = make<FieldList>(&m_memory);
    list.reserve(capacity);
    return list;
}

std::span<const Field> FieldArena::fields(std::initializer_list<Field> fields)
{
    const std::span<Field> kept = allocateFields(fields.size());
    std::ranges::copy(fields, kept.begin());
    return kept;
}

std::span<Field> FieldArena::allocateFields(std::size_t count)
{
    auto* first = static_cast<Field*>(m_memory.allocate(count * sizeof(Field), alignof(Field)));
    std::uninitialized_default_construct_n(first, count);
    return {first, count};
}

} // namespace tessara
