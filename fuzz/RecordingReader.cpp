#include "scanning/recorded/RecordingReader.h"

#include "ReadAllScans.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tessara;
    RecordingReader reader(deviceOf(data, size), QStringLiteral("fuzz"));
    readAllScans(reader);
    return 0;
}
