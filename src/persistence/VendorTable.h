#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace tessara {

/// The owners of blocks of addresses by their identifiers, the first three octets of an address.
/// Does not change once it is made.
class VendorTable {
public:
    /// Reads an XML property list: a dictionary from an identifier ("00:15:6D") to a name. Entries
    /// of another form are left out.
    /// @return none if it is no such list, or names nobody; `error` then says why
    static std::optional<VendorTable> fromPropertyList(const QByteArray& bytes, QString& error);

    /// Reads what `appendTo` wrote of a table of so many entries. @return none if it is damaged
    static std::optional<VendorTable> fromBytes(QByteArrayView bytes, std::size_t entries);
    /// Appends the table in a form that is read at the cost of a copy; it is for this machine.
    void appendTo(QByteArray& bytes) const;

    /// The owner of an identifier of exactly the form "00:15:6D", upper case, in UTF-8; empty if
    /// there is none. Valid as long as the table.
    QByteArrayView nameFor(QStringView identifier) const;

    std::size_t size() const { return m_entries.size(); }

private:
    struct Entry {
        std::uint32_t identifier;
        std::uint32_t name; ///< where it begins in `m_names`
    };

    static constexpr qsizetype kEntryLength = sizeof(Entry);

    std::vector<Entry> m_entries; ///< in the order of identifiers
    QByteArray m_names;           ///< one after the other, each with a zero byte after it
};

} // namespace tessara
