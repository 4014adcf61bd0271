#pragma once

#include "foundation/ByteReader.h"

#include <QIODevice>
#include <QString>

#include <cstdio>
#include <memory>
#include <optional>

struct pcap;

namespace tessara {

/// One packet of a capture.
struct CapturedPacket {
    double time = 0; ///< seconds since 1970
    Bytes bytes;     ///< as much as was captured; valid until the next packet is read
    /// How many bytes at its end were not captured.
    std::size_t missingBytes = 0;
};

/// The packets of a capture in pcap or pcapng form, in the order of the file.
class CaptureFile {
public:
    /// Reads from the device's present place on. The device must outlive the object.
    explicit CaptureFile(QIODevice& device);
    ~CaptureFile();
    CaptureFile(const CaptureFile&) = delete;
    CaptureFile& operator=(const CaptureFile&) = delete;

    bool isOpen() const { return m_capture != nullptr; }
    /// The kind of header before each frame: a LINKTYPE_ number as tcpdump.org lists them.
    int linkType() const;
    QString linkTypeName() const;
    /// The next packet; none at the end, and after an error.
    std::optional<CapturedPacket> next();
    /// What went wrong, empty if nothing did.
    QString error() const { return m_error; }

private:
    struct Closer {
        void operator()(pcap* capture) const;
    };

    static ssize_t readFromDevice(void* captureFile, char* buffer, std::size_t size);
    void fail(const char* reason);

    QIODevice& m_device;
    bool m_deviceFailed = false;
    qint64 m_bytesRead = 0;
    std::unique_ptr<pcap, Closer> m_capture;
    QString m_error;
};

} // namespace tessara
