#include "scanning/nl80211/BssEntry.h"
#include "scanning/nl80211/InterfaceInfo.h"
#include "scanning/nl80211/Nl80211Message.h"
#include "scanning/nl80211/RadioChannels.h"
#include "scanning/nl80211/ScanProgress.h"
#include "scanning/nl80211/StationInfo.h"
#include "scanning/nl80211/SurveyNoise.h"

#include <vector>

using namespace tessara;

// Any bytes as a message of nl80211: every reader of messages takes them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<std::uint8_t> aligned(data, data + size);
    const auto message = nl80211Message(aligned);
    if (!message)
        return 0;
    ChannelNoise noise;
    addSurvey(message->attributes, noise);
    if (auto entry = bssEntry(message->attributes, 0))
        scanResults({std::move(*entry)}, noise, 0);
    std::vector<std::uint32_t> frequencies;
    addScannableFrequencies(message->attributes, frequencies);
    transmitRate(message->attributes);
    associatedBSSID(message->attributes);
    if (const auto info = interfaceInfo(message->attributes))
        ScanProgress::ofOurs(*info).take(*message);
    return 0;
}
