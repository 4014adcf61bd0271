#pragma once

#include "scanning/recorded/ScanReader.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace tessara {

/// The fuzzer's bytes in the place of a file. They are not copied.
inline std::unique_ptr<QIODevice> deviceOf(const std::uint8_t* data, std::size_t size)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    buffer->open(QIODevice::ReadOnly);
    return buffer;
}

/// Reads to the end, and demands what every reader promises: times within bounds, and after the
/// end nothing more; an error is one line.
inline void readAllScans(ScanReader& reader)
{
    while (const auto scan = reader.next()) {
        if (!(scan->time >= -RecordedScan::kLatestTime && scan->time <= RecordedScan::kLatestTime))
            std::abort();
    }
    if (reader.next() || reader.error().contains(u'\n'))
        std::abort();
}

} // namespace tessara
