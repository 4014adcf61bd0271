#include "filtering/FilterIdentifiers.h"

#include <algorithm>

namespace tessara {

namespace {

struct ColumnName {
    FilterColumn column;
    const char* identifier; ///< in the column registry
};

constexpr ColumnName kColumnNames[] = {
    {FilterColumn::kSignal, "RSSI"},
    {FilterColumn::kSecurity, "SECURITY_MODE"},
    {FilterColumn::kPhyMode, "PHY_MODE"},
    {FilterColumn::kBSSID, "BSSID"},
    {FilterColumn::kBand, "CHANNEL_BAND"},
    {FilterColumn::kChannelWidth, "CHANNEL_WIDTH"},
    {FilterColumn::kChannel, "CHANNEL"},
    {FilterColumn::kNetworkName, "SSID"},
    {FilterColumn::kDeviceName, "DEVICE_NAME"},
    {FilterColumn::kAnnotations, "ANNOTATIONS"},
    {FilterColumn::kVendor, "VENDOR"},
    {FilterColumn::kCountryCode, "CC"},
};

} // namespace

bool FilterIdentifiers::contains(QStringView columnIdentifier) const
{
    return std::ranges::any_of(kColumnNames, [&](const ColumnName& name) {
        return m_columns.test(static_cast<std::size_t>(name.column)) &&
               columnIdentifier == QLatin1String(name.identifier);
    });
}

QStringList FilterIdentifiers::columnIdentifiers() const
{
    QStringList identifiers;
    for (const ColumnName& name : kColumnNames) {
        if (m_columns.test(static_cast<std::size_t>(name.column)))
            identifiers += QLatin1String(name.identifier);
    }
    identifiers.sort();
    return identifiers;
}

} // namespace tessara
