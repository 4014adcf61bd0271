#pragma once

#include "scanning/nl80211/NetlinkAttributes.h"

namespace tessara {

/// One message of nl80211: a command and its attributes. Views the bytes it was read from.
struct Nl80211Message {
    int command = 0; ///< of enum nl80211_commands
    NetlinkAttributes attributes;
};

/// Reads a netlink message as one of generic netlink; none if it is too short to be one. The
/// bytes are the whole message from its header on.
std::optional<Nl80211Message> nl80211Message(Bytes netlinkMessage);

} // namespace tessara
