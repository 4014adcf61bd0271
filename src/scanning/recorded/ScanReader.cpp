#include "scanning/recorded/ScanReader.h"

#include "model/TSDataPoint.h"

#include <algorithm>

namespace tessara {

bool recordsSignal(const ScanResults& networks)
{
    return std::ranges::none_of(networks, [](const ScanDictionary& network) {
        return network.rssiValue == TSDataPoint::kNoData;
    });
}

} // namespace tessara
