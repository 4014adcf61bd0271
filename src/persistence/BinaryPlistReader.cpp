#include "persistence/BinaryPlistReader.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <string_view>

namespace tessara {

namespace {

constexpr std::string_view kMagic = "bplist00";

/// At most eight bytes.
std::uint64_t bigEndian(Bytes bytes)
{
    std::uint64_t value = 0;
    for (const std::uint8_t byte : bytes)
        value = value << 8 | byte;
    return value;
}

/// The sizes that a number, a reference or an offset may have.
bool isNumberSize(std::size_t size)
{
    return size >= 1 && size <= 8;
}

} // namespace

std::optional<BinaryPlistReader> BinaryPlistReader::open(Bytes bytes)
{
    BinaryPlistReader reader(bytes);
    return reader.readTrailer() ? std::optional(reader) : std::nullopt;
}

bool BinaryPlistReader::readTrailer()
{
    if (m_bytes.size() < kMagic.size() + kTrailerSize ||
        !std::ranges::equal(m_bytes.first(kMagic.size()), kMagic, [](std::uint8_t byte, char c) {
            return byte == static_cast<std::uint8_t>(c);
        }))
        return false;
    const std::size_t end = m_bytes.size() - kTrailerSize;
    const Bytes trailer = m_bytes.subspan(end);
    m_offsetSize = trailer[6];
    m_refSize = trailer[7];
    m_count = bigEndian(trailer.subspan(8, 8));
    m_root = bigEndian(trailer.subspan(16, 8));
    const std::uint64_t table = bigEndian(trailer.subspan(24, 8));
    if (!isNumberSize(m_offsetSize) || !isNumberSize(m_refSize) || table < kMagic.size() ||
        table > end || m_count > (end - table) / m_offsetSize || m_root >= m_count)
        return false;
    m_objects = m_bytes.first(table);
    m_offsets = m_bytes.subspan(table, m_count * m_offsetSize);
    return true;
}

BinaryPlistReader::Object BinaryPlistReader::object(Ref ref) const
{
    if (ref >= m_count)
        return {};
    const std::uint64_t offset = bigEndian(m_offsets.subspan(ref * m_offsetSize, m_offsetSize));
    if (offset < kMagic.size() || offset >= m_objects.size())
        return {};
    const std::uint8_t marker = m_objects[offset];
    const std::uint8_t low = marker & 0x0f;
    switch (marker >> 4) {
    case 0x0:
        if (low == 0)
            return {Kind::kNull, 0, {}};
        if (low == 8 || low == 9)
            return {Kind::kBoolean, low == 9U, {}};
        return {};
    case 0x1:
        return low <= 4 ? fixed(Kind::kInteger, offset, std::size_t{1} << low) : Object();
    case 0x2:
        return low == 2 || low == 3 ? fixed(Kind::kReal, offset, std::size_t{1} << low) : Object();
    case 0x3:
        return low == 3 ? fixed(Kind::kDate, offset, sizeof(double)) : Object();
    case 0x4:
        return sized(Kind::kData, offset, marker, 1);
    case 0x5:
        return sized(Kind::kAsciiString, offset, marker, 1);
    case 0x6:
        return sized(Kind::kUtf16String, offset, marker, 2);
    case 0x8:
        return low < 8 ? fixed(Kind::kUID, offset, low + std::size_t{1}) : Object();
    case 0xa:
        return sized(Kind::kArray, offset, marker, m_refSize);
    case 0xd:
        return sized(Kind::kDictionary, offset, marker, 2 * m_refSize);
    default:
        return {};
    }
}

BinaryPlistReader::Object BinaryPlistReader::fixed(Kind kind, std::size_t offset,
                                                   std::size_t size) const
{
    if (m_objects.size() - offset - 1 < size)
        return {};
    return {kind, 1, m_objects.subspan(offset + 1, size)};
}

/// An object whose marker tells how many units follow: up to 14 by itself, more in a number
/// behind it.
BinaryPlistReader::Object BinaryPlistReader::sized(Kind kind, std::size_t offset,
                                                   std::uint8_t marker, std::size_t unit) const
{
    std::size_t start = offset + 1;
    std::uint64_t count = marker & 0x0f;
    if (count == 0x0f) {
        if (start >= m_objects.size() || (m_objects[start] & 0xf0) != 0x10)
            return {};
        const std::size_t size = std::size_t{1} << (m_objects[start] & 0x0f);
        if (size > sizeof(std::uint64_t) || m_objects.size() - start - 1 < size)
            return {};
        count = bigEndian(m_objects.subspan(start + 1, size));
        start += 1 + size;
    }
    if (count > (m_objects.size() - start) / unit)
        return {};
    return {kind, count, m_objects.subspan(start, count * unit)};
}

BinaryPlistReader::Ref BinaryPlistReader::reference(Bytes references, std::uint64_t place) const
{
    return bigEndian(references.subspan(place * m_refSize, m_refSize));
}

std::int64_t BinaryPlistReader::integer(const Object& integer)
{
    const Bytes bytes = integer.payload;
    if (bytes.size() <= sizeof(std::int64_t))
        return static_cast<std::int64_t>(bigEndian(bytes)); // shorter ones have no sign
    const auto high = static_cast<std::int64_t>(bigEndian(bytes.first(8)));
    const auto low = static_cast<std::int64_t>(bigEndian(bytes.last(8)));
    if (high == (low < 0 ? -1 : 0))
        return low;
    return high < 0 ? std::numeric_limits<std::int64_t>::min()
                    : std::numeric_limits<std::int64_t>::max();
}

double BinaryPlistReader::real(const Object& realOrDate)
{
    const std::uint64_t bits = bigEndian(realOrDate.payload);
    if (realOrDate.payload.size() == sizeof(float))
        return std::bit_cast<float>(static_cast<std::uint32_t>(bits));
    return std::bit_cast<double>(bits);
}

std::uint64_t BinaryPlistReader::uid(const Object& uid)
{
    return bigEndian(uid.payload);
}

} // namespace tessara
