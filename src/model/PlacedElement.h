#pragma once

#include "foundation/ByteReader.h"

namespace tessara {

/// An element at its place in the bytes. Fields are read by their number from the identifier on
/// (the content begins at 2), and may lie beyond the element's own length.
class PlacedElement {
public:
    PlacedElement(const ByteReader& data, std::size_t place)
        : id(data.u8OrZero(place))
        , length(data.u8OrZero(place + 1))
        , m_data(data)
        , m_place(place)
    {
    }

    const std::uint8_t id;
    const std::size_t length;

    std::optional<std::uint8_t> byte(std::size_t number) const
    {
        return m_data.u8(m_place + number);
    }
    /// Whether the byte exists and has one of the bits set, and whether it exists and has none.
    bool has(std::size_t number, std::uint8_t mask) const
    {
        return (byteOrZero(number) & mask) != 0;
    }
    bool lacks(std::size_t number, std::uint8_t mask) const
    {
        const auto value = byte(number);
        return value && (*value & mask) == 0;
    }
    std::uint8_t byteOrZero(std::size_t number) const { return m_data.u8OrZero(m_place + number); }
    std::optional<std::uint16_t> u16(std::size_t number) const
    {
        return m_data.u16(m_place + number);
    }
    std::optional<std::uint16_t> u16BigEndian(std::size_t number) const
    {
        return m_data.u16BigEndian(m_place + number);
    }
    Bytes bytes(std::size_t number, std::size_t count) const
    {
        return m_data.slice(m_place + number, count);
    }
    Bytes content() const { return bytes(2, length); }
    /// Of a vendor element, or of a suite.
    std::uint32_t oui(std::size_t number) const
    {
        return std::uint32_t{byteOrZero(number)} << 16 |
               std::uint32_t{byteOrZero(number + 1)} << 8 | byteOrZero(number + 2);
    }

private:
    const ByteReader& m_data;
    const std::size_t m_place;
};

/// Calls `visit` with each element in turn. One that runs past the end of the bytes ends the walk
/// and is not given.
template <typename Visit>
void forEachElement(const ByteReader& data, Visit visit)
{
    for (std::size_t place = 0; data.contains(place, 2);) {
        const PlacedElement element(data, place);
        if (!data.contains(place + 2, element.length))
            return;
        visit(element);
        place += element.length + 2;
    }
}

} // namespace tessara
