#include "persistence/PropertyList.h"

#include "foundation/Localized.h"

#include <QStringList>

#include <expat.h>

#include <algorithm>
#include <memory>
#include <string>

namespace tessara {

namespace {

constexpr int kPlistDepth = 1;
constexpr int kRootDepth = 2;  // within <plist>
constexpr int kEntryDepth = 3; // keys and values, within the dictionary
constexpr int kGreatestDepth = 100;

struct FreeParser {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

/// Follows the elements of a property list, as the parser comes to them.
class TextDictionaryReader {
public:
    using Entry = std::function<void(QByteArrayView key, QByteArrayView value)>;

    explicit TextDictionaryReader(const Entry& entry)
        : m_entry(entry)
    {
        XML_SetUserData(parser(), this);
        XML_SetStartDoctypeDeclHandler(
            parser(), [](void* self, auto*, auto*, auto*, int hasDeclarations) {
                if (hasDeclarations)
                    of(self).refuse(localized("the property list has declarations of its own"));
            });
        XML_SetElementHandler(
            parser(), [](void* self, const char* name, const char**) { of(self).begin(name); },
            [](void* self, const char* name) { of(self).end(name); });
    }

    /// @return what is wrong with the list, or empty
    QString read(const QByteArray& bytes)
    {
        // All at once: the parser then works on these bytes and keeps no copy.
        if (XML_Parse(parser(), bytes.constData(), static_cast<int>(bytes.size()), XML_TRUE) ==
            XML_STATUS_OK)
            return {};
        if (!m_refusal.isEmpty())
            return m_refusal;
        return localized("line %1: %2")
            .arg(XML_GetCurrentLineNumber(parser()))
            .arg(QLatin1String(XML_ErrorString(XML_GetErrorCode(parser()))));
    }

private:
    static TextDictionaryReader& of(void* self)
    {
        return *static_cast<TextDictionaryReader*>(self);
    }
    XML_Parser parser() const { return m_parser.get(); }

    void refuse(const QString& reason)
    {
        m_refusal = reason;
        XML_StopParser(parser(), XML_FALSE);
    }

    void begin(QByteArrayView name)
    {
        ++m_depth;
        if ((m_depth == kPlistDepth && name != "plist") ||
            (m_depth == kRootDepth && name != "dict"))
            refuse(localized("this is no property list of the kind expected"));
        else if (m_depth > kGreatestDepth)
            refuse(localized("the property list is nested too deeply"));
        collectText(m_depth == kEntryDepth);
    }

    void end(QByteArrayView name)
    {
        if (m_depth-- != kEntryDepth)
            return;
        if (name == "string")
            m_entry(m_key, m_text);
        // Swapping keeps the memory of both texts, and a value uses up its key.
        m_key.clear();
        if (name == "key")
            m_key.swap(m_text);
        collectText(false);
    }

    /// From here on, or no more: what stands between the entries is most of the text of a list.
    void collectText(bool wanted)
    {
        m_text.clear();
        XML_SetCharacterDataHandler(parser(), wanted ? &addText : nullptr);
    }

    static void addText(void* self, const char* text, int length)
    {
        of(self).m_text.append(text, static_cast<std::size_t>(length));
    }

    const Entry& m_entry;
    const std::unique_ptr<XML_ParserStruct, FreeParser> m_parser{XML_ParserCreate(nullptr)};
    int m_depth = 0;
    std::string m_key;
    std::string m_text;
    QString m_refusal;
};

/// Of the characters of UTF-16, those that XML cannot hold (XML 1.0, 2.2); a surrogate without its
/// other half is seen to by the encoder.
bool isForeignToXML(QChar character)
{
    const char16_t c = character.unicode();
    return (c < 0x20 && c != u'\t' && c != u'\n' && c != u'\r') || c == 0xfffe || c == 0xffff;
}

void appendText(QByteArray& xml, QString text)
{
    std::ranges::replace_if(text, isForeignToXML, QChar(QChar::ReplacementCharacter));
    for (const char c : text.toUtf8()) {
        switch (c) {
        case '&':
            xml += "&amp;";
            break;
        case '<':
            xml += "&lt;";
            break;
        case '>':
            xml += "&gt;";
            break;
        case '\r':
            xml += "&#13;"; // as itself it would be read as a line feed
            break;
        default:
            xml += c;
        }
    }
}

} // namespace

bool readTextDictionary(const QByteArray& bytes, QString& error,
                        const std::function<void(QByteArrayView key, QByteArrayView value)>& entry,
                        qsizetype longest)
{
    error = bytes.size() > longest ? localized("the property list is too long")
                                   : TextDictionaryReader(entry).read(bytes);
    return error.isEmpty();
}

QByteArray textDictionary(const QHash<QString, QString>& entries)
{
    QStringList keys = entries.keys();
    keys.sort();
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                     "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                     "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                     "<plist version=\"1.0\">\n<dict>\n";
    for (const QString& key : keys) {
        xml += "\t<key>";
        appendText(xml, key);
        xml += "</key>\n\t<string>";
        appendText(xml, entries.value(key));
        xml += "</string>\n";
    }
    return xml + "</dict>\n</plist>\n";
}

} // namespace tessara
