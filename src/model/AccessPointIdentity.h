#pragma once

#include <QString>

#include <optional>

namespace tessara {

/// The readable form of a BSSID: the vendor's short name in place of the OUI, "Cisco:33:44:55"; the
/// BSSID itself where there is no name.
/// @param bssid normalised
QString deviceIdentifier(const QString& bssid, const std::optional<QString>& shortVendor);

/// The identity of the access point that sends a BSSID among others: equal for all of them. Each
/// vendor numbers its BSSIDs in its own way; the digits that differ are masked by "#".
/// @param deviceid the readable form of the same BSSID
QString accessPointIdentifier(const QString& bssid, const QString& deviceid,
                              const std::optional<QString>& vendor);

} // namespace tessara
