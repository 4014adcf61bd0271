#pragma once

#include "scanning/nl80211/NetlinkAttributes.h"

#include <QString>

#include <optional>

namespace tessara {

/// The address of the access point that the interface is associated with; none if it is not.
std::optional<QString> readAssociatedBSSID(unsigned interfaceIndex);

/// The address in a message of NL80211_CMD_GET_STATION; none if it is of a peer that is spoken to
/// directly (TDLS), or of an access point that is not associated with yet.
std::optional<QString> associatedBSSID(const NetlinkAttributes& message);

/// The rate in Mbit/s at which the interface last sent to its access point; none if it is not
/// associated or has sent nothing yet.
std::optional<double> readTransmitRate(unsigned interfaceIndex);

/// The rate of a message of NL80211_CMD_GET_STATION in Mbit/s; none if it holds none, or describes
/// a peer that is spoken to directly (TDLS), not the access point.
std::optional<double> transmitRate(const NetlinkAttributes& message);

} // namespace tessara
