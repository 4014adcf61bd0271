#include "persistence/CSVParser.h"

#include "support/QtPrinters.h"

#include <gmock/gmock.h>

using namespace tessara;

namespace {

/// The fields of a row by position, between bars; "-" where a row has none of that name.
std::string shown(const CSVParser::Row& row, const QStringList& names)
{
    QStringList fields;
    for (const QString& name : names)
        fields.append(row.value(name, QStringLiteral("-")));
    return fields.join(u'|').toStdString();
}

/// Rows, one a line; "none" for no array.
std::string parsed(const QString& text, const QString& separator)
{
    CSVParser parser(text, separator, false, {QStringLiteral("x"), QStringLiteral("y")});
    const auto rows = parser.arrayOfParsedRows();
    std::string result;
    for (const CSVParser::Row& row : rows.value_or(std::vector<CSVParser::Row>()))
        result += shown(row, parser.fieldNames()) + '\n';

    std::string received;
    parser.parseRowsForReceiver(
        [&](const CSVParser::Row& row) { received += shown(row, parser.fieldNames()) + '\n'; });
    EXPECT_EQ(received, result) << "row by row as all at once";
    return rows ? result : "none";
}

} // namespace

TEST(CSVParserTest, ReadsRows)
{
    struct Case {
        const char* text;
        const char* rows;
        const char* separator = ",";
    };
    const Case cases[] = {
        {"", "none"},
        {"\n", "none"},
        {"\na,b", "none"}, // a blank line at the start ends it all
        {"a,b", "a|b\n"},
        {"a,b\n", "a|b\n"}, // no row after the last line end
        {"a,b\r\nc,d\r\re,f\n\n\n", "a|b\nc|d\ne|f\n"},
        {"a,b\u0085c,d\u2028e,f\u2029g,h\vi,j\fk,l", "a|b\nc|d\ne|f\ng|h\ni|j\nk|l\n"},
        {" a , b ", " a | b \n"},
        {"a", "a|-\n"},
        {"a,", "a|\n"},
        {",", "|\n"},
        {",\n,", "|\n|\n"},
        // Quotation marks.
        {"\"a,b\",\"c\nd\"", "a,b|c\nd\n"},
        {"\"say \"\"hi\"\"\",b", "say \"hi\"|b\n"},
        {"\"\",\"\"", "|\n"},
        {"\"\"\"\",b", "\"|b\n"},
        {"a,b\"c\nd,e", "a|b\n"},           // in the middle of a text: the rest is left out
        {"a,\"b\"c\nd,e", "a|b\n"},         // text after the closing mark, the same
        {"a,\"b \"c\" d\"\ne,f", "a|b \n"}, // a mark that is not doubled
        {"a,\"b\nc,d\n", "a|\n"},           // never closed
        {"\"", "|-\n"},
        {"a,b\n\"c\"\"", "a|b\n|-\n"},
        // Separators of more than one character.
        {"a::b:c::d", "a|b:c|d\n", "::"},
        {"a:;b:,;c", "a|b:,;c\n", ":;"},
        {"\"a::b\"::c:", "a::b|c:\n", "::"},
        {":::", "|:\n", "::"},
        {"a\tb", "a|b\n", "\t"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(parsed(QString::fromUtf8(c.text), QString::fromUtf8(c.separator)), c.rows);
    }
}

TEST(CSVParserTest, NamesFields)
{
    struct Case {
        const char* text;
        bool hasHeader;
        QStringList names;
        const char* rows;
        QStringList namesAfterwards;
    };
    const auto list = [](const char* names) { return QString::fromLatin1(names).split(u' '); };
    const Case cases[] = {
        {"a,b\nc,d", true, {}, "c|d\n", list("a b")},
        {"\"a,b\",c\nd,e", true, list("x"), "d|e\n", {QStringLiteral("a,b"), QStringLiteral("c")}},
        {"a,b", true, list("x y"), "none", list("x y")}, // a header alone
        {"a,b\n", true, list("x y"), "none", list("a b")},
        {"", true, {}, "none", {}},
        {"a,b,c\nd\ne,f,g,h", false, list("x"), "a|b|c|-\nd|-|-|-\ne|f|g|h\n",
         list("x FIELD_2 FIELD_3 FIELD_4")},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        CSVParser parser(QString::fromLatin1(c.text), QStringLiteral(","), c.hasHeader, c.names);
        const auto rows = parser.arrayOfParsedRows();
        std::string result;
        for (const CSVParser::Row& row : rows.value_or(std::vector<CSVParser::Row>()))
            result += shown(row, parser.fieldNames()) + '\n';
        EXPECT_EQ(rows ? result : "none", c.rows);
        EXPECT_EQ(parser.fieldNames(), c.namesAfterwards);
    }
}
