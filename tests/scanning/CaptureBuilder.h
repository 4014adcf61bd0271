#pragma once

#include "foundation/ByteReader.h"
#include "scanning/recorded/ScanReader.h"

#include <QBuffer>
#include <QByteArray>
#include <QtEndian>

#include <zlib.h>

#include <memory>
#include <vector>

namespace tessara {

// Frames and captures made by hand, byte for byte.

inline Bytes bytesOf(const QByteArray& array)
{
    return {reinterpret_cast<const std::uint8_t*>(array.constData()),
            static_cast<std::size_t>(array.size())};
}

template <typename Number>
QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof(Number), Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

inline QByteArray element(int id, const QByteArray& content)
{
    return QByteArray(1, static_cast<char>(id)) + static_cast<char>(content.size()) + content;
}

inline QByteArray ssidElement(const char* name)
{
    return element(0, name);
}

inline QByteArray dsElement(int channel)
{
    return element(3, QByteArray(1, static_cast<char>(channel)));
}

/// A management frame whose body begins with the fixed fields of a beacon.
struct FrameToBuild {
    std::uint16_t control = 0x0080; ///< a beacon; 0x0050 is a probe response
    QByteArray bssid = QByteArray::fromHex("02aabbccdd01");
    std::uint16_t sequence = 0x1230;
    QByteArray htControl = {};
    std::uint16_t beaconInterval = 100;
    std::uint16_t capability = 0x0001;
    QByteArray elements = ssidElement("Net") + dsElement(6);
};

inline QByteArray build(const FrameToBuild& frame)
{
    return littleEndian(frame.control) + QByteArray(2, '\0') + QByteArray(6, '\xff') + frame.bssid +
           frame.bssid + littleEndian(frame.sequence) + frame.htControl + QByteArray(8, 'T') +
           littleEndian(frame.beaconInterval) + littleEndian(frame.capability) + frame.elements;
}

inline QByteArray withFCS(const QByteArray& frame)
{
    const auto bytes = bytesOf(frame);
    return frame + littleEndian(static_cast<quint32>(crc32_z(0, bytes.data(), bytes.size())));
}

/// A frame behind a radiotap header that gives the signal alone.
inline QByteArray withSignal(int dBm, const QByteArray& frame)
{
    return QByteArray::fromHex("0000090020000000") + static_cast<char>(dBm) + frame;
}

/// A frame behind a radiotap header that gives nothing.
inline QByteArray withoutSignal(const QByteArray& frame)
{
    return QByteArray::fromHex("0000080000000000") + frame;
}

struct PacketToBuild {
    double time;
    QByteArray bytes;
    int missing = 0;
};

/// A capture file in pcap form.
inline QByteArray capture(int linkType, const std::vector<PacketToBuild>& packets)
{
    QByteArray file = QByteArray::fromHex("d4c3b2a1020004000000000000000000ffff0000") +
                      littleEndian(static_cast<quint32>(linkType));
    for (const PacketToBuild& packet : packets) {
        const auto seconds = static_cast<quint32>(packet.time);
        const auto size = static_cast<quint32>(packet.bytes.size());
        file += littleEndian(seconds);
        file += littleEndian(static_cast<quint32>((packet.time - seconds) * 1e6));
        file += littleEndian(size);
        file += littleEndian(size + static_cast<quint32>(packet.missing));
        file += packet.bytes;
    }
    return file;
}

inline std::unique_ptr<QIODevice> inMemory(const QByteArray& bytes)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    return buffer;
}

inline std::vector<RecordedScan> allScans(ScanReader& reader)
{
    std::vector<RecordedScan> scans;
    while (auto scan = reader.next())
        scans.push_back(std::move(*scan));
    return scans;
}

} // namespace tessara
