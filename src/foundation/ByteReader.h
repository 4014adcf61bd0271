#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace tessara {

using Bytes = std::span<const std::uint8_t>;

/// Reads numbers out of bytes from the air. It knows where the bytes end and never throws: what
/// lies beyond the end is zero for the `…OrZero` reads and absent for the others.
class ByteReader {
public:
    constexpr explicit ByteReader(Bytes bytes)
        : m_bytes(bytes)
    {
    }

    constexpr std::size_t size() const { return m_bytes.size(); }
    /// Whether `count` bytes from `offset` on lie inside; safe against overflow of the sum.
    constexpr bool contains(std::size_t offset, std::size_t count) const
    {
        return offset <= m_bytes.size() && count <= m_bytes.size() - offset;
    }

    constexpr std::optional<std::uint8_t> u8(std::size_t offset) const
    {
        return contains(offset, 1) ? std::optional(m_bytes[offset]) : std::nullopt;
    }
    constexpr std::optional<std::uint16_t> u16(std::size_t offset) const
    {
        return littleEndian<std::uint16_t>(offset);
    }
    constexpr std::optional<std::uint32_t> u32(std::size_t offset) const
    {
        return littleEndian<std::uint32_t>(offset);
    }
    constexpr std::optional<std::uint64_t> u64(std::size_t offset) const
    {
        return littleEndian<std::uint64_t>(offset);
    }
    constexpr std::optional<std::uint16_t> u16BigEndian(std::size_t offset) const
    {
        if (!contains(offset, 2))
            return std::nullopt;
        return static_cast<std::uint16_t>(m_bytes[offset] << 8 | m_bytes[offset + 1]);
    }

    constexpr std::uint8_t u8OrZero(std::size_t offset) const { return u8(offset).value_or(0); }

    /// The part of [offset, offset + count) that exists; empty beyond the end.
    constexpr Bytes slice(std::size_t offset, std::size_t count) const
    {
        if (offset >= m_bytes.size())
            return {};
        return m_bytes.subspan(offset, std::min(count, m_bytes.size() - offset));
    }
    constexpr Bytes from(std::size_t offset) const { return slice(offset, m_bytes.size()); }

private:
    template <typename Number>
    constexpr std::optional<Number> littleEndian(std::size_t offset) const
    {
        if (!contains(offset, sizeof(Number)))
            return std::nullopt;
        Number value = 0;
        for (std::size_t i = 0; i < sizeof(Number); ++i)
            value =
                static_cast<Number>(value | static_cast<Number>(m_bytes[offset + i]) << (8 * i));
        return value;
    }

    Bytes m_bytes;
};

} // namespace tessara
