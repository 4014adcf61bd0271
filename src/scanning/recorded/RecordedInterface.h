#pragma once

#include "foundation/Clock.h"
#include "foundation/NotificationCenter.h"
#include "scanning/CWInterface.h"
#include "scanning/recorded/ScanReader.h"

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace tessara {

/// An interface that finds the networks of a recording or a capture, in real time and over and
/// over: which scan is in force follows from how long ago the interface was made and from the
/// scans' own times. Its power and its association are what the caller sets.
class RecordedInterface final : public CWInterface {
public:
    /// The network that the interface says to be associated with.
    struct Association {
        QString bssid;
        QByteArray ssidData;
        CWChannel channel;
        double transmitRate = 0; ///< Mbit/s

        bool operator==(const Association&) const = default;
    };

    /// What an interface needs of the program; all of it must outlive the interface.
    struct Surroundings {
        Clock& clock;
        Pause& pause;
        NotificationCenter& notifications;
    };

    /// Reads all scans of an input that `openScanInput` can open. An input that ends in an error
    /// plays as far as it could be read.
    /// @param sweepSeconds how much time of a capture makes one scan
    /// @param[out] error why there is no interface, in one line for the user
    /// @return none if the input cannot be read or holds no scans
    static std::unique_ptr<RecordedInterface> open(const QString& path, double sweepSeconds,
                                                   const Surroundings& surroundings,
                                                   QString& error);

    QString interfaceName() const override { return m_name; }
    bool powerOn() const override;
    std::optional<CWError> setPower(bool on) override;

    std::optional<QString> bssid() const override;
    std::optional<QString> ssid() const override;
    std::optional<QByteArray> ssidData() const override;
    std::optional<CWChannel> wlanChannel() const override;
    double transmitRate() const override;
    /// Associates with a network, or with none.
    void setAssociation(const std::optional<Association>& association);

    /// The networks of the scan in force.
    std::vector<CWNetwork> cachedScanResults() const override;
    /// Waits for the next scan of the recording, for a couple of seconds at most.
    CWScan scanForNetworksWithSSID(const std::optional<QByteArray>& ssid) override;

    QString scanMethod() const override;

    /// False if the input knows no signal strength of some networks: they stand at -120 dBm.
    bool recordsSignal() const { return m_recordsSignal; }

private:
    struct PlayedScan {
        ScanResults networks;
        double end; ///< when the next one comes into force, in seconds from the beginning
    };

    RecordedInterface(const QString& path, std::vector<RecordedScan> scans,
                      const Surroundings& surroundings);

    /// Seconds since the recording was last at its beginning.
    double position() const;
    const PlayedScan& scanAt(double position) const;
    std::optional<Association> association() const;

    QString m_path;
    QString m_name;
    Surroundings m_surroundings;
    double m_startTime;
    std::vector<PlayedScan> m_scans; ///< never empty, never changed
    bool m_recordsSignal;

    mutable std::mutex m_mutex; ///< guards what follows
    bool m_powerOn = true;
    std::optional<Association> m_association;
};

} // namespace tessara
