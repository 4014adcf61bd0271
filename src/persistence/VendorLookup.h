#pragma once

#include "persistence/VendorTable.h"

namespace tessara {

/// Who made an access point. A BSSID is often not the address that the maker's block holds: access
/// points make further BSSIDs out of their own address, each maker in its own way.
///
/// @param bssid six octets in upper-case hexadecimal with colons; three are enough where only a
///        block is asked for
/// @return none if nobody is known
std::optional<QString> vendorOf(const VendorTable& table, QStringView bssid);

/// A vendor's name as one word, up to its first blank or comma ("Cisco" of "Cisco Systems, Inc").
QString shortVendorName(const QString& name);

} // namespace tessara
