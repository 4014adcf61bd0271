#include "scanning/recorded/RecordingReader.h"
#include "model/ColumnRegistry.h"
#include "scanning/recorded/Replay.h"

#include "ReadAllScans.h"

using namespace tessara;

// A recording of any bytes, merged, and shown in every column.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    RecordingReader reader(deviceOf(data, size), QStringLiteral("fuzz"));
    const Replay result = replay(reader, {std::nullopt, 300});
    for (const NetworkPtr& network : result.networks) {
        for (const Column& column : columnRegistry()) {
            column.sortKey(*network);
            for (const bool isScanning : {false, true})
                column.text(*network, {.dBm = isScanning, .isScanning = isScanning});
        }
    }
    return 0;
}
