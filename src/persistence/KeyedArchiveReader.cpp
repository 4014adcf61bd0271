#include "persistence/KeyedArchiveReader.h"

#include "foundation/Localized.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

/// Keys of an object, or classes of an ancestry: far more than any has, and few enough to search.
constexpr std::uint64_t kMostKeys = 64;
/// What may be made of an archive, in bytes of memory for each of its own: objects that it has
/// once are referred to often, but not without end.
constexpr std::uint64_t kMostBytesPerByte = 32;
constexpr std::uint64_t kBytesOfSmallArchive = 64 << 10;
// What a value takes at least, and an element of a collection.
constexpr std::uint64_t kBytesOfValue = 64;
constexpr std::uint64_t kBytesOfElement = 32;

QLatin1String charactersAsText(Bytes bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

QString textFromUtf16(Bytes units)
{
    QString text(static_cast<qsizetype>(units.size() / 2), Qt::Uninitialized);
    qFromBigEndian<char16_t>(units.data(), text.size(), text.data());
    return text;
}

/// How the components of a colour are written, and the colour that they and the alpha give.
struct ColorForm {
    const char* key;
    std::size_t count;
    QColor (*colorOf)(const std::vector<float>& numbers);
};
constexpr ColorForm kColorForms[] = {
    {KeyedArchive::kRGB, 3,
     [](const std::vector<float>& n) { return QColor::fromRgbF(n[0], n[1], n[2], n[3]); }},
    {KeyedArchive::kWhite, 1,
     [](const std::vector<float>& n) { return QColor::fromRgbF(n[0], n[0], n[0], n[1]); }},
    {KeyedArchive::kCMYK, 4,
     [](const std::vector<float>& n) {
         return QColor::fromCmykF(n[0], n[1], n[2], n[3], n[4]).toRgb();
     }},
};

} // namespace

// The archive -----------------------------------------------------------------------------------

KeyedArchiveReader::KeyedArchiveReader(Bytes bytes)
    : m_plist(BinaryPlistReader::open(bytes))
    , m_budget(kBytesOfSmallArchive + kMostBytesPerByte * bytes.size())
{
    if (!m_plist) {
        refuse(localized("this is no binary property list"));
        return;
    }
    const Object list = m_plist->object(m_plist->root());
    m_objects = named(list, KeyedArchive::kObjects);
    if (m_objects.kind != Kind::kArray)
        refuse(localized("the property list is no keyed archive"));
}

void KeyedArchiveReader::refuse(const QString& reason)
{
    if (m_error.isEmpty())
        m_error = reason;
}

bool KeyedArchiveReader::spend(std::uint64_t bytes)
{
    if (bytes > m_budget) {
        m_budget = 0;
        refuse(localized("the archive repeats itself without end"));
        return false;
    }
    m_budget -= bytes;
    return true;
}

ArchivedValue KeyedArchiveReader::root()
{
    const ArchivedValue nothing(*this, KeyedArchive::kRoot, Object());
    if (isRefused())
        return nothing;
    const Object list = m_plist->object(m_plist->root());
    const auto ref = entry(named(list, KeyedArchive::kTop), QLatin1String(KeyedArchive::kRoot));
    return ref ? value(KeyedArchive::kRoot, *ref) : nothing;
}

bool KeyedArchiveReader::isText(Ref ref, QLatin1String text) const
{
    const Object object = m_plist->object(ref);
    return object.kind == Kind::kAsciiString && charactersAsText(object.payload) == text;
}

std::optional<KeyedArchiveReader::Ref> KeyedArchiveReader::entry(const Object& dictionary,
                                                                 QLatin1String name) const
{
    if (dictionary.kind != Kind::kDictionary || dictionary.count > kMostKeys)
        return std::nullopt;
    for (std::uint64_t i = 0; i < dictionary.count; ++i) {
        if (isText(m_plist->key(dictionary, i), name))
            return m_plist->value(dictionary, i);
    }
    return std::nullopt;
}

KeyedArchiveReader::Object KeyedArchiveReader::named(const Object& dictionary,
                                                     const char* name) const
{
    const auto ref = entry(dictionary, QLatin1String(name));
    return ref ? m_plist->object(*ref) : Object();
}

KeyedArchiveReader::Object KeyedArchiveReader::resolved(Ref ref)
{
    Object object = m_plist->object(ref);
    if (object.kind == Kind::kUID) {
        const std::uint64_t uid = BinaryPlistReader::uid(object);
        if (uid == 0)
            return {}; // "$null", which stands for nil
        object =
            uid < m_objects.count ? m_plist->object(m_plist->element(m_objects, uid)) : Object();
    }
    if (object.kind == Kind::kNone || object.kind == Kind::kUID) {
        refuse(localized("an object of the archive is damaged"));
        return {};
    }
    return object;
}

/// The class record of an object: a dictionary of its name and its ancestry.
KeyedArchiveReader::Object KeyedArchiveReader::classOf(const Object& object) const
{
    const Object reference = named(object, KeyedArchive::kClass);
    if (reference.kind != Kind::kUID)
        return {};
    const std::uint64_t uid = BinaryPlistReader::uid(reference);
    return uid < m_objects.count ? m_plist->object(m_plist->element(m_objects, uid)) : Object();
}

// A value ---------------------------------------------------------------------------------------

void ArchivedValue::refuse(EnglishText what) const
{
    m_archive->refuse(QStringLiteral("\"%1\" %2").arg(QLatin1String(m_name), localized(what)));
}

QString ArchivedValue::className() const
{
    const auto name = m_archive->named(m_archive->classOf(m_object), KeyedArchive::kClassName);
    return name.kind == Kind::kAsciiString ? QString(charactersAsText(name.payload).left(100))
                                           : QString();
}

bool ArchivedValue::isKindOf(QLatin1String name) const
{
    const auto record = m_archive->classOf(m_object);
    const auto own = m_archive->entry(record, QLatin1String(KeyedArchive::kClassName));
    if (own && m_archive->isText(*own, name))
        return true;
    const auto ancestry = m_archive->named(record, KeyedArchive::kClasses);
    if (ancestry.kind != Kind::kArray || ancestry.count > kMostKeys)
        return false;
    for (std::uint64_t i = 0; i < ancestry.count; ++i) {
        if (m_archive->isText(m_archive->m_plist->element(ancestry, i), name))
            return true;
    }
    return false;
}

std::optional<std::uint64_t> ArchivedValue::placeOf(ArchiveKey& key) const
{
    const BinaryPlistReader& plist = *m_archive->m_plist;
    if (key.m_place < m_object.count && plist.key(m_object, key.m_place) == key.m_ref)
        return key.m_place;
    for (std::uint64_t i = 0; i < m_object.count; ++i) {
        const auto ref = plist.key(m_object, i);
        if (m_archive->isText(ref, QLatin1String(key.m_name))) {
            key.m_place = i;
            key.m_ref = ref;
            return i;
        }
    }
    return std::nullopt;
}

ArchivedValue ArchivedValue::operator[](ArchiveKey& key) const
{
    const ArchivedValue nothing(*m_archive, key.m_name, {});
    if (isAbsent())
        return nothing;
    if (m_object.kind != Kind::kDictionary || m_object.count > kMostKeys) {
        refuse("is no object"_en);
        return nothing;
    }
    const auto place = placeOf(key);
    return place ? m_archive->value(key.m_name, m_archive->m_plist->value(m_object, *place))
                 : nothing;
}

ArchivedValue ArchivedValue::member(const char* name) const
{
    const auto ref = m_archive->entry(m_object, QLatin1String(name));
    return ref ? m_archive->value(m_name, *ref) : ArchivedValue(*m_archive, m_name, {});
}

std::int64_t ArchivedValue::integer() const
{
    switch (m_object.kind) {
    case Kind::kNone:
        return 0;
    case Kind::kBoolean:
        return static_cast<std::int64_t>(m_object.count);
    case Kind::kInteger:
        return BinaryPlistReader::integer(m_object);
    case Kind::kReal: {
        constexpr double kBeyond = 9223372036854775808.0; // 2^63
        const double value = BinaryPlistReader::real(m_object);
        if (value >= -kBeyond && value < kBeyond)
            return static_cast<std::int64_t>(value);
        break;
    }
    default:
        break;
    }
    refuse("is no number"_en);
    return 0;
}

double ArchivedValue::real() const
{
    return m_object.kind == Kind::kReal ? BinaryPlistReader::real(m_object)
                                        : static_cast<double>(integer());
}

std::optional<QString> ArchivedValue::string() const
{
    switch (m_object.kind) {
    case Kind::kNone:
        return std::nullopt;
    case Kind::kAsciiString:
        return m_archive->spend(kBytesOfValue + 2 * m_object.payload.size())
                   ? std::optional<QString>(charactersAsText(m_object.payload))
                   : std::nullopt;
    case Kind::kUtf16String:
        return m_archive->spend(kBytesOfValue + m_object.payload.size())
                   ? std::optional(textFromUtf16(m_object.payload))
                   : std::nullopt;
    case Kind::kDictionary: {
        const ArchivedValue text = member(KeyedArchive::kText);
        if (text.m_object.kind == Kind::kAsciiString || text.m_object.kind == Kind::kUtf16String)
            return text.string();
        const ArchivedValue bytes = member("NS.bytes");
        if (bytes.m_object.kind == Kind::kData) {
            const auto utf8 = bytes.data();
            return utf8 ? std::optional(QString::fromUtf8(*utf8)) : std::nullopt;
        }
        break;
    }
    default:
        break;
    }
    refuse("is no text"_en);
    return std::nullopt;
}

std::optional<QByteArray> ArchivedValue::data() const
{
    if (isAbsent())
        return std::nullopt;
    const ArchivedValue bytes = m_object.kind == Kind::kData ? *this : member(KeyedArchive::kBytes);
    if (bytes.m_object.kind == Kind::kData &&
        m_archive->spend(kBytesOfValue + bytes.m_object.payload.size())) {
        const QLatin1String characters = charactersAsText(bytes.m_object.payload);
        return QByteArray(characters.data(), characters.size());
    }
    refuse("is no data"_en);
    return std::nullopt;
}

std::optional<double> ArchivedValue::date() const
{
    constexpr double kLast = 253402300799; // the end of the year 9999
    constexpr double kFirst = -kLast;      // as recordings have it
    if (isAbsent())
        return std::nullopt;
    const ArchivedValue time = m_object.kind == Kind::kDate ? *this : member(KeyedArchive::kTime);
    if (time.m_object.kind == Kind::kDate || time.m_object.kind == Kind::kReal ||
        time.m_object.kind == Kind::kInteger) {
        const double seconds =
            (time.m_object.kind == Kind::kDate ? BinaryPlistReader::real(time.m_object)
                                               : time.real()) +
            KeyedArchive::kReferenceDate;
        if (seconds >= kFirst && seconds <= kLast)
            return seconds;
    }
    refuse("is no date"_en);
    return std::nullopt;
}

std::optional<QColor> ArchivedValue::color() const
{
    if (isAbsent())
        return std::nullopt;
    if (!isKindOf(QLatin1String("NSColor"))) {
        refuse("is no colour"_en);
        return std::nullopt;
    }
    const ArchivedValue named = member(KeyedArchive::kColor);
    return named.isAbsent() ? colorOfComponents() : named.colorOfComponents();
}

std::optional<QColor> ArchivedValue::colorOfComponents() const
{
    for (const auto& [key, count, colorOf] : kColorForms) {
        const ArchivedValue bytes = member(key);
        if (bytes.isAbsent())
            continue;
        const auto numbers = components(bytes, count);
        return numbers ? std::optional(colorOf(*numbers)) : std::nullopt;
    }
    return std::nullopt;
}

/// @param count of the components, without the alpha that may follow
/// @return them and the alpha
std::optional<std::vector<float>> ArchivedValue::components(const ArchivedValue& bytes,
                                                            std::size_t count) const
{
    QByteArray text = bytes.data().value_or(QByteArray());
    text.replace('\0', ' '); // it ends in one
    std::vector<float> numbers;
    for (const QByteArray& word : text.simplified().split(' ')) {
        bool isNumber = false;
        const float number = word.toFloat(&isNumber);
        if (isNumber && std::isfinite(number))
            numbers.push_back(std::clamp(number, 0.0F, 1.0F));
    }
    if (numbers.size() != count && numbers.size() != count + 1) {
        refuse("is no colour"_en);
        return std::nullopt;
    }
    numbers.resize(count + 1, 1.0F);
    return numbers;
}

BinaryPlistReader::Object ArchivedValue::collection(const char* name, const char* kind) const
{
    if (isAbsent())
        return {};
    const auto list = m_archive->named(m_object, name);
    if (list.kind != Kind::kArray || !isKindOf(QLatin1String(kind))) {
        refuse("is no collection"_en);
        return {};
    }
    return m_archive->spend(kBytesOfElement * list.count) ? list : BinaryPlistReader::Object();
}

ArchivedArray ArchivedValue::array() const
{
    return {*this, collection(KeyedArchive::kElements, "NSArray")};
}

ArchivedValue ArchivedArray::operator[](std::uint64_t place) const
{
    KeyedArchiveReader& archive = *m_array.m_archive;
    return archive.value(m_array.m_name, archive.m_plist->element(m_list, place));
}

} // namespace tessara
