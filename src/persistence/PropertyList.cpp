#include "persistence/PropertyList.h"

#include "foundation/Localized.h"

#include <QXmlStreamReader>

namespace tessara {

bool readTextDictionary(const QByteArray& bytes, QString& error,
                        const std::function<void(QStringView key, QStringView value)>& entry)
{
    constexpr int kRootDepth = 2;  // within <plist>
    constexpr int kEntryDepth = 3; // keys and values, within the dictionary
    QXmlStreamReader reader(bytes);
    QString key;
    QString text;
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            ++depth;
            if ((depth == 1 && reader.name() != u"plist") ||
                (depth == kRootDepth && reader.name() != u"dict"))
                reader.raiseError(localized("this is no property list of the kind expected"));
            text.resize(0);
            break;
        case QXmlStreamReader::Characters:
            text += reader.text();
            break;
        case QXmlStreamReader::EndElement:
            if (depth-- != kEntryDepth)
                break;
            if (reader.name() == u"string")
                entry(key, text);
            // Swapping keeps the memory of both texts, and a value uses up its key.
            key.resize(0);
            if (reader.name() == u"key")
                key.swap(text);
            break;
        default:
            break;
        }
    }
    error = reader.errorString().simplified();
    return !reader.hasError();
}

} // namespace tessara
