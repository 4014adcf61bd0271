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

} // namespace tessara
