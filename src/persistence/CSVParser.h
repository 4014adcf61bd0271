#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace tessara {

/// Reads comma-separated text, or text with another separator, into rows: a recursive descent, one
/// operation for each rule of the grammar.
///
/// A field in quotation marks may hold separators, line breaks and doubled quotation marks. Any run
/// of line breaks is one. There are no errors: where the grammar no longer fits, the parse stops
/// and the rest of the text is left out; so it does at a row of more than 10,000 fields.
class CSVParser {
public:
    /// The fields of a row by their names.
    using Row = QHash<QString, QString>;
    using Receiver = std::function<void(const Row& row)>;

    /// @param separator not empty, without quotation marks and line breaks
    /// @param hasHeader the first record tells the names of the fields
    /// @param fieldNames the names by position; a field beyond them is called "FIELD_3" after its
    ///        position, from 1, and so are those below it in later rows
    CSVParser(QString csvString, QString separator, bool hasHeader, QStringList fieldNames);

    /// All rows; none, not an empty array, for a text without a first record.
    std::optional<std::vector<Row>> arrayOfParsedRows();
    /// Gives each row as it is read, so that the text takes no more memory than itself.
    void parseRowsForReceiver(const Receiver& receiver);

    const QStringList& fieldNames() const { return m_fieldNames; }

private:
    // The rules. Each gives what it has read, or nothing and then mostly stays where it was.
    bool parseFile(const Receiver& receiver);
    std::optional<QStringList> parseHeader();
    std::optional<Row> parseRecord();
    std::optional<QString> parseName() { return parseField(); }
    std::optional<QString> parseField();
    std::optional<QString> parseEscaped();
    std::optional<QString> parseNonEscaped() { return parseTextData(); }
    std::optional<QString> parseTextData();
    bool parseTwoDoubleQuotes() { return scan(u"\"\""); }
    bool parseDoubleQuote() { return scan(u"\""); }
    bool parseSeparator() { return scan(m_separator); }
    /// A run of line breaks; empty if there is none.
    QStringView parseLineSeparator();

    bool scan(QStringView expected);
    bool isAtEnd() const { return m_location == m_csvString.size(); }
    QStringView rest() const { return QStringView(m_csvString).sliced(m_location); }
    bool endsText(QChar character) const;

    const QString m_csvString;
    const QString m_separator;
    const bool m_hasHeader;
    QStringList m_fieldNames;
    qsizetype m_location = 0; ///< of the scanner, in the text
};

} // namespace tessara
