#pragma once

#include "foundation/ByteReader.h"

#include <cstdint>
#include <optional>

namespace tessara {

/// Reads a binary property list (version 00) where it lies: objects are looked at one by one, by
/// their numbers, and nothing is kept of them. Any bytes can be given; what is out of bounds or
/// of no known form is an object of no kind.
///
/// Objects refer to each other by number in any way, also in circles. Who follows the references
/// sees to it that this comes to an end.
class BinaryPlistReader {
public:
    /// The number of an object.
    using Ref = std::uint64_t;

    enum class Kind {
        kNone,
        kNull,
        kBoolean,
        kInteger,
        kReal,
        kDate, ///< seconds since 2001
        kData,
        kAsciiString,
        kUtf16String, ///< in big-endian units
        kUID,
        kArray,
        kDictionary,
    };

    struct Object {
        Kind kind = Kind::kNone;
        /// Elements of an array, pairs of a dictionary, bytes of data and of text in ASCII, units
        /// of text in UTF-16; 1 for true.
        std::uint64_t count = 0;
        Bytes payload; ///< all of it lies within the list
    };

    /// @param bytes must outlive this
    /// @return none if this is no binary property list, or its table of objects is damaged
    static std::optional<BinaryPlistReader> open(Bytes bytes);

    std::size_t size() const { return m_bytes.size(); }
    Ref root() const { return m_root; }
    Object object(Ref ref) const;

    // The parts of an object of the kind; the place is below its `count`.
    Ref element(const Object& array, std::uint64_t place) const
    {
        return reference(array.payload, place);
    }
    Ref key(const Object& dictionary, std::uint64_t place) const
    {
        return reference(dictionary.payload, place);
    }
    Ref value(const Object& dictionary, std::uint64_t place) const
    {
        return reference(dictionary.payload, dictionary.count + place);
    }
    /// Clamped where it does not fit.
    static std::int64_t integer(const Object& integer);
    static double real(const Object& realOrDate);
    static std::uint64_t uid(const Object& uid);

private:
    static constexpr std::size_t kTrailerSize = 32;

    explicit BinaryPlistReader(Bytes bytes)
        : m_bytes(bytes)
    {
    }

    bool readTrailer();
    Object sized(Kind kind, std::size_t offset, std::uint8_t marker, std::size_t unit) const;
    Object fixed(Kind kind, std::size_t offset, std::size_t size) const;
    Ref reference(Bytes references, std::uint64_t place) const;

    Bytes m_bytes;
    Bytes m_objects; ///< the part of the list that objects lie in
    Bytes m_offsets; ///< the table: where each of them begins
    std::uint64_t m_count = 0;
    Ref m_root = 0;
    std::size_t m_offsetSize = 0;
    std::size_t m_refSize = 0;
};

} // namespace tessara
