#include "cli/ElementsJSON.h"
#include "elements/FieldVisit.h"

#include <QJsonDocument>

#include <cstdlib>

using namespace tessara;

namespace {

std::size_t rowsOf(const Field& field)
{
    std::size_t rows = 1;
    forEachSubfield(field, [&rows](const Field& row) { rows += rowsOf(row); });
    return rows;
}

} // namespace

// A run of elements of any kind: cut, named, decoded, and written as text and for programs.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray run(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::vector<TSInfoElement> elements = informationElements(run);
    std::size_t rows = 0;
    std::size_t text = 0;
    for (const TSInfoElement& element : elements) {
        element.ieIdentifier();
        text += element.ieDump().size();
        element.ieIdentifier();
        for (const Field& field : element.fields())
            rows += rowsOf(field);
    }
    QJsonDocument(elementsJSON(elements)).toJson();

    // What is shown is bounded by what was sent: the element that the run cuts short is the only
    // one with more content than bytes.
    constexpr std::size_t kRowsOfAnElement = 400;
    constexpr std::size_t kBytesOfARow = 1024;
    if (rows > kRowsOfAnElement * elements.size() || text > kBytesOfARow * rows)
        std::abort();
    return 0;
}
