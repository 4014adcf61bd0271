#include "scanning/nl80211/RadioChannels.h"

#include "model/Band.h"
#include "scanning/nl80211/Nl80211Socket.h"

#include <netlink/attr.h>

namespace tessara {

std::vector<std::uint32_t> readScannableFrequencies(unsigned radio)
{
    std::vector<std::uint32_t> frequencies;
    const auto attributes = [radio](nl_msg* message) {
        nla_put_u32(message, NL80211_ATTR_WIPHY, radio);
        // What the kernel says of a radio has outgrown a single message.
        nla_put_flag(message, NL80211_ATTR_SPLIT_WIPHY_DUMP);
    };
    Nl80211Socket socket;
    socket.dump(NL80211_CMD_GET_WIPHY, attributes, [&](const Nl80211Message& message) {
        addScannableFrequencies(message.attributes, frequencies);
    });
    return frequencies;
}

void addScannableFrequencies(const NetlinkAttributes& message,
                             std::vector<std::uint32_t>& frequencies)
{
    for (const NetlinkAttributes& band : message.list(NL80211_ATTR_WIPHY_BANDS)) {
        for (const NetlinkAttributes& channel : band.list(NL80211_BAND_ATTR_FREQS)) {
            const auto frequency = channel.u32(NL80211_FREQUENCY_ATTR_FREQ);
            if (frequency && channelOfFrequency(*frequency) &&
                !channel.contains(NL80211_FREQUENCY_ATTR_DISABLED))
                frequencies.push_back(*frequency);
        }
    }
}

} // namespace tessara
