#include "scanning/nl80211/StationInfo.h"

#include "scanning/nl80211/Nl80211Socket.h"

#include <algorithm>

namespace tessara {

namespace {

/// Whether a station has a flag; none where the kernel does not tell.
std::optional<bool> hasFlag(const NetlinkAttributes& station, nl80211_sta_flags flag)
{
    // nl80211_sta_flag_update: a mask of the flags that are known, then their values.
    const QByteArray flags = station.bytes(NL80211_STA_INFO_STA_FLAGS);
    nl80211_sta_flag_update update{};
    if (flags.size() < static_cast<qsizetype>(sizeof(update)))
        return std::nullopt;
    std::copy_n(flags.constData(), sizeof(update), reinterpret_cast<char*>(&update));
    const std::uint32_t bit = 1U << flag;
    return (update.mask & bit) != 0 ? std::optional((update.set & bit) != 0) : std::nullopt;
}

bool isDirectPeer(const NetlinkAttributes& station)
{
    return hasFlag(station, NL80211_STA_FLAG_TDLS_PEER).value_or(false);
}

/// What the first station of an interface for which there is such a value says.
template <typename Value>
Value firstOfStations(unsigned interfaceIndex, Value (*read)(const NetlinkAttributes&))
{
    Value value;
    Nl80211Socket socket;
    socket.dump(NL80211_CMD_GET_STATION, ofInterface(interfaceIndex),
                [&](const Nl80211Message& message) {
                    if (!value)
                        value = read(message.attributes);
                });
    return value;
}

} // namespace

std::optional<QString> readAssociatedBSSID(unsigned interfaceIndex)
{
    return firstOfStations(interfaceIndex, associatedBSSID);
}

std::optional<QString> associatedBSSID(const NetlinkAttributes& message)
{
    constexpr qsizetype kAddressLength = 6;
    const NetlinkAttributes station = message.nested(NL80211_ATTR_STA_INFO);
    const QByteArray address = message.bytes(NL80211_ATTR_MAC);
    if (address.size() != kAddressLength || isDirectPeer(station) ||
        !hasFlag(station, NL80211_STA_FLAG_ASSOCIATED).value_or(true))
        return std::nullopt;
    return QString::fromLatin1(address.toHex(':'));
}

std::optional<double> readTransmitRate(unsigned interfaceIndex)
{
    return firstOfStations(interfaceIndex, transmitRate);
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
