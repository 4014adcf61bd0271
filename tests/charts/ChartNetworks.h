#pragma once

#include "model/TSNetwork.h"

#include <initializer_list>
#include <utility>

namespace tessara {

/// The time of the newest scan in tests of charts: 2023-11-14 22:13:20 UTC.
inline constexpr double kReferenceTime = 1'700'000'000;

inline TSDataPoint sampleAt(double age, std::int64_t rssi, std::int64_t noise = -92)
{
    return {rssi, noise, -1, -1, kReferenceTime - age};
}

/// A record of a network made of a number, with samples by age and signal, the oldest first.
inline NetworkPtr chartNetwork(int number,
                               std::initializer_list<std::pair<double, std::int64_t>> samples)
{
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("02:00:00:00:00:%1").arg(number, 2, 16, QLatin1Char('0'));
    dictionary.ssid = QStringLiteral("Net %1").arg(number);
    dictionary.channelNumber = 36;
    auto network = std::make_shared<TSNetwork>(dictionary, kReferenceTime);
    for (const auto& [age, rssi] : samples)
        network->addDataPoint(sampleAt(age, rssi));
    network->setColor(QColor(10 * number, 200, 100));
    return network;
}

/// A network made of a number, seen once, on a channel that its elements tell.
/// @param width 80 and 160 MHz are told in IEEE Std 802.11-2020, 9.4.2.158
/// @param offset of the secondary channel: 1 above, 3 below
/// @param maxRate in 500 kbit/s; 0 tells none
inline NetworkPtr channelNetwork(int number, int channel, std::int64_t rssi,
                                 ChannelWidth width = ChannelWidth::kUnknown, int offset = 0,
                                 int maxRate = 0)
{
    QByteArray elements;
    if (maxRate > 0)
        elements += QByteArray("\x01\x01", 2) + static_cast<char>(maxRate);
    if (width != ChannelWidth::kUnknown) {
        const int isWide = width == ChannelWidth::k20MHz ? 0 : 4;
        elements += QByteArray("\x3d\x16", 2) + static_cast<char>(channel) +
                    static_cast<char>(isWide | offset) + QByteArray(20, '\0');
    }
    if (width > ChannelWidth::k40MHz)
        elements += QByteArray("\xc0\x05", 2) + static_cast<char>(static_cast<int>(width) - 2) +
                    QByteArray(4, '\0');
    const NetworkPtr network = chartNetwork(number, {{0, rssi}});
    ScanDictionary dictionary = network->network();
    dictionary.channelNumber = channel;
    dictionary.informationElementData = elements;
    auto placed = std::make_shared<TSNetwork>(dictionary, kReferenceTime);
    placed->addDataPoint(sampleAt(0, rssi));
    placed->setColor(network->color());
    return placed;
}

} // namespace tessara
