#pragma once

#include "foundation/Localized.h"
#include "persistence/BinaryPlistReader.h"
#include "persistence/KeyedArchive.h"

#include <QByteArray>
#include <QColor>
#include <QLatin1String>
#include <QString>

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace tessara {

class ArchivedArray;
class KeyedArchiveReader;

/// A key under which the objects of a class keep a value. It remembers where it was found: the
/// next object of the same class has it there too.
class ArchiveKey {
public:
    explicit constexpr ArchiveKey(const char* name)
        : m_name(name)
    {
    }

private:
    friend class ArchivedValue;
    const char* m_name;
    std::uint64_t m_place = 0;
    BinaryPlistReader::Ref m_ref = std::numeric_limits<BinaryPlistReader::Ref>::max();
};

/// A value in a keyed archive: one that stands with its object, or an object that is referred to.
/// To ask for a value of another kind than it is refuses the archive, and gives nothing; so
/// whoever decodes asks for all that it needs and looks at the end whether that went well.
class ArchivedValue {
public:
    /// Nothing: no such key, or `nil`.
    bool isAbsent() const { return m_object.kind == BinaryPlistReader::Kind::kNone; }

    // An object of a class -------------------------------------------------------------------

    /// Its own class; empty if it names none.
    QString className() const;
    /// Whether its class is this one or descends from it.
    bool isKindOf(QLatin1String name) const;
    /// What it keeps under a key.
    ArchivedValue operator[](ArchiveKey& key) const;

    // Values, both as they are and as the platform's objects ----------------------------------

    /// 0 if absent; a number that is not whole is cut, one that does not fit clamped.
    std::int64_t integer() const;
    bool boolean() const { return integer() != 0; }
    std::optional<QString> string() const;
    std::optional<QByteArray> data() const;
    /// Seconds since 1970, as far from it as the year 9999 at the most.
    std::optional<double> date() const;
    /// From an `NSColor` by red, green and blue, by white, by printing inks, or of a catalogue;
    /// absent for other colours.
    std::optional<QColor> color() const;

    /// Elements of an array; none if absent.
    ArchivedArray array() const;
    /// Calls `visit` with each key and value of a dictionary whose keys are text.
    template <typename Visitor>
    void forEachEntry(const Visitor& visit) const;

private:
    friend class ArchivedArray;
    friend class KeyedArchiveReader;
    using Kind = BinaryPlistReader::Kind;

    ArchivedValue(KeyedArchiveReader& archive, const char* name, BinaryPlistReader::Object object)
        : m_archive(&archive)
        , m_name(name)
        , m_object(object)
    {
    }

    ArchivedValue member(const char* name) const;
    std::optional<std::uint64_t> placeOf(ArchiveKey& key) const;
    BinaryPlistReader::Object collection(const char* name, const char* kind) const;
    std::optional<QColor> colorOfComponents() const;
    std::optional<std::vector<float>> components(const ArchivedValue& bytes,
                                                 std::size_t count) const;
    double real() const;
    void refuse(EnglishText what) const;

    KeyedArchiveReader* m_archive;
    const char* m_name; ///< what it was asked for as
    BinaryPlistReader::Object m_object;
};

/// The elements of an array.
class ArchivedArray {
public:
    std::uint64_t count() const { return m_list.count; }
    ArchivedValue operator[](std::uint64_t place) const;

private:
    friend class ArchivedValue;
    ArchivedArray(ArchivedValue array, BinaryPlistReader::Object list)
        : m_array(array)
        , m_list(list)
    {
    }

    ArchivedValue m_array;
    BinaryPlistReader::Object m_list;
};

/// Reads a keyed archive in a binary property list where it lies: objects are decoded when they
/// are asked for, and none is kept.
///
/// The bytes may be anything. What does not hold refuses the archive, for the first reason that
/// is found, and reads as absent. Objects may refer to each other in circles: nothing here follows
/// them by itself, and all that is read, also if it is the same over and over, is limited by the
/// size of the archive.
class KeyedArchiveReader {
public:
    /// @param bytes must outlive this
    explicit KeyedArchiveReader(Bytes bytes);
    KeyedArchiveReader(const KeyedArchiveReader&) = delete;
    KeyedArchiveReader& operator=(const KeyedArchiveReader&) = delete;

    /// The object that was archived; absent if there is none.
    ArchivedValue root();

    bool isRefused() const { return !m_error.isEmpty(); }
    /// Why, in one line; empty if all went well so far.
    const QString& error() const { return m_error; }
    void refuse(const QString& reason);

    /// Takes note that something of this size, in bytes of memory, is made of the archive, and
    /// refuses it where that has no proportion to its own size.
    /// @return whether to go on
    bool spend(std::uint64_t bytes);

private:
    friend class ArchivedArray;
    friend class ArchivedValue;
    using Object = BinaryPlistReader::Object;
    using Ref = BinaryPlistReader::Ref;
    using Kind = BinaryPlistReader::Kind;

    std::optional<Ref> entry(const Object& dictionary, QLatin1String name) const;
    bool isText(Ref ref, QLatin1String text) const;
    Object named(const Object& dictionary, const char* name) const;
    /// What a reference within an object stands for.
    Object resolved(Ref ref);
    ArchivedValue value(const char* name, Ref ref) { return {*this, name, resolved(ref)}; }
    Object classOf(const Object& object) const;

    std::optional<BinaryPlistReader> m_plist;
    Object m_objects; ///< the array `$objects`
    std::uint64_t m_budget = 0;
    QString m_error;
};

template <typename Visitor>
void ArchivedValue::forEachEntry(const Visitor& visit) const
{
    const auto keys = collection(KeyedArchive::kKeys, "NSDictionary");
    const auto values = collection(KeyedArchive::kElements, "NSDictionary");
    if (keys.count != values.count)
        refuse("is no dictionary"_en);
    for (std::uint64_t i = 0; i < keys.count && !m_archive->isRefused(); ++i) {
        const auto key = m_archive->value(m_name, m_archive->m_plist->element(keys, i)).string();
        visit(key.value_or(QString()),
              m_archive->value(m_name, m_archive->m_plist->element(values, i)));
    }
}

} // namespace tessara
