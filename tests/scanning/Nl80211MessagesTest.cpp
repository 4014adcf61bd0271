#include "scanning/NetlinkMessageBuilder.h"
#include "scanning/nl80211/InterfaceInfo.h"
#include "scanning/nl80211/RadioChannels.h"
#include "scanning/nl80211/ScanProgress.h"
#include "scanning/nl80211/StationInfo.h"
#include "scanning/nl80211/SurveyNoise.h"

#include <gtest/gtest.h>

using namespace tessara;

namespace {

std::optional<double> rateOf(const std::function<void(NetlinkMessageBuilder&)>& rate,
                             std::optional<nl80211_sta_flag_update> flags = std::nullopt)
{
    NetlinkMessageBuilder builder(NL80211_CMD_NEW_STATION);
    builder.nest(NL80211_ATTR_STA_INFO, [&](NetlinkMessageBuilder& station) {
        if (flags)
            station.put(NL80211_STA_INFO_STA_FLAGS, *flags);
        station.nest(NL80211_STA_INFO_TX_BITRATE, rate);
    });
    return transmitRate(builder.attributes());
}

ChannelNoise noiseOf(const std::function<void(NetlinkMessageBuilder&)>& survey)
{
    ChannelNoise noise;
    NetlinkMessageBuilder builder(NL80211_CMD_NEW_SURVEY_RESULTS);
    builder.nest(NL80211_ATTR_SURVEY_INFO, survey);
    addSurvey(builder.attributes(), noise);
    return noise;
}

NetlinkMessageBuilder interfaceMessage()
{
    NetlinkMessageBuilder builder(NL80211_CMD_NEW_INTERFACE);
    builder.put<std::uint32_t>(NL80211_ATTR_IFINDEX, 3);
    builder.put<std::uint32_t>(NL80211_ATTR_WIPHY, 1);
    builder.put<std::uint32_t>(NL80211_ATTR_IFTYPE, NL80211_IFTYPE_STATION);
    builder.putBytes(NL80211_ATTR_IFNAME, QByteArray("wlan0", 6)); // with its terminator
    return builder;
}

Nl80211Message event(NetlinkMessageBuilder& builder, std::uint32_t radio, std::uint32_t interface)
{
    builder.put(NL80211_ATTR_WIPHY, radio).put(NL80211_ATTR_IFINDEX, interface);
    return builder.message();
}

} // namespace

TEST(TransmitRate, TakesTheWideNumberWhereThereIsOne)
{
    const auto narrow = [](auto& rate) {
        rate.put(NL80211_RATE_INFO_BITRATE, std::uint16_t{8667});
    };
    const auto wide = [](auto& rate) {
        rate.put(NL80211_RATE_INFO_BITRATE32, std::uint32_t{115'294});
    };
    EXPECT_EQ(rateOf(narrow), 866.7);
    EXPECT_EQ(rateOf([&](auto& rate) {
                  narrow(rate);
                  wide(rate);
              }),
              11529.4);
    EXPECT_EQ(rateOf([](auto&) {}), std::nullopt);
}

TEST(TransmitRate, IsNotThatOfADirectPeer)
{
    const auto rate = [](auto& r) { r.put(NL80211_RATE_INFO_BITRATE, std::uint16_t{60}); };
    constexpr std::uint32_t kPeer = 1U << NL80211_STA_FLAG_TDLS_PEER;
    EXPECT_EQ(rateOf(rate, nl80211_sta_flag_update{kPeer, kPeer}), std::nullopt);
    EXPECT_EQ(rateOf(rate, nl80211_sta_flag_update{kPeer, 0}), 6.0);
    EXPECT_EQ(rateOf(rate, nl80211_sta_flag_update{0, kPeer}), 6.0) << "the flag is not known";
}

TEST(AssociatedBSSID, IsThatOfTheAccessPointOnceAssociated)
{
    const auto bssidOf = [](const QByteArray& address,
                            std::optional<nl80211_sta_flag_update> flags) {
        NetlinkMessageBuilder builder(NL80211_CMD_NEW_STATION);
        builder.putBytes(NL80211_ATTR_MAC, address);
        builder.nest(NL80211_ATTR_STA_INFO, [&](auto& station) {
            if (flags)
                station.put(NL80211_STA_INFO_STA_FLAGS, *flags);
        });
        return associatedBSSID(builder.attributes());
    };
    constexpr std::uint32_t kAssociated = 1U << NL80211_STA_FLAG_ASSOCIATED;
    constexpr std::uint32_t kPeer = 1U << NL80211_STA_FLAG_TDLS_PEER;
    const QByteArray address = QByteArray::fromHex("02000000001f");
    const auto known = QStringLiteral("02:00:00:00:00:1f");
    using Flags = nl80211_sta_flag_update;
    EXPECT_EQ(bssidOf(address, Flags{kAssociated, kAssociated}), known);
    EXPECT_EQ(bssidOf(address, std::nullopt), known) << "an old kernel tells no flags";
    EXPECT_EQ(bssidOf(address, Flags{kAssociated, 0}), std::nullopt) << "still authenticating";
    EXPECT_EQ(bssidOf(address, Flags{kAssociated | kPeer, kAssociated | kPeer}), std::nullopt);
    EXPECT_EQ(bssidOf(address.first(5), std::nullopt), std::nullopt);
}

TEST(SurveyNoise, IsASignedNumberThatMayBeMissing)
{
    const auto frequency = [](auto& s) {
        s.put(NL80211_SURVEY_INFO_FREQUENCY, std::uint32_t{2412});
    };
    const auto both = [&](std::uint8_t value) {
        return noiseOf([&](auto& s) {
            frequency(s);
            s.put(NL80211_SURVEY_INFO_NOISE, value);
        });
    };
    EXPECT_EQ(both(0xa4), (ChannelNoise{{2412, -92}}));
    EXPECT_TRUE(both(0).isEmpty()) << "not measured";
    EXPECT_TRUE(both(10).isEmpty()) << "no noise is above 0 dBm";
    EXPECT_TRUE(noiseOf(frequency).isEmpty());
}

TEST(InterfaceInfo, IsReadWithWhatTheAssociationAdds)
{
    NetlinkMessageBuilder idle = interfaceMessage();
    const auto unassociated = interfaceInfo(idle.attributes());
    ASSERT_TRUE(unassociated);
    EXPECT_EQ(unassociated->name, QStringLiteral("wlan0"));
    EXPECT_TRUE(unassociated->isStation);
    EXPECT_TRUE(unassociated->ssidData.isEmpty());
    EXPECT_EQ(unassociated->channel, std::nullopt);

    const struct {
        std::uint32_t frequency, code;
        std::optional<CWChannel> channel;
    } cases[] = {
        {2412, NL80211_CHAN_WIDTH_20_NOHT, CWChannel{1, Band::k2Dot4GHz, ChannelWidth::k20MHz}},
        {5180, NL80211_CHAN_WIDTH_80P80, CWChannel{36, Band::k5GHz, ChannelWidth::k80Plus80MHz}},
        {5180, 99, CWChannel{36, Band::k5GHz, ChannelWidth::kUnknown}},
        {5975, NL80211_CHAN_WIDTH_80, std::nullopt},
    };
    for (const auto& c : cases) {
        NetlinkMessageBuilder builder = interfaceMessage();
        builder.putBytes(NL80211_ATTR_SSID, "Home");
        builder.put(NL80211_ATTR_WIPHY_FREQ, c.frequency);
        builder.put(NL80211_ATTR_CHANNEL_WIDTH, c.code);
        const auto info = interfaceInfo(builder.attributes());
        EXPECT_EQ(info->ssidData, "Home");
        EXPECT_EQ(info->channel, c.channel) << c.frequency << ' ' << c.code;
    }
}

TEST(InterfaceInfo, IsNoneForWhatIsNoNetworkInterface)
{
    NetlinkMessageBuilder empty;
    EXPECT_FALSE(interfaceInfo(empty.attributes()));
    NetlinkMessageBuilder peerToPeerDevice;
    peerToPeerDevice.put<std::uint32_t>(NL80211_ATTR_WIPHY, 0);
    peerToPeerDevice.put<std::uint64_t>(NL80211_ATTR_WDEV, 2);
    EXPECT_FALSE(interfaceInfo(peerToPeerDevice.attributes()));
}

TEST(RadioChannels, AreThoseOfTheShownBandsThatMayBeUsed)
{
    const auto channel = [](std::uint32_t frequency, bool disabled) {
        return [=](NetlinkMessageBuilder& c) {
            c.put(NL80211_FREQUENCY_ATTR_FREQ, frequency);
            if (disabled)
                c.putBytes(NL80211_FREQUENCY_ATTR_DISABLED, {});
        };
    };
    NetlinkMessageBuilder builder(NL80211_CMD_NEW_WIPHY);
    builder.nest(NL80211_ATTR_WIPHY_BANDS, [&](NetlinkMessageBuilder& bands) {
        bands.nest(NL80211_BAND_2GHZ, [&](NetlinkMessageBuilder& band) {
            band.nest(NL80211_BAND_ATTR_FREQS, [&](NetlinkMessageBuilder& channels) {
                channels.nest(0, channel(2412, false));
                channels.nest(1, channel(2484, true));
            });
        });
        bands.nest(NL80211_BAND_6GHZ, [&](NetlinkMessageBuilder& band) {
            band.nest(NL80211_BAND_ATTR_FREQS, [&](NetlinkMessageBuilder& channels) {
                channels.nest(0, channel(5975, false));
            });
        });
    });
    // The kernel spreads the channels over several messages.
    std::vector<std::uint32_t> frequencies = {2437};
    addScannableFrequencies(builder.attributes(), frequencies);
    EXPECT_EQ(frequencies, (std::vector<std::uint32_t>{2437, 2412}));
}

TEST(ScanProgress, EndsWithTheEndOfItsOwnScanAlone)
{
    InterfaceInfo wlan0;
    wlan0.radio = 1;
    wlan0.index = 3;
    struct Event {
        int command;
        std::uint32_t radio, interface;
    };
    constexpr int kStart = NL80211_CMD_TRIGGER_SCAN;
    constexpr int kResults = NL80211_CMD_NEW_SCAN_RESULTS;
    constexpr int kAborted = NL80211_CMD_SCAN_ABORTED;
    const struct {
        const char* what;
        bool ours;
        std::vector<Event> events;
        std::optional<ScanEnd> end;
    } cases[] = {
        {"done", true, {{kStart, 1, 3}, {kResults, 1, 3}}, ScanEnd::kFinished},
        {"given up", true, {{kStart, 1, 3}, {kAborted, 1, 3}}, ScanEnd::kAborted},
        {"still under way", true, {{kStart, 1, 3}}, std::nullopt},
        {"end of an earlier scan", true, {{kResults, 1, 3}, {kStart, 1, 3}}, std::nullopt},
        {"another radio", true, {{kStart, 1, 3}, {kResults, 2, 3}}, std::nullopt},
        {"another interface", true, {{kStart, 1, 3}, {kResults, 1, 4}}, std::nullopt},
        {"others' scan, begun before", false, {{kResults, 1, 4}}, ScanEnd::kFinished},
        {"others' scan, other radio", false, {{kResults, 2, 4}}, std::nullopt},
    };
    for (const auto& c : cases) {
        ScanProgress progress =
            c.ours ? ScanProgress::ofOurs(wlan0) : ScanProgress::ofOthers(wlan0);
        std::optional<ScanEnd> end;
        for (const Event& e : c.events) {
            NetlinkMessageBuilder builder(e.command);
            end = progress.take(event(builder, e.radio, e.interface));
        }
        EXPECT_EQ(end, c.end) << c.what;
    }
}

TEST(NetlinkAttributes, TakeTheFirstOfTwoOfOneType)
{
    NetlinkMessageBuilder builder;
    builder.put<std::uint32_t>(1, 10).put<std::uint32_t>(1, 20);
    EXPECT_EQ(builder.attributes().u32(1), 10U);
}
