#include "scanning/capture/CaptureReader.h"

#include "foundation/Localized.h"

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

constexpr double kMostSilentSweeps = 100;
constexpr double kClockWasSetBack = 60; // seconds

} // namespace

CaptureReader::CaptureReader(std::unique_ptr<QIODevice> device, const QString& name,
                             double sweepSeconds)
    : m_device(std::move(device))
    , m_name(name)
    , m_sweepSeconds(sweepSeconds)
{
    if (!open())
        return;
    m_withSignal = bssidsWithSignal();
    if (!m_device->reset())
        fail(localized("the file cannot be read twice"));
    else
        open();
}

bool CaptureReader::open()
{
    m_capture = std::make_unique<CaptureFile>(*m_device);
    if (!m_capture->isOpen()) {
        fail(m_capture->error());
        return false;
    }
    m_decodeHeader = radioHeaderDecoder(m_capture->linkType());
    if (!m_decodeHeader)
        fail(localized("not a capture of Wi-Fi frames, its link type is %1")
                 .arg(m_capture->linkTypeName()));
    return m_decodeHeader != nullptr;
}

std::optional<CaptureReader::Sighting> CaptureReader::sighting(const CapturedPacket& packet) const
{
    const auto received = m_decodeHeader(packet.bytes);
    if (!received)
        return std::nullopt;
    const auto beacon = decodeBeacon(*received, packet.missingBytes);
    if (!beacon)
        return std::nullopt;
    return Sighting{*received, *beacon};
}

QSet<QString> CaptureReader::bssidsWithSignal()
{
    QSet<QString> bssids;
    while (const auto packet = m_capture->next()) {
        const auto seen = sighting(*packet);
        if (seen && seen->received.signal)
            bssids.insert(bssidText(seen->beacon));
    }
    return bssids;
}

std::optional<RecordedScan> CaptureReader::next()
{
    while (m_due.empty() && m_capture) {
        const auto packet = m_error.isEmpty() ? m_capture->next() : std::nullopt;
        if (packet) {
            advanceTo(packet->time);
            if (const auto seen = sighting(*packet))
                m_sweep.add(seen->beacon, seen->received);
            continue;
        }
        if (m_startTime)
            endSweep(m_sweepNumber);
        if (m_error.isEmpty() && !m_capture->error().isEmpty())
            fail(m_capture->error());
        m_capture.reset();
    }
    if (m_due.empty())
        return std::nullopt;
    RecordedScan scan = std::move(m_due.front());
    m_due.pop_front();
    return scan;
}

void CaptureReader::advanceTo(double captureTime)
{
    if (!m_startTime)
        m_startTime = captureTime;
    const double nextStart = *m_startTime + (m_sweepNumber + 1) * m_sweepSeconds;
    double time = captureTime + m_clockCorrection;
    if (time < nextStart - m_sweepSeconds - kClockWasSetBack) {
        m_clockCorrection += nextStart - time;
        time = nextStart;
    }
    const double number = std::floor((time - *m_startTime) / m_sweepSeconds);
    if (!(number > m_sweepNumber))
        return;

    endSweep(m_sweepNumber);
    const double silent = number - m_sweepNumber - 1;
    const int told = static_cast<int>(std::min(silent, kMostSilentSweeps));
    for (int i = 1; i < told; ++i)
        endSweep(m_sweepNumber + i);
    if (silent > 0)
        endSweep(number - 1);
    m_sweepNumber = number;
}

void CaptureReader::endSweep(double number)
{
    const double end = *m_startTime + (number + 1) * m_sweepSeconds;
    RecordedScan scan{std::clamp(end, -RecordedScan::kLatestTime, RecordedScan::kLatestTime),
                      m_sweep.takeResults(m_withSignal)};
    scan.recordsSignal = recordsSignal(scan.networks);
    m_due.push_back(std::move(scan));
}

void CaptureReader::fail(const QString& reason)
{
    m_error = localized("%1: %2").arg(m_name, reason);
}

} // namespace tessara
