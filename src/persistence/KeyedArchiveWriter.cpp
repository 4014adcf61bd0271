#include "persistence/KeyedArchiveWriter.h"

#include "persistence/KeyedArchive.h"

#include <array>

namespace tessara {

namespace {

/// The value of `NSColorSpace` for red, green and blue of the device.
constexpr std::int64_t kDeviceRGB = 2;

QByteArray rgbText(const QColor& color)
{
    constexpr int kDigits = 9; // enough to tell any two of a QColor's values apart
    const QColor rgb = color.toRgb();
    QByteArray text = QByteArray::number(rgb.redF(), 'g', kDigits) + ' ' +
                      QByteArray::number(rgb.greenF(), 'g', kDigits) + ' ' +
                      QByteArray::number(rgb.blueF(), 'g', kDigits);
    if (rgb.alphaF() < 1)
        text += ' ' + QByteArray::number(rgb.alphaF(), 'g', kDigits);
    return text + '\0';
}

} // namespace

KeyedArchiveWriter::KeyedArchiveWriter(QIODevice& device)
    : m_plist(device)
    , m_objects{m_plist.string(QStringLiteral("$null"))} // what the number 0 stands for: nil
    , m_classKey(key(KeyedArchive::kClass))
    , m_false(reference(m_plist.boolean(false)))
    , m_true(reference(m_plist.boolean(true)))
    , m_dateClass(declareClass(std::array{"NSDate", "NSObject"}))
    , m_colorClass(declareClass(std::array{"NSColor", "NSObject"}))
    , m_arrayClass(declareClass(std::array{"NSArray", "NSObject"}))
    , m_dictionaryClass(declareClass(std::array{"NSDictionary", "NSObject"}))
{
}

KeyedArchiveWriter::Value KeyedArchiveWriter::reference(BinaryPlistWriter::Ref object)
{
    m_objects.push_back(object);
    return m_plist.uid(static_cast<std::uint32_t>(m_objects.size() - 1));
}

KeyedArchiveWriter::Value KeyedArchiveWriter::knownReference(BinaryPlistWriter::Ref object)
{
    const auto known = m_references.find(object);
    if (known != m_references.end())
        return known->second;
    return m_references.emplace(object, reference(object)).first->second;
}

KeyedArchiveWriter::Value KeyedArchiveWriter::number(std::int64_t value)
{
    return knownReference(m_plist.integer(value));
}

KeyedArchiveWriter::Value KeyedArchiveWriter::boolean(bool value)
{
    return value ? m_true : m_false;
}

KeyedArchiveWriter::Value KeyedArchiveWriter::string(const QString& text)
{
    return knownReference(m_plist.string(text));
}

KeyedArchiveWriter::Value KeyedArchiveWriter::data(const QByteArray& bytes)
{
    return reference(m_plist.data(bytes));
}

KeyedArchiveWriter::Value KeyedArchiveWriter::date(double time)
{
    const auto known = m_dates.find(time);
    if (known != m_dates.end())
        return known->second;
    const std::pair member(key(KeyedArchive::kTime),
                           m_plist.real(time - KeyedArchive::kReferenceDate));
    return m_dates.emplace(time, object(m_dateClass, {&member, 1})).first->second;
}

KeyedArchiveWriter::Value KeyedArchiveWriter::color(const QColor& color)
{
    return object(m_colorClass,
                  std::array{
                      std::pair(key(KeyedArchive::kColorSpace), integer(kDeviceRGB)),
                      std::pair(key(KeyedArchive::kRGB), m_plist.data(rgbText(color))),
                  });
}

KeyedArchiveWriter::Value KeyedArchiveWriter::array(std::span<const Value> elements)
{
    const std::pair member(key(KeyedArchive::kElements), m_plist.array(elements));
    return object(m_arrayClass, {&member, 1});
}

KeyedArchiveWriter::Value KeyedArchiveWriter::dictionary(std::span<const Value> keys,
                                                         std::span<const Value> values)
{
    return object(m_dictionaryClass,
                  std::array{
                      std::pair(key(KeyedArchive::kKeys), m_plist.array(keys)),
                      std::pair(key(KeyedArchive::kElements), m_plist.array(values)),
                  });
}

KeyedArchiveWriter::Value KeyedArchiveWriter::declareClass(std::span<const char* const> ancestry)
{
    std::vector<BinaryPlistWriter::Ref> names;
    names.reserve(ancestry.size());
    for (const char* name : ancestry)
        names.push_back(m_plist.string(QString::fromLatin1(name)));
    const std::array keys{key(KeyedArchive::kClassName), key(KeyedArchive::kClasses)};
    const std::array values{names.front(), m_plist.array(names)};
    return reference(m_plist.dictionary(keys, values));
}

KeyedArchiveWriter::Value KeyedArchiveWriter::object(Value declaredClass, Members members)
{
    m_keys.clear();
    m_values.clear();
    for (const auto& [key, value] : members) {
        m_keys.push_back(key);
        m_values.push_back(value);
    }
    m_keys.push_back(m_classKey);
    m_values.push_back(declaredClass);
    return reference(m_plist.dictionary(m_keys, m_values));
}

bool KeyedArchiveWriter::finish(Value root)
{
    const auto dictionary = [this](std::span<const char* const> names,
                                   std::span<const BinaryPlistWriter::Ref> values) {
        std::vector<Key> keys;
        for (const char* name : names)
            keys.push_back(key(name));
        return m_plist.dictionary(keys, values);
    };
    constexpr std::int64_t kVersion = 100000;
    const std::array values{
        m_plist.string(QStringLiteral("NSKeyedArchiver")),
        m_plist.integer(kVersion),
        m_plist.array(m_objects),
        dictionary(std::array{KeyedArchive::kRoot}, std::array{root}),
    };
    return m_plist.finish(dictionary(std::array{KeyedArchive::kArchiver, KeyedArchive::kVersion,
                                                KeyedArchive::kObjects, KeyedArchive::kTop},
                                     values));
}

} // namespace tessara
