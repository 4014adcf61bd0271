#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <atomic>
#include <memory>
#include <thread>

struct pcap;

namespace tessara::kernel {

/// Listens to all that the simulated radios send, as long as it lives, and keeps the elements of
/// each beacon and probe response: what a scan can have heard, by a way of its own.
class AirCapture {
public:
    AirCapture();
    ~AirCapture();

    /// The different runs of elements that have been sent, by the lower-case BSSID of the sender.
    /// Ends the capture.
    const QMultiHash<QString, QByteArray>& elements();

private:
    void listen();
    void keep(const unsigned char* frame, qsizetype length);

    pcap* m_pcap = nullptr;
    std::atomic<bool> m_isOver = false;
    QMultiHash<QString, QByteArray> m_elements;
    std::thread m_listener;
};

} // namespace tessara::kernel
