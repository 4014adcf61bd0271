#include "scanning/nl80211/InterfaceInfo.h"

#include "scanning/nl80211/Nl80211Socket.h"

#include <algorithm>
#include <iterator>

namespace tessara {

namespace {

struct WidthCode {
    nl80211_chan_width code;
    ChannelWidth width;
};

constexpr WidthCode kWidths[] = {
    {NL80211_CHAN_WIDTH_20_NOHT, ChannelWidth::k20MHz},
    {NL80211_CHAN_WIDTH_20, ChannelWidth::k20MHz},
    {NL80211_CHAN_WIDTH_40, ChannelWidth::k40MHz},
    {NL80211_CHAN_WIDTH_80, ChannelWidth::k80MHz},
    {NL80211_CHAN_WIDTH_80P80, ChannelWidth::k80Plus80MHz},
    {NL80211_CHAN_WIDTH_160, ChannelWidth::k160MHz},
};

ChannelWidth widthOf(std::optional<std::uint32_t> code)
{
    const auto* known = std::ranges::find_if(kWidths, [&](auto& w) { return w.code == code; });
    return known == std::end(kWidths) ? ChannelWidth::kUnknown : known->width;
}

std::optional<CWChannel> channelOf(const NetlinkAttributes& message)
{
    const auto frequency = message.u32(NL80211_ATTR_WIPHY_FREQ);
    const auto number = frequency ? channelOfFrequency(*frequency) : std::nullopt;
    if (!number)
        return std::nullopt;
    return CWChannel{*number, channelBandForChannel(*number),
                     widthOf(message.u32(NL80211_ATTR_CHANNEL_WIDTH))};
}

} // namespace

std::optional<InterfaceInfo> interfaceInfo(const NetlinkAttributes& message)
{
    const auto index = message.u32(NL80211_ATTR_IFINDEX);
    const auto radio = message.u32(NL80211_ATTR_WIPHY);
    const QByteArray name = message.bytes(NL80211_ATTR_IFNAME);
    if (!index || !radio || name.isEmpty())
        return std::nullopt;
    InterfaceInfo info;
    info.index = *index;
    info.radio = *radio;
    info.name = QString::fromUtf8(name.constData(), qstrnlen(name.constData(), name.size()));
    info.isStation = message.u32(NL80211_ATTR_IFTYPE) == NL80211_IFTYPE_STATION;
    info.ssidData = message.bytes(NL80211_ATTR_SSID);
    info.channel = channelOf(message);
    return info;
}

std::vector<InterfaceInfo> readInterfaces()
{
    std::vector<InterfaceInfo> interfaces;
    Nl80211Socket socket;
    socket.dump(
        NL80211_CMD_GET_INTERFACE, [](nl_msg*) {},
        [&](const Nl80211Message& message) {
            auto info = interfaceInfo(message.attributes);
            if (info && info->isStation)
                interfaces.push_back(std::move(*info));
        });
    std::ranges::sort(interfaces, {}, &InterfaceInfo::index);
    return interfaces;
}

std::optional<InterfaceInfo> readInterface(const QString& name)
{
    for (InterfaceInfo& info : readInterfaces()) {
        if (info.name == name)
            return std::move(info);
    }
    return std::nullopt;
}

} // namespace tessara
