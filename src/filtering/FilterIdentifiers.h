#pragma once

#include <QStringList>

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace tessara {

/// A column on which a filter can find a network.
enum class FilterColumn : std::uint8_t {
    kSignal,
    kSecurity,
    kPhyMode,
    kBSSID,
    kBand,
    kChannelWidth,
    kChannel,
    kNetworkName,
    kDeviceName,
    kAnnotations,
    kVendor,
    kCountryCode,
};

/// The columns on which a filter found any network at all; which network it was is not kept.
class FilterIdentifiers {
public:
    void insert(FilterColumn column) { m_columns.set(static_cast<std::size_t>(column)); }
    bool isEmpty() const { return m_columns.none(); }
    /// Whether a column of the registry is among them.
    bool contains(QStringView columnIdentifier) const;
    /// The identifiers of the columns as the registry has them, in alphabetical order.
    QStringList columnIdentifiers() const;

private:
    std::bitset<static_cast<std::size_t>(FilterColumn::kCountryCode) + 1> m_columns;
};

} // namespace tessara
