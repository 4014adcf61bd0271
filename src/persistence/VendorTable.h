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

    /// The owner of an identifier of exactly the form "00:15:6D", upper case, in UTF-8; empty if
    /// there is none. Valid as long as the table.
    QByteArrayView nameFor(QStringView identifier) const;

    std::size_t size() const { return m_entries.size(); }

private:
    struct Entry {
        std::uint32_t identifier;
        std::uint32_t name; ///< where it begins in `m_names`
    };

    std::vector<Entry> m_entries; ///< in the order of identifiers
    QByteArray m_names;           ///< one after the other, each with a zero byte after it
};

} // namespace tessara
