#include "scanning/nl80211/SurveyNoise.h"

#include "scanning/nl80211/Nl80211Socket.h"

namespace tessara {

ChannelNoise readChannelNoise(unsigned interfaceIndex)
{
    ChannelNoise noise;
    Nl80211Socket socket;
    // A driver without a survey answers with an error, which says the same as an empty list.
    socket.dump(NL80211_CMD_GET_SURVEY, ofInterface(interfaceIndex),
                [&](const Nl80211Message& message) { addSurvey(message.attributes, noise); });
    return noise;
}

void addSurvey(const NetlinkAttributes& message, ChannelNoise& noise)
{
    const NetlinkAttributes survey = message.nested(NL80211_ATTR_SURVEY_INFO);
    const auto frequency = survey.u32(NL80211_SURVEY_INFO_FREQUENCY);
    const auto dBm = survey.s8(NL80211_SURVEY_INFO_NOISE);
    if (frequency && dBm && *dBm < 0)
        noise.insert(static_cast<int>(*frequency), *dBm);
}

} // namespace tessara
