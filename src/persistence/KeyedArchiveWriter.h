#pragma once

#include "persistence/BinaryPlistWriter.h"

#include <QColor>

#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tessara {

/// Writes a keyed archive in a binary property list, object by object, each one after those that
/// it refers to. Objects are gone as soon as they are written; texts, numbers and dates that come
/// again are one object.
class KeyedArchiveWriter {
public:
    /// What an object can keep under a key: a number that stands there, or a reference.
    using Value = BinaryPlistWriter::Ref;
    /// A key, to be made once and used for all objects.
    using Key = BinaryPlistWriter::Ref;
    using Members = std::span<const std::pair<Key, Value>>;

    /// @param device open for writing, must outlive this
    explicit KeyedArchiveWriter(QIODevice& device);

    Key key(const char* name) { return m_plist.string(QString::fromLatin1(name)); }

    /// A number of an object's own.
    Value integer(std::int64_t value) { return m_plist.integer(value); }

    // References to objects of the platform's classes.
    Value number(std::int64_t value);
    Value boolean(bool value);
    Value string(const QString& text);
    Value data(const QByteArray& bytes);
    /// @param time seconds since 1970
    Value date(double time);
    Value color(const QColor& color);
    Value array(std::span<const Value> elements);
    /// @param keys texts
    Value dictionary(std::span<const Value> keys, std::span<const Value> values);

    /// A class that objects can have, with its ancestry from itself on.
    Value declareClass(std::span<const char* const> ancestry);
    Value object(Value declaredClass, Members members);

    /// Ends the archive. @return whether the device has taken all of it
    bool finish(Value root);
    bool isFailed() const { return m_plist.isFailed(); }

private:
    /// Makes an object of the archive out of an object of the property list.
    Value reference(BinaryPlistWriter::Ref object);
    /// The same for one that is perhaps known by its number.
    Value knownReference(BinaryPlistWriter::Ref object);

    BinaryPlistWriter m_plist;
    std::vector<BinaryPlistWriter::Ref> m_objects; ///< the array `$objects`
    std::unordered_map<BinaryPlistWriter::Ref, Value> m_references;
    std::unordered_map<double, Value> m_dates;
    std::vector<BinaryPlistWriter::Ref> m_keys; ///< of the object at hand
    std::vector<BinaryPlistWriter::Ref> m_values;
    Key m_classKey;
    Value m_false;
    Value m_true;
    Value m_dateClass;
    Value m_colorClass;
    Value m_arrayClass;
    Value m_dictionaryClass;
};

} // namespace tessara
