#include "model/ColumnRegistry.h"
#include "model/TSNetwork.h"

using namespace tessara;

// Element bytes of any kind: two beacons of one network, one after the other, and all that is
// shown of them. The first byte says where the first beacon ends, the second the channel.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const QByteArray elements(reinterpret_cast<const char*>(data + 2), static_cast<int>(size) - 2);
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("2:0:0:0:0:1");
    dictionary.channelNumber = data[1];
    dictionary.informationElementData = elements.left(data[0]);
    TSNetwork network(dictionary, 0);
    dictionary.informationElementData = elements.mid(data[0]);
    network.setNetwork(dictionary);
    for (const Column& column : columnRegistry()) {
        column.sortKey(network);
        column.text(network, {});
    }
    network.humanReadableDataRates();
    network.humanReadableChannelRange();
    network.estimatedMCS();
    network.apid();
    return 0;
}
