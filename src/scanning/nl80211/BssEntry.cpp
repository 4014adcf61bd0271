#include "scanning/nl80211/BssEntry.h"

#include "elements/ElementRun.h"
#include "foundation/Logging.h"

#include <linux/nl80211.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <mutex>

namespace tessara {

namespace {

constexpr int kBSSIDLength = 6;
// The kernel's times of sighting are this exact.
constexpr BootTime kSightingAccuracy = 20'000'000;

QByteArray elementsOf(const NetlinkAttributes& bss)
{
    // Where a probe response was heard these are its elements, otherwise mostly the beacon's.
    QByteArray elements = bss.bytes(NL80211_BSS_INFORMATION_ELEMENTS);
    return elements.isEmpty() ? bss.bytes(NL80211_BSS_BEACON_IES) : elements;
}

int rssiOf(const NetlinkAttributes& bss)
{
    // NL80211_BSS_SIGNAL_UNSPEC, a number without a unit, is no reading in dBm.
    const auto hundredths = bss.s32(NL80211_BSS_SIGNAL_MBM);
    return hundredths ? static_cast<int>(std::lround(*hundredths / 100.0)) : 0;
}

std::optional<BootTime> lastSeenOf(const NetlinkAttributes& bss, BootTime now)
{
    if (const auto seen = bss.u64(NL80211_BSS_LAST_SEEN_BOOTTIME))
        return static_cast<BootTime>(
            std::min<std::uint64_t>(*seen, std::numeric_limits<BootTime>::max()));
    if (const auto age = bss.u32(NL80211_BSS_SEEN_MS_AGO))
        return now - BootTime{*age} * 1'000'000;
    return std::nullopt;
}

std::optional<CWNetwork> networkOf(const BssEntry& entry, const ChannelNoise& noise)
{
    const auto channel = channelOfFrequency(entry.frequency);
    if (!channel)
        return std::nullopt;
    CWNetwork network;
    network.bssid = entry.bssid;
    network.ssid = networkName(ElementRun(entry.elements));
    network.wlanChannel = {*channel, channelBandForChannel(*channel), ChannelWidth::kUnknown};
    network.rssiValue = entry.rssi;
    network.noiseMeasurement = noise.value(entry.frequency, 0);
    network.informationElementData = entry.elements;
    network.ibss = (entry.capability & kCapabilityIBSS) != 0;
    network.beaconInterval = entry.beaconInterval;
    network.privacy = (entry.capability & kCapabilityPrivacy) != 0;
    return network;
}

bool isPreferred(const BssEntry& a, const BssEntry& b)
{
    const bool aIsNamed = !a.ssidData().isEmpty();
    const bool bIsNamed = !b.ssidData().isEmpty();
    return aIsNamed != bIsNamed ? aIsNamed : a.lastSeen > b.lastSeen;
}

void logForeignBand(int frequency)
{
    static std::once_flag once;
    std::call_once(once, [&] {
        qCWarning(lcScanning,
                  "Networks outside the 2.4 and 5 GHz bands are left out (here one at %d MHz).",
                  frequency);
    });
}

} // namespace

QByteArray BssEntry::ssidData() const
{
    const auto ssid = ElementRun(elements).find(ElementID::kSSID);
    if (!ssid || std::ranges::all_of(ssid->content, [](std::uint8_t byte) { return byte == 0; }))
        return {};
    return QByteArray(reinterpret_cast<const char*>(ssid->content.data()),
                      static_cast<qsizetype>(ssid->content.size()));
}

std::optional<BssEntry> bssEntry(const NetlinkAttributes& message, BootTime now)
{
    const NetlinkAttributes bss = message.nested(NL80211_ATTR_BSS);
    const QByteArray bssid = bss.bytes(NL80211_BSS_BSSID);
    const auto frequency = bss.u32(NL80211_BSS_FREQUENCY);
    if (bssid.size() != kBSSIDLength || !frequency)
        return std::nullopt;
    BssEntry entry;
    entry.bssid = QString::fromLatin1(bssid.toHex(':'));
    entry.frequency = static_cast<int>(*frequency);
    entry.elements = elementsOf(bss);
    entry.capability = bss.u16(NL80211_BSS_CAPABILITY).value_or(0);
    entry.beaconInterval = bss.u16(NL80211_BSS_BEACON_INTERVAL).value_or(0);
    entry.rssi = rssiOf(bss);
    entry.lastSeen = lastSeenOf(bss, now);
    entry.isAssociated = bss.u32(NL80211_BSS_STATUS) == NL80211_BSS_STATUS_ASSOCIATED;
    return entry;
}

std::vector<CWNetwork> scanResults(std::vector<BssEntry> entries, const ChannelNoise& noise,
                                   std::optional<BootTime> seenSince)
{
    if (seenSince) {
        std::erase_if(entries, [&](const BssEntry& entry) {
            return entry.lastSeen && *entry.lastSeen < *seenSince - kSightingAccuracy;
        });
    }
    std::ranges::stable_sort(entries, isPreferred);
    std::vector<CWNetwork> networks;
    for (const BssEntry& entry : entries) {
        if (auto network = networkOf(entry, noise))
            networks.push_back(std::move(*network));
        else
            logForeignBand(entry.frequency);
    }
    return networks;
}

} // namespace tessara
