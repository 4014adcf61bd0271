#include "cli/Command.h"
#include "cli/ElementsJSON.h"
#include "cli/InputOptions.h"
#include "cli/NetworksInput.h"
#include "elements/FieldVisit.h"
#include "foundation/HarmlessText.h"
#include "foundation/Utf8.h"

#include <QJsonDocument>
#include <QTextStream>

#include <algorithm>
#include <cctype>
#include <utility>

namespace tessara {

namespace {

const QString kBSSID = QStringLiteral("bssid");
const QString kHex = QStringLiteral("hex");
const QString kFormat = QStringLiteral("format");
const QString kText = QStringLiteral("text");
const QString kJSON = QStringLiteral("json");

void addOptions(QCommandLineParser& parser)
{
    addInputOptions(parser);
    parser.addOptions({
        {kBSSID, QStringLiteral("The network of the input whose elements are wanted."),
         QStringLiteral("BSSID")},
        {kHex, QStringLiteral("Decode these element bytes, given in hexadecimal, and no input."),
         QStringLiteral("BYTES")},
        {kFormat, QStringLiteral("text (as told without this) or json."), kFormat, kText},
    });
}

/// A text of a row as a terminal may have it: on one line, and nothing it obeys.
std::string harmlessText(std::string_view text)
{
    return harmless(textFromUtf8(text).value_or(QString())).toStdString();
}

/// The lines of a row and those below it, as a dump has them, but for texts that would make lines
/// of their own.
void composeHarmlessField(const Field& field, std::size_t depth, DumpBuffer& lines)
{
    const std::string value = harmlessText(*field.fieldValue);
    Field row = field;
    if (field.fieldValue)
        row.fieldValue = std::string_view(value);
    row.fieldSubfields.reset();
    composeField(row, depth, lines);
    forEachSubfield(
        field, [&](const Field& subfield) { composeHarmlessField(subfield, depth + 1, lines); });
}

void printElement(QTextStream& out, const TSInfoElement& element)
{
    out << QString::fromStdString(element.ieName());
    if (!element.ieSummary().empty())
        out << " - " << QString::fromStdString(harmlessText(element.ieSummary()));
    DumpBuffer lines;
    for (const Field& field : element.fields())
        composeHarmlessField(field, 1, lines);
    out << textFromUtf8(lines.text()).value_or(QString()) << '\n';
}

void printElements(const std::vector<TSInfoElement>& elements, bool asJSON)
{
    QTextStream out(stdout);
    if (asJSON) {
        out << QJsonDocument(elementsJSON(elements)).toJson();
        return;
    }
    bool isFirst = true;
    for (const TSInfoElement& element : elements) {
        if (!std::exchange(isFirst, false))
            out << '\n';
        printElement(out, element);
    }
}

/// @param error what is wrong with the text, if something is
QByteArray bytesOfHex(const QString& text, QString& error)
{
    QString digits = text;
    digits.removeIf([](QChar c) { return c.isSpace() || c == QChar(u':'); });
    const bool areDigits = std::ranges::all_of(
        digits, [](QChar c) { return c.unicode() < 0x80 && std::isxdigit(c.unicode()) != 0; });
    if (!areDigits || digits.size() % 2 != 0) {
        error = QStringLiteral("--hex takes bytes of two hexadecimal digits each");
        return {};
    }
    return QByteArray::fromHex(digits.toLatin1());
}

ExitStatus printElementsOfInput(const QCommandLineParser& parser, const QString& name, bool asJSON)
{
    QString error;
    const auto sweep = sweepSeconds(parser, error);
    if (!sweep)
        return wrongUsage(error);
    const NetworksInput input = readNetworks(name, *sweep);
    const QString bssid = parser.value(kBSSID);
    const auto network = std::ranges::find_if(input.networks, [&bssid](const auto& candidate) {
        return candidate->bssid().compare(bssid, Qt::CaseInsensitive) == 0;
    });
    if (network != input.networks.end())
        printElements((*network)->informationElements(), asJSON);
    if (!input.error.isEmpty()) {
        complain(input.error);
        return kFailed;
    }
    if (network == input.networks.end()) {
        complain(QStringLiteral("%1 holds no network with the BSSID %2 after its last scan")
                     .arg(name, bssid));
        return kFailed;
    }
    return finishOutput();
}

ExitStatus run(const QCommandLineParser& parser, const QStringList& arguments)
{
    const QString format = parser.value(kFormat);
    if (format != kText && format != kJSON)
        return wrongUsage(QStringLiteral("--format takes text or json"));
    if (parser.isSet(kHex)) {
        if (!arguments.isEmpty() || parser.isSet(kBSSID))
            return wrongUsage(QStringLiteral("elements --hex takes no input"));
        QString error;
        const QByteArray bytes = bytesOfHex(parser.value(kHex), error);
        if (!error.isEmpty())
            return wrongUsage(error);
        printElements(informationElements(bytes), format == kJSON);
        return finishOutput();
    }
    if (arguments.size() != 1 || !parser.isSet(kBSSID))
        return wrongUsage(QStringLiteral("elements takes one input and --bssid, or --hex"));
    return printElementsOfInput(parser, arguments[0], format == kJSON);
}

} // namespace

const Command kElementsCommand = {
    "elements", "INPUT --bssid BSSID | --hex BYTES",
    "Shows what a network of an input says of itself, element by element.", addOptions, run};

} // namespace tessara
