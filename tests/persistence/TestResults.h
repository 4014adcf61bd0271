#pragma once

#include "model/TSNetwork.h"
#include "persistence/ResultsArchive.h"

namespace tessara {

inline const WorkProgress kGoOn = [](double) { return true; };

/// Records that were scanned, each with a history.
inline NetworkList scannedNetworks(int count, int samples = 3)
{
    constexpr double kStart = 1'700'000'000;
    NetworkList networks;
    for (int number = 0; number < count; ++number) {
        ScanDictionary dictionary;
        dictionary.bssid =
            QStringLiteral("2:0:0:0:%1:%2").arg(number >> 8, 0, 16).arg(number & 0xff, 0, 16);
        dictionary.channelNumber = 6;
        auto network = std::make_shared<TSNetwork>(dictionary, kStart);
        for (int i = 0; i < samples; ++i)
            network->addDataPoint({-60 - i % 20, -92, -1, -1, kStart + i});
        networks.push_back(std::move(network));
    }
    return networks;
}

} // namespace tessara
