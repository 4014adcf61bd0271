#include "persistence/BinaryPlistWriter.h"

#include <QtEndian>

#include <algorithm>
#include <bit>

namespace tessara {

namespace {

constexpr qsizetype kBufferSize = 256 << 10;

/// Bytes that a number takes, of the sizes that the format has.
int sizeOf(std::uint64_t number)
{
    return number <= 0xff ? 1 : number <= 0xffff ? 2 : number <= 0xffffffff ? 4 : 8;
}

} // namespace

BinaryPlistWriter::BinaryPlistWriter(QIODevice& device)
    : m_device(device)
{
    m_buffer.reserve(kBufferSize + 4096);
    m_buffer.append("bplist00");
}

BinaryPlistWriter::Ref BinaryPlistWriter::begin()
{
    if (m_buffer.size() >= kBufferSize)
        flush();
    m_offsets.push_back(m_flushed + static_cast<std::uint64_t>(m_buffer.size()));
    return static_cast<Ref>(m_offsets.size() - 1);
}

void BinaryPlistWriter::flush()
{
    // A device that is full takes a part, and tells why at the next attempt.
    for (qsizetype taken = 0; taken < m_buffer.size() && !m_isFailed;) {
        const qint64 now = m_device.write(m_buffer.constData() + taken, m_buffer.size() - taken);
        m_isFailed = now <= 0;
        taken += now;
    }
    m_flushed += static_cast<std::uint64_t>(m_buffer.size());
    m_buffer.resize(0); // keeps its memory
}

void BinaryPlistWriter::put(std::uint64_t number, int size)
{
    char bytes[sizeof number];
    qToBigEndian(number, bytes);
    m_buffer.append(bytes + sizeof number - size, size);
}

void BinaryPlistWriter::put(std::span<const Ref> references)
{
    for (const Ref ref : references)
        put(ref, sizeof ref);
}

void BinaryPlistWriter::putMarker(std::uint8_t kind, std::size_t count)
{
    constexpr std::size_t kCountFollows = 0x0f;
    put(static_cast<std::uint8_t>(kind | std::min(count, kCountFollows)));
    if (count < kCountFollows)
        return;
    const int size = sizeOf(count);
    put(static_cast<std::uint8_t>(0x10 | std::countr_zero(static_cast<unsigned>(size))));
    put(count, size);
}

BinaryPlistWriter::Ref BinaryPlistWriter::boolean(bool value)
{
    const Ref ref = begin();
    put(static_cast<std::uint8_t>(value ? 0x09 : 0x08));
    return ref;
}

BinaryPlistWriter::Ref BinaryPlistWriter::integer(std::int64_t value)
{
    const auto known = m_integers.find(value);
    if (known != m_integers.end())
        return known->second;
    const Ref ref = begin();
    const int size = sizeOf(static_cast<std::uint64_t>(value)); // only 8 bytes have a sign
    put(static_cast<std::uint8_t>(0x10 | std::countr_zero(static_cast<unsigned>(size))));
    put(static_cast<std::uint64_t>(value), size);
    m_integers.emplace(value, ref);
    return ref;
}

BinaryPlistWriter::Ref BinaryPlistWriter::real(double value)
{
    const Ref ref = begin();
    put(0x23);
    put(std::bit_cast<std::uint64_t>(value), sizeof value);
    return ref;
}

BinaryPlistWriter::Ref BinaryPlistWriter::string(const QString& text)
{
    const auto known = m_strings.constFind(text);
    if (known != m_strings.constEnd())
        return *known;
    const Ref ref = begin();
    const auto length = static_cast<std::size_t>(text.size());
    if (std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; })) {
        putMarker(0x50, length);
        m_buffer.append(text.toLatin1());
    } else {
        putMarker(0x60, length);
        for (const QChar unit : text)
            put(unit.unicode(), 2);
    }
    m_strings.insert(text, ref);
    return ref;
}

BinaryPlistWriter::Ref BinaryPlistWriter::data(const QByteArray& bytes)
{
    const Ref ref = begin();
    putMarker(0x40, static_cast<std::size_t>(bytes.size()));
    m_buffer.append(bytes);
    return ref;
}

BinaryPlistWriter::Ref BinaryPlistWriter::uid(std::uint32_t value)
{
    const Ref ref = begin();
    const int size = sizeOf(value);
    put(static_cast<std::uint8_t>(0x80 | (size - 1)));
    put(value, size);
    return ref;
}

BinaryPlistWriter::Ref BinaryPlistWriter::array(std::span<const Ref> elements)
{
    const Ref ref = begin();
    putMarker(0xa0, elements.size());
    put(elements);
    return ref;
}

BinaryPlistWriter::Ref BinaryPlistWriter::dictionary(std::span<const Ref> keys,
                                                     std::span<const Ref> values)
{
    const Ref ref = begin();
    putMarker(0xd0, keys.size());
    put(keys);
    put(values);
    return ref;
}

bool BinaryPlistWriter::finish(Ref root)
{
    const std::uint64_t table = m_flushed + static_cast<std::uint64_t>(m_buffer.size());
    const int offsetSize = sizeOf(table);
    for (const std::uint64_t offset : m_offsets) {
        if (m_buffer.size() >= kBufferSize)
            flush();
        put(offset, offsetSize);
    }
    put(0, 6);
    put(static_cast<std::uint8_t>(offsetSize));
    put(sizeof(Ref));
    put(m_offsets.size(), 8);
    put(root, 8);
    put(table, 8);
    flush();
    return !m_isFailed;
}

} // namespace tessara
