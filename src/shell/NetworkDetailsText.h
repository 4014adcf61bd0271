#pragma once

#include "foundation/Localized.h"
#include "model/ColumnRegistry.h"
#include "model/TSNetwork.h"

namespace tessara {

/// How good a connection would be by the ratio of signal to noise.
struct SignalQuality {
    EnglishText text;
    bool isPoor = false;
    bool isMissing = false; ///< there is no signal at all now
};
/// @param snr in dB, the last one known
SignalQuality signalQuality(std::int64_t snr);
/// While scanning, a network that is out of sight has no signal, whatever was last known.
SignalQuality signalQuality(const TSNetwork& network, bool isScanning);

/// What the details form says of a network, in the language of the session. An empty text has
/// nothing to say.
struct NetworkDetailsText {
    QString ssid;
    QString bssid;
    QString vendor;
    QString networkType;
    QString band;
    ChannelRangeText channel;
    QString width;
    QString mode;
    QString beaconInterval;
    QString rssi;
    QString noise;
    QString snr;
    QString rssiAvg; ///< average, least and greatest
    QString noiseAvg;
    QString snrAvg;
    QString security;
    QString encryption;
    QString wps;
    QString rates;
    QString maxRate;
    QString allRates; ///< more to say of the greatest one

    static NetworkDetailsText of(const TSNetwork& network, bool dBm);
};

} // namespace tessara
