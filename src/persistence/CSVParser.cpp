#include "persistence/CSVParser.h"

#include <algorithm>

namespace tessara {

namespace {

bool isNewline(QChar character)
{
    switch (character.unicode()) {
    case u'\u000a':
    case u'\u000b':
    case u'\u000c':
    case u'\u000d':
    case u'\u0085':
    case u'\u2028':
    case u'\u2029':
        return true;
    default:
        return false;
    }
}

/// No table has so many; each takes a hundred times its size in memory.
constexpr qsizetype kMostFields = 10'000;

bool isSeparator(QStringView text)
{
    return !text.isEmpty() && !text.contains(u'"') && std::ranges::none_of(text, isNewline);
}

} // namespace

CSVParser::CSVParser(QString csvString, QString separator, bool hasHeader, QStringList fieldNames)
    : m_csvString(std::move(csvString))
    , m_separator(std::move(separator))
    , m_hasHeader(hasHeader)
    , m_fieldNames(std::move(fieldNames))
{
    Q_ASSERT_X(isSeparator(m_separator), "CSVParser",
               "CSV separator string must not be empty and must not contain the double quote "
               "character or newline characters.");
}

std::optional<std::vector<CSVParser::Row>> CSVParser::arrayOfParsedRows()
{
    std::vector<Row> rows;
    m_location = 0;
    if (!parseFile([&rows](const Row& row) { rows.push_back(row); }))
        return std::nullopt;
    return rows;
}

void CSVParser::parseRowsForReceiver(const Receiver& receiver)
{
    m_location = 0;
    parseFile(receiver);
}

/// @return whether there was a first record
bool CSVParser::parseFile(const Receiver& receiver)
{
    if (m_hasHeader) {
        const auto names = parseHeader();
        if (!names || parseLineSeparator().isEmpty())
            return false;
        m_fieldNames = *names;
    }
    auto record = parseRecord();
    if (!record)
        return false;
    do {
        receiver(*record);
        if (parseLineSeparator().isEmpty())
            break;
        record = parseRecord();
    } while (record);
    return true;
}

std::optional<QStringList> CSVParser::parseHeader()
{
    QStringList names;
    do {
        const auto name = parseName();
        if (!name)
            break;
        names.append(*name);
    } while (parseSeparator());
    return names.isEmpty() ? std::nullopt : std::optional(names);
}

std::optional<CSVParser::Row> CSVParser::parseRecord()
{
    // A blank line at the very start is no record; later ones belong to the line break before.
    if (!parseLineSeparator().isEmpty() || isAtEnd())
        return std::nullopt;
    auto field = parseField();
    if (!field)
        return std::nullopt;
    Row row;
    for (qsizetype count = 1; field; ++count) {
        if (count > kMostFields)
            return std::nullopt;
        if (m_fieldNames.size() < count)
            m_fieldNames.append(QStringLiteral("FIELD_%1").arg(count));
        row.insert(m_fieldNames.at(count - 1), *field);
        if (!parseSeparator())
            break;
        field = parseField();
    }
    return row;
}

std::optional<QString> CSVParser::parseField()
{
    if (auto escaped = parseEscaped())
        return escaped;
    if (auto text = parseNonEscaped())
        return text;
    const qsizetype location = m_location;
    const bool isEmpty = parseSeparator() || !parseLineSeparator().isEmpty() || isAtEnd();
    m_location = location;
    return isEmpty ? std::optional(QStringLiteral("")) : std::nullopt;
}

std::optional<QString> CSVParser::parseEscaped()
{
    if (!parseDoubleQuote())
        return std::nullopt;
    QString text;
    while (true) {
        if (const auto data = parseTextData())
            text += *data;
        else if (parseSeparator())
            text += m_separator;
        else if (const QStringView lines = parseLineSeparator(); !lines.isEmpty())
            text += lines;
        else if (parseTwoDoubleQuotes())
            text += u'"';
        else
            break;
    }
    if (!parseDoubleQuote())
        return std::nullopt; // the mark is never closed: all the rest of the text is used up
    return text;
}

std::optional<QString> CSVParser::parseTextData()
{
    const qsizetype start = m_location;
    while (true) {
        const QStringView text = rest();
        m_location +=
            std::ranges::find_if(text, [this](QChar c) { return endsText(c); }) - text.begin();
        // The first character of a longer separator is text where the others do not follow.
        const bool isText = m_separator.size() > 1 && rest().startsWith(m_separator.front()) &&
                            !rest().startsWith(m_separator);
        if (!isText)
            break;
        ++m_location;
    }
    if (m_location == start)
        return std::nullopt;
    return m_csvString.sliced(start, m_location - start);
}

QStringView CSVParser::parseLineSeparator()
{
    const QStringView text = rest();
    const auto length = std::ranges::find_if_not(text, isNewline) - text.begin();
    m_location += length;
    return text.first(length);
}

bool CSVParser::scan(QStringView expected)
{
    if (!rest().startsWith(expected))
        return false;
    m_location += expected.size();
    return true;
}

bool CSVParser::endsText(QChar character) const
{
    return character == u'"' || character == m_separator.front() || isNewline(character);
}

} // namespace tessara
