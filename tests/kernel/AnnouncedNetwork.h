#pragma once

#include "model/ChannelWidth.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace tessara::kernel {

/// A network as hostapd was told to announce it.
struct AnnouncedNetwork {
    QString bssid;
    QByteArray ssid; ///< also when it is hidden
    bool isHidden = false;
    int channel = 0;
    ChannelWidth width = ChannelWidth::k20MHz;
    int beaconInterval = 0; ///< time units
    bool hasWEP = false;
};

/// The networks of a file of settings for hostapd: one, and one more for each `bss=`.
std::vector<AnnouncedNetwork> announcedNetworks(const QString& path);

/// The networks that are on the air during all tests.
std::vector<AnnouncedNetwork> standingNetworks();

} // namespace tessara::kernel
