#include "foundation/Utf8.h"
#include "persistence/AnnotationsCSV.h"
#include "persistence/PropertyList.h"

#include <cstdint>
#include <cstdlib>

using namespace tessara;

namespace {

using Annotations = TSAnnotationsHelper::Annotations;

QString textOf(QByteArrayView utf8)
{
    return textFromUtf8({utf8.data(), static_cast<std::size_t>(utf8.size())}).value_or(QString());
}

Annotations readBack(const QByteArray& list)
{
    Annotations annotations;
    QString error;
    const bool isList = readTextDictionary(
        list, error,
        [&](QByteArrayView bssid, QByteArrayView note) {
            annotations.insert(textOf(bssid), textOf(note));
        },
        kLongestOwnPropertyList);
    if (!isList)
        std::abort();
    return annotations;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    TSAnnotationsHelper store{QString()};
    const QString error = readAnnotationsCSV(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)),
        [&](const QString& bssid, const QString& note) {
            if (bssid != bssid.toUpper())
                std::abort();
            store.setAnnotationsForNetwork(bssid, note);
        });
    if (!error.isEmpty() && !store.annotations().isEmpty())
        std::abort();
    // Whatever came in, the next run of the program can read what this one saves.
    const Annotations saved = readBack(textDictionary(store.annotations()));
    if (saved.size() > store.annotations().size() || readBack(textDictionary(saved)) != saved)
        std::abort();
    csvOfAnnotations(saved);
    return 0;
}
