#include "persistence/VendorTable.h"

#include "foundation/Localized.h"
#include "persistence/PropertyList.h"

#include <algorithm>
#include <cstring>

namespace tessara {

namespace {

/// The value of a hexadecimal digit in upper case, or -1.
int digitValue(char16_t c)
{
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return -1;
}

/// The number that "00:15:6D" stands for, of a look-up (UTF-16) or of a list (UTF-8).
std::optional<std::uint32_t> numberOf(const auto& identifier)
{
    if (identifier.size() != 8 || identifier[2] != u':' || identifier[5] != u':')
        return std::nullopt;
    std::uint32_t number = 0;
    for (const qsizetype i : {0, 1, 3, 4, 6, 7}) {
        const int digit = digitValue(identifier[i].unicode());
        if (digit < 0)
            return std::nullopt;
        number = number << 4 | static_cast<std::uint32_t>(digit);
    }
    return number;
}

/// Whether every character is of ASCII, and blanks only stand alone and between words.
bool isSimple(QByteArrayView text)
{
    bool isOdd = false;
    bool afterBlank = true;
    for (const char c : text) { // without a branch, most of the time of a load would be here
        const bool isBlank = c == ' ';
        isOdd |= (c < ' ') | (c > '~') | (isBlank & afterBlank);
        afterBlank = isBlank;
    }
    return !isOdd && !afterBlank;
}

/// Appends a text with its runs of white space, of any script, made single blanks.
void appendSimplified(QByteArray& texts, QByteArrayView text)
{
    if (isSimple(text)) // as nearly all names are; the long way takes longer than the parser
        texts.append(text);
    else
        texts.append(QString::fromUtf8(text).simplified().toUtf8());
}

} // namespace

std::optional<VendorTable> VendorTable::fromPropertyList(const QByteArray& bytes, QString& error)
{
    VendorTable table;
    // Names are less than half of a list; what is left over is given back.
    table.m_names.reserve(std::min(bytes.size(), kLongestPropertyList) / 2);
    const bool read =
        readTextDictionary(bytes, error, [&](QByteArrayView identifier, QByteArrayView text) {
            const auto number = numberOf(QLatin1String(identifier));
            const auto begin = table.m_names.size();
            appendSimplified(table.m_names, text);
            if (!number || table.m_names.size() == begin) {
                table.m_names.resize(begin);
                return;
            }
            table.m_entries.push_back({*number, static_cast<std::uint32_t>(begin)});
            table.m_names.append('\0');
        });
    if (!read)
        return std::nullopt;
    if (table.m_entries.empty()) {
        error = localized("the property list names no vendor");
        return std::nullopt;
    }
    // As a rule the list is in order already.
    if (!std::ranges::is_sorted(table.m_entries, {}, &Entry::identifier))
        std::ranges::sort(table.m_entries, {}, &Entry::identifier);
    table.m_entries.shrink_to_fit();
    table.m_names.squeeze();
    return table;
}

void VendorTable::appendTo(QByteArray& bytes) const
{
    bytes.append(reinterpret_cast<const char*>(m_entries.data()),
                 static_cast<qsizetype>(m_entries.size()) * kEntryLength);
    bytes.append(m_names);
}

std::optional<VendorTable> VendorTable::fromBytes(QByteArrayView bytes, std::size_t entries)
{
    if (entries == 0 || entries > static_cast<std::size_t>(bytes.size() / kEntryLength))
        return std::nullopt;
    VendorTable table;
    table.m_entries.resize(entries);
    const auto length = static_cast<qsizetype>(entries) * kEntryLength;
    std::memcpy(table.m_entries.data(), bytes.data(), std::size_t(length));
    table.m_names = bytes.sliced(length).toByteArray();
    // What a look-up relies on: the order, and that a name begins inside and comes to an end.
    const auto beginsInside = [&](const Entry& entry) {
        return entry.name < std::uint32_t(table.m_names.size());
    };
    if (!table.m_names.endsWith('\0') ||
        !std::ranges::is_sorted(table.m_entries, {}, &Entry::identifier) ||
        !std::ranges::all_of(table.m_entries, beginsInside))
        return std::nullopt;
    return table;
}

QByteArrayView VendorTable::nameFor(QStringView identifier) const
{
    const auto number = numberOf(identifier);
    if (!number)
        return {};
    const auto entry = std::ranges::lower_bound(m_entries, *number, {}, &Entry::identifier);
    if (entry == m_entries.end() || entry->identifier != *number)
        return {};
    return m_names.constData() + entry->name;
}

} // namespace tessara
