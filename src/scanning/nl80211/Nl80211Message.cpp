#include "scanning/nl80211/Nl80211Message.h"

#include <linux/genetlink.h>
#include <linux/netlink.h>

#include <algorithm>
#include <cstring>

namespace tessara {

std::optional<Nl80211Message> nl80211Message(Bytes netlinkMessage)
{
    nlmsghdr header;
    genlmsghdr genericHeader;
    constexpr std::size_t kHeaders = NLMSG_HDRLEN + GENL_HDRLEN;
    if (netlinkMessage.size() < kHeaders)
        return std::nullopt;
    std::memcpy(&header, netlinkMessage.data(), sizeof(header));
    std::memcpy(&genericHeader, netlinkMessage.data() + NLMSG_HDRLEN, sizeof(genericHeader));
    const auto length = std::min<std::size_t>(header.nlmsg_len, netlinkMessage.size());
    if (length < kHeaders)
        return std::nullopt;
    return Nl80211Message{genericHeader.cmd,
                          NetlinkAttributes(netlinkMessage.subspan(kHeaders, length - kHeaders))};
}

} // namespace tessara
