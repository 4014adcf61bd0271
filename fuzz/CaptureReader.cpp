#include "scanning/capture/CaptureReader.h"

#include "ReadAllScans.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tessara;
    CaptureReader reader(deviceOf(data, size), QStringLiteral("fuzz"), 3.0);
    readAllScans(reader);
    return 0;
}
