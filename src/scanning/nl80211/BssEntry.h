#pragma once

#include "scanning/CWNetwork.h"
#include "scanning/nl80211/BootTime.h"
#include "scanning/nl80211/NetlinkAttributes.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace tessara {

/// One entry of the kernel's list of networks (enum nl80211_bss). The kernel may hold two of one
/// BSSID: a beacon without a name beside a probe response with it, or an old and a new channel.
struct BssEntry {
    QString bssid;
    int frequency = 0; ///< centre of the primary channel, MHz
    QByteArray elements;
    int capability = 0; ///< IEEE Std 802.11-2020, 9.4.1.4
    int beaconInterval = 0;
    int rssi = 0;                     ///< dBm; 0 means no reading
    std::optional<BootTime> lastSeen; ///< none if the driver does not say
    bool isAssociated = false;        ///< the interface is associated with it

    /// The bytes of its name; empty if it hides it.
    QByteArray ssidData() const;
};

/// Reads a message of NL80211_CMD_GET_SCAN.
/// @param now   the time of reading, for drivers that give an age instead of a time
/// @return none if the message holds no network with a BSSID and a frequency
std::optional<BssEntry> bssEntry(const NetlinkAttributes& message, BootTime now);

/// The noise in dBm by the frequency of a channel in MHz.
using ChannelNoise = QHash<int, int>;

/// Entries as results of a scan.
/// @param seenSince leaves out what was last heard before; none takes all
/// @return of two of one BSSID the one with a name comes first, and then the one heard last.
/// Networks outside the bands that the program knows are left out, which is logged once.
std::vector<CWNetwork> scanResults(std::vector<BssEntry> entries, const ChannelNoise& noise,
                                   std::optional<BootTime> seenSince);

} // namespace tessara
