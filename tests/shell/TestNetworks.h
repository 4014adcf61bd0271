#pragma once

#include "model/TSNetwork.h"

namespace tessara {

/// A record of a network that was seen once, at time 0, with a BSSID and a name made of a number.
inline NetworkPtr testNetwork(int number, std::int64_t rssi = -60)
{
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("02:00:00:00:%1:%2")
                           .arg(number / 256, 2, 16, QLatin1Char('0'))
                           .arg(number % 256, 2, 16, QLatin1Char('0'));
    dictionary.ssid = QStringLiteral("Net %1").arg(number);
    dictionary.channelNumber = 36;
    dictionary.rssiValue = rssi;
    auto network = std::make_shared<TSNetwork>(dictionary, 0);
    network->addDataPoint({rssi, -92, -1, -1, 0});
    return network;
}

inline NetworkList testNetworks(int count)
{
    NetworkList networks;
    for (int number = 0; number < count; ++number)
        networks.push_back(testNetwork(number));
    return networks;
}

} // namespace tessara
