#pragma once

#include "scanning/CWNetwork.h"
#include "scanning/capture/BeaconFrame.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <vector>

namespace tessara {

/// The BSSID of a frame as raw scan dictionaries give it.
QString bssidText(const BeaconFrame& beacon);

/// Gathers the frames of one sweep into the results of a scan: one network for each BSSID and
/// band, in the order of their first frames. The last reading of a signal counts. What a network
/// says in a probe response goes before what it says in beacons, as in the scan list of a
/// system's Wi-Fi service: a beacon may hide the name.
class CaptureSweep {
public:
    void add(const BeaconFrame& beacon, const ReceivedFrame& received);

    /// The networks so far, and an empty sweep in their place.
    /// @param withSignal the BSSIDs of which the capture knows signals: without a reading in this
    /// sweep they get 0; the others get -120, the value of a sample without data
    ScanResults takeResults(const QSet<QString>& withSignal);

private:
    struct Entry {
        CWNetwork network;
        bool isProbeResponse = false;
    };

    std::vector<Entry> m_entries;
    QHash<quint64, std::size_t> m_positions; ///< by BSSID and band
};

} // namespace tessara
