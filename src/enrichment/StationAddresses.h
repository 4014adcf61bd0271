#pragma once

#include <QByteArrayList>
#include <QStringList>

namespace tessara {

/// The addresses of the radios of an access point, from the TXT record of its service, with colons
/// and otherwise as the device sent them. A record may hold anything: what tells of no radio is
/// passed over.
/// @param txt the record's strings, each "key=value" (RFC 6763, 6.3)
QStringList stationAddresses(const QByteArrayList& txt);

} // namespace tessara
