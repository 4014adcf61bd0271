#include "enrichment/StationAddresses.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // As on the wire (RFC 6763, 6.1): each string after its length.
    QByteArrayList txt;
    while (size > 0) {
        const std::size_t length = std::min<std::size_t>(data[0], size - 1);
        txt.append(
            QByteArray(reinterpret_cast<const char*>(data + 1), static_cast<qsizetype>(length)));
        data += 1 + length;
        size -= 1 + length;
    }
    for (const QString& address : tessara::stationAddresses(txt)) {
        for (const char16_t never : {u'-', u'=', u','}) {
            if (address.contains(QChar(never)))
                std::abort();
        }
    }
    return 0;
}
