#include "persistence/VendorTable.h"

#include "foundation/Localized.h"
#include "persistence/PropertyList.h"

#include <algorithm>

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

} // namespace

std::optional<VendorTable> VendorTable::fromPropertyList(const QByteArray& bytes, QString& error)
{
    VendorTable table;
    const bool read =
        readTextDictionary(bytes, error, [&](QByteArrayView identifier, QByteArrayView text) {
            const auto number = numberOf(QLatin1String(identifier));
            const QByteArray name = QString::fromUtf8(text).simplified().toUtf8();
            if (!number || name.isEmpty())
                return;
            table.m_entries.push_back({*number, static_cast<std::uint32_t>(table.m_names.size())});
            table.m_names.append(name).append('\0');
        });
    if (!read)
        return std::nullopt;
    if (table.m_entries.empty()) {
        error = localized("the property list names no vendor");
        return std::nullopt;
    }
    std::ranges::sort(table.m_entries, {}, &Entry::identifier);
    table.m_entries.shrink_to_fit();
    table.m_names.squeeze();
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
