#include "persistence/CSVParser.h"

#include <cstdint>
#include <cstdlib>

using namespace tessara;

namespace {

/// Whether the parser gives rows one by one as it gives them at once, and no field without a name.
void checkRows(const QString& text, const QString& separator, bool hasHeader)
{
    const QStringList names{QStringLiteral("bssid"), QStringLiteral("annotations")};
    CSVParser parser(text, separator, hasHeader, names);
    const auto rows = parser.arrayOfParsedRows();
    std::size_t received = 0;
    CSVParser other(text, separator, hasHeader, names);
    other.parseRowsForReceiver([&](const CSVParser::Row& row) {
        if (!rows || received >= rows->size() || (*rows)[received++] != row)
            std::abort();
    });
    if (received != (rows ? rows->size() : 0) || other.fieldNames() != parser.fieldNames())
        std::abort();
    for (const CSVParser::Row& row : rows.value_or(std::vector<CSVParser::Row>())) {
        for (auto field = row.begin(); field != row.end(); ++field) {
            if (!parser.fieldNames().contains(field.key()))
                std::abort();
        }
    }
}

/// Whether any two texts come back when they are written by the rules.
void checkRoundTrip(const QString& text, const QString& separator)
{
    const auto quoted = [](QString field) {
        return u'"' + field.replace(u'"', QLatin1String("\"\"")) + u'"';
    };
    const QString first = text.left(text.size() / 2);
    const QString second = text.mid(text.size() / 2);
    const auto rows = CSVParser(quoted(first) + separator + quoted(second) + QLatin1String("\r\n"),
                                separator, false, {QStringLiteral("x"), QStringLiteral("y")})
                          .arrayOfParsedRows();
    const CSVParser::Row expected{{QStringLiteral("x"), first}, {QStringLiteral("y"), second}};
    if (!rows || *rows != std::vector{expected})
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    constexpr const char* kSeparators[] = {",", ";", "::", ":;:", "\t", "--"};
    const QString separator =
        QString::fromLatin1(kSeparators[data[0] / 2 % std::size(kSeparators)]);
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data + 1),
                                           static_cast<qsizetype>(size - 1));
    checkRows(text, separator, data[0] % 2);
    checkRoundTrip(text, separator);
    return 0;
}
