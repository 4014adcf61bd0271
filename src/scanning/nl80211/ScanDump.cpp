#include "scanning/nl80211/ScanDump.h"

#include "scanning/nl80211/Nl80211Socket.h"

namespace tessara {

namespace {

constexpr int kMaxReadings = 5;

} // namespace

ScanDump readScanDump(unsigned interfaceIndex)
{
    ScanDump result;
    for (int reading = 0; reading < kMaxReadings; ++reading) {
        result.entries.clear();
        std::optional<std::uint32_t> generation;
        bool changed = false;
        Nl80211Socket socket;
        const NetlinkReply reply = socket.dump(
            NL80211_CMD_GET_SCAN, ofInterface(interfaceIndex), [&](const Nl80211Message& message) {
                const auto current = message.attributes.u32(NL80211_ATTR_GENERATION);
                changed = changed || (generation && current != generation);
                generation = current;
                if (auto entry = bssEntry(message.attributes, bootTimeNow()))
                    result.entries.push_back(std::move(*entry));
            });
        result.error = reply.error;
        if (reply.error != 0 || (!reply.interrupted && !changed))
            break;
    }
    return result;
}

} // namespace tessara
