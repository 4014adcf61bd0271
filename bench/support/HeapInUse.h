#pragma once

#include <malloc.h>

namespace tessara {

/// Bytes of heap in use by this process.
inline double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

} // namespace tessara
