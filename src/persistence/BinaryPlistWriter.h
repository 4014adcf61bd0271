#pragma once

#include <QByteArray>
#include <QHash>
#include <QIODevice>
#include <QString>

#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

namespace tessara {

/// Writes a binary property list (version 00), object by object, each one after those that it
/// refers to. What it keeps is one offset an object, and the numbers and texts that it has
/// written, since those that come again are not written again.
class BinaryPlistWriter {
public:
    /// The number of an object that has been written.
    using Ref = std::uint32_t;

    /// @param device open for writing, must outlive this
    explicit BinaryPlistWriter(QIODevice& device);

    Ref boolean(bool value);
    Ref integer(std::int64_t value);
    Ref real(double value);
    Ref string(const QString& text);
    Ref data(const QByteArray& bytes);
    Ref uid(std::uint32_t value);
    Ref array(std::span<const Ref> elements);
    /// @param values as many as there are keys, which are texts
    Ref dictionary(std::span<const Ref> keys, std::span<const Ref> values);

    /// Ends the list. @return whether the device has taken all of it
    bool finish(Ref root);
    /// Whether the device has taken what it was given so far.
    bool isFailed() const { return m_isFailed; }

private:
    /// Begins an object: all that is put after this belongs to it.
    Ref begin();
    void put(std::uint8_t byte) { m_buffer.append(static_cast<char>(byte)); }
    void put(std::uint64_t number, int size);
    void put(std::span<const Ref> references);
    void putMarker(std::uint8_t kind, std::size_t count);
    void flush();

    QIODevice& m_device;
    QByteArray m_buffer;
    std::uint64_t m_flushed = 0; ///< bytes that the device has got
    bool m_isFailed = false;
    std::vector<std::uint64_t> m_offsets;
    std::unordered_map<std::int64_t, Ref> m_integers;
    QHash<QString, Ref> m_strings;
};

} // namespace tessara
