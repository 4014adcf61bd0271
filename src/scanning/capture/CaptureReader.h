#pragma once

#include "scanning/capture/CaptureFile.h"
#include "scanning/capture/CaptureSweep.h"
#include "scanning/recorded/ScanReader.h"

#include <deque>

namespace tessara {

/// Reads a capture of 802.11 frames as scans. Capture time, from the first packet on, is cut into
/// sweeps of equal length; the beacons and probe responses of a sweep are the networks of one
/// scan, whose time is the end of the sweep.
///
/// A sweep without such frames is a scan without networks, so that networks age. Of a silence
/// that is longer than a hundred sweeps the first ones and the last one are given. Time never
/// runs backwards: a packet out of order counts in the sweep at hand, and where the clock of the
/// capture was set back by more than a minute, time goes on from the sweep at hand.
///
/// A network of which the capture records no signal at all stands at -120 dBm, and its scans say
/// so.
class CaptureReader final : public ScanReader {
public:
    static constexpr double kDefaultSweepSeconds = 3.0;

    /// @param device the bytes of the capture, open for reading; it is read twice, through `reset`
    /// @param name what error messages call it
    /// @param sweepSeconds the length of a sweep, more than 0
    CaptureReader(std::unique_ptr<QIODevice> device, const QString& name, double sweepSeconds);

    std::optional<RecordedScan> next() override;
    QString error() const override { return m_error; }

private:
    /// One of the frames that count.
    struct Sighting {
        ReceivedFrame received;
        BeaconFrame beacon;
    };

    bool open();
    std::optional<Sighting> sighting(const CapturedPacket& packet) const;
    /// Reads the capture to its end.
    QSet<QString> bssidsWithSignal();
    void advanceTo(double captureTime);
    void endSweep(double number);
    void fail(const QString& reason);

    std::unique_ptr<QIODevice> m_device;
    QString m_name;
    double m_sweepSeconds;
    QString m_error;

    std::unique_ptr<CaptureFile> m_capture;
    RadioHeaderDecoder m_decodeHeader = nullptr;
    QSet<QString> m_withSignal; ///< BSSIDs

    CaptureSweep m_sweep;
    std::optional<double> m_startTime; ///< of sweep 0; none before the first packet
    double m_sweepNumber = 0;          ///< of the sweep at hand
    double m_clockCorrection = 0;      ///< seconds to add to the times of the packets
    std::deque<RecordedScan> m_due;    ///< scans that are complete
};

} // namespace tessara
