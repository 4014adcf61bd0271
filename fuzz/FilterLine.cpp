#include "filtering/FilterLine.h"

#include "PlainFilter.h"
#include "filtering/FilteredNetworks.h"

#include <QTextStream>

#include <array>
#include <cstdint>
#include <cstdlib>

using namespace tessara;

namespace {

/// What lines are made of: a byte of the input is one of these.
constexpr std::array kFragments = {
    u"&",      u",",      u"!",
    u"\"",     u" ",      u"\t",
    u"%",      u">",      u"<",
    u"=",      u"-",      u"1",
    u"5",      u"0",      u"8",
    u"4",      u"96",     u"70",
    u"36",     u"15",     u"wpa",
    u"WPA2",   u"wep",    u"psk",
    u"802",    u".",      u"11",
    u"x",      u"a",      u"b",
    u"g",      u"N",      u"ac",
    u"00:",    u"1A:",    u":",
    u"2.4",    u"GHz",    u"20",
    u"40",     u"160",    u"mhz",
    u"MHz",    u"home",   u"cisco",
    u"e",      u"ß",      u"É",
    u"привет", u"fan",    u"de",
    u"US",     u"zz",     u"<hid",
    u"\xd83d", u"\xde00", u"\xd801\xdc28",
    u"\x0660", u"\x0666", u"\x00a0",
    u"\x212a", u"\x017f", u"é",
    u"euro",
};

/// Fragments, or text in UTF-8, or any units of UTF-16: the first byte says which.
QString lineOf(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return {};
    const auto* text = reinterpret_cast<const char*>(data + 1);
    const auto length = static_cast<qsizetype>(size - 1);
    if (data[0] % 4 == 0)
        return QString::fromUtf8(text, length);
    QString line;
    for (qsizetype i = 0; i < length; ++i) {
        const auto byte = static_cast<std::uint8_t>(text[i]);
        if (data[0] % 4 == 1 && i + 1 < length)
            line += QChar(byte, static_cast<std::uint8_t>(text[++i]));
        else
            line += QString::fromUtf16(kFragments[byte % kFragments.size()]);
    }
    return line;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const NetworkList networks = filteredNetworks();
    const QString line = lineOf(data, size);

    FilterIdentifiers identifiers;
    const NetworkList selected = filterNetworks(networks, line, identifiers);
    QMap<QString, QString> expectedIdentifiers;
    const NetworkList expected = plain::filterNetworks(networks, line, expectedIdentifiers);

    if (selected != expected || identifiers.columnIdentifiers() != expectedIdentifiers.keys()) {
        QTextStream out(stderr);
        out << "line: " << line << '\n';
        for (const NetworkPtr& network : selected)
            out << "selected: " << network->bssid() << '\n';
        for (const NetworkPtr& network : expected)
            out << "expected: " << network->bssid() << '\n';
        out << "columns: " << identifiers.columnIdentifiers().join(u' ')
            << "\nexpected: " << expectedIdentifiers.keys().join(u' ') << '\n';
        out.flush();
        std::abort();
    }
    return 0;
}
