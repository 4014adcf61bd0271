#pragma once

#include "scanning/nl80211/BssEntry.h"

namespace tessara {

/// The noise by channel, of those channels for which the driver has measured it; mostly none.
ChannelNoise readChannelNoise(unsigned interfaceIndex);

/// Adds what a message of NL80211_CMD_GET_SURVEY says of its channel.
void addSurvey(const NetlinkAttributes& message, ChannelNoise& noise);

} // namespace tessara
