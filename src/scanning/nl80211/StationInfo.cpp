#include "scanning/nl80211/StationInfo.h"

#include "scanning/nl80211/Nl80211Socket.h"

namespace tessara {

namespace {

// nl80211_sta_flag_update: a mask of the flags that are known, then their values.
bool isDirectPeer(const NetlinkAttributes& station)
{
    constexpr std::uint64_t kFlag = 1U << NL80211_STA_FLAG_TDLS_PEER;
    const QByteArray flags = station.bytes(NL80211_STA_INFO_STA_FLAGS);
    nl80211_sta_flag_update update{};
    if (flags.size() < static_cast<qsizetype>(sizeof(update)))
        return false;
    std::copy_n(flags.constData(), sizeof(update), reinterpret_cast<char*>(&update));
    return (update.mask & update.set & kFlag) != 0;
}

} // namespace

std::optional<double> readTransmitRate(unsigned interfaceIndex)
{
    std::optional<double> rate;
    Nl80211Socket socket;
    socket.dump(NL80211_CMD_GET_STATION, ofInterface(interfaceIndex),
                [&](const Nl80211Message& message) {
                    if (!rate)
                        rate = transmitRate(message.attributes);
                });
    return rate;
}

std::optional<double> transmitRate(const NetlinkAttributes& message)
{
    constexpr double kUnitsPerMbit = 10; // rates are counted in 100 kbit/s
    const NetlinkAttributes station = message.nested(NL80211_ATTR_STA_INFO);
    if (isDirectPeer(station))
        return std::nullopt;
    const NetlinkAttributes rate = station.nested(NL80211_STA_INFO_TX_BITRATE);
    // Sixteen bits end at 6553.5 Mbit/s; faster rates are given in the wide form only.
    if (const auto wide = rate.u32(NL80211_RATE_INFO_BITRATE32))
        return *wide / kUnitsPerMbit;
    if (const auto narrow = rate.u16(NL80211_RATE_INFO_BITRATE))
        return *narrow / kUnitsPerMbit;
    return std::nullopt;
}

} // namespace tessara
