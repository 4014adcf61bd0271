#include "scanning/capture/CaptureFile.h"

#include "foundation/Localized.h"

#include <pcap/pcap.h>

namespace tessara {

void CaptureFile::Closer::operator()(pcap* capture) const
{
    pcap_close(capture);
}

CaptureFile::CaptureFile(QIODevice& device)
    : m_device(device)
{
    std::FILE* stream = fopencookie(this, "r", {readFromDevice, nullptr, nullptr, nullptr});
    char reason[PCAP_ERRBUF_SIZE] = "";
    m_capture.reset(pcap_fopen_offline(stream, reason)); // closes the stream in its own time
    if (m_capture)
        return;
    std::fclose(stream);
    fail(reason);
}

CaptureFile::~CaptureFile() = default;

int CaptureFile::linkType() const
{
    return pcap_datalink(m_capture.get());
}

QString CaptureFile::linkTypeName() const
{
    const char* name = pcap_datalink_val_to_name(linkType());
    return name ? QString::fromLatin1(name) : QString::number(linkType());
}

std::optional<CapturedPacket> CaptureFile::next()
{
    if (!m_capture || !m_error.isEmpty())
        return std::nullopt;
    pcap_pkthdr* header = nullptr;
    const u_char* bytes = nullptr;
    const int outcome = pcap_next_ex(m_capture.get(), &header, &bytes);
    if (outcome == 1) {
        const double time =
            static_cast<double>(header->ts.tv_sec) + static_cast<double>(header->ts.tv_usec) / 1e6;
        return CapturedPacket{time, Bytes(bytes, header->caplen),
                              header->len > header->caplen ? header->len - header->caplen : 0};
    }
    if (outcome != PCAP_ERROR_BREAK || m_deviceFailed)
        fail(pcap_geterr(m_capture.get()));
    return std::nullopt;
}

ssize_t CaptureFile::readFromDevice(void* captureFile, char* buffer, std::size_t size)
{
    auto& self = *static_cast<CaptureFile*>(captureFile);
    const qint64 count = self.m_device.read(buffer, static_cast<qint64>(size));
    if (count < 0)
        self.m_deviceFailed = true;
    else
        self.m_bytesRead += count;
    return count;
}

void CaptureFile::fail(const char* reason)
{
    if (m_deviceFailed)
        m_error = m_device.errorString();
    else if (m_bytesRead == 0)
        m_error = localized("the file is empty");
    else if (!m_capture)
        m_error = localized("not a capture (%1)").arg(QString::fromLocal8Bit(reason));
    else
        m_error = localized("the rest of the capture cannot be read (%1)")
                      .arg(QString::fromLocal8Bit(reason));
}

} // namespace tessara
