#include "kernel/AirCapture.h"

#include <pcap/pcap.h>

#include <QtEndian>

#include <stdexcept>

namespace tessara::kernel {

namespace {

constexpr qsizetype kHeader = 24;      ///< of a management frame
constexpr qsizetype kBSSID = 16;       ///< address 3
constexpr qsizetype kFixedFields = 12; ///< timestamp, beacon interval, capability
constexpr int kRadiotapLength = 2;     ///< offset of the length of the radiotap header

} // namespace

AirCapture::AirCapture()
{
    char error[PCAP_ERRBUF_SIZE] = {};
    m_pcap = pcap_create("hwsim0", error);
    if (!m_pcap)
        throw std::runtime_error(error);
    bpf_program filter{};
    if (pcap_set_snaplen(m_pcap, 4096) != 0 || pcap_set_immediate_mode(m_pcap, 1) != 0 ||
        pcap_set_timeout(m_pcap, 100) != 0 || pcap_activate(m_pcap) < 0 ||
        pcap_compile(m_pcap, &filter, "type mgt subtype beacon or type mgt subtype probe-resp", 1,
                     PCAP_NETMASK_UNKNOWN) != 0 ||
        pcap_setfilter(m_pcap, &filter) != 0 || pcap_setnonblock(m_pcap, 1, error) != 0)
        throw std::runtime_error(pcap_geterr(m_pcap));
    pcap_freecode(&filter);
    m_listener = std::thread([this] { listen(); });
}

AirCapture::~AirCapture()
{
    elements();
    pcap_close(m_pcap);
}

const QMultiHash<QString, QByteArray>& AirCapture::elements()
{
    m_isOver = true;
    if (m_listener.joinable())
        m_listener.join();
    return m_elements;
}

void AirCapture::listen()
{
    const auto handler = [](u_char* self, const pcap_pkthdr* header, const u_char* frame) {
        reinterpret_cast<AirCapture*>(self)->keep(frame, static_cast<qsizetype>(header->caplen));
    };
    while (!m_isOver) {
        if (pcap_dispatch(m_pcap, -1, handler, reinterpret_cast<u_char*>(this)) == 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

void AirCapture::keep(const unsigned char* frame, qsizetype length)
{
    const QByteArray bytes(reinterpret_cast<const char*>(frame), length);
    const qsizetype start = qFromLittleEndian<quint16>(frame + kRadiotapLength);
    const QString bssid = QString::fromLatin1(bytes.mid(start + kBSSID, 6).toHex(':'));
    const QByteArray elements = bytes.mid(start + kHeader + kFixedFields);
    if (!m_elements.contains(bssid, elements))
        m_elements.insert(bssid, elements);
}

} // namespace tessara::kernel
