#pragma once

#include "model/ChannelWidth.h"
#include "model/ScanDictionary.h"
#include "model/SecurityMode.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace tessara {

/// What a record says of its network beyond the raw scan dictionary. `TSNetwork::setNetwork`
/// writes all of it anew at each scan; the values here are those of a fresh record.
struct NetworkAttributes {
    QString ssid;             ///< from the elements; empty if they hold none
    QString deviceName;       ///< announced by the access point, or saved
    QString countryCode;      ///< two upper-case letters, or empty
    std::int64_t channel = 0; ///< from the elements; 0 falls back on the dictionary
    ChannelWidth channelWidth = ChannelWidth::kUnknown;
    int secondaryChannelOffset = 0; ///< 0 none, 1 above, 3 below
    int streams = 0;
    std::int64_t stationCount = -1;          ///< -1: not announced
    std::int64_t channelUtilization = -1;    ///< per cent; -1: not announced
    std::int64_t channelUtilizationMax = -1; ///< the highest over the record's life
    int htProtection = -1;                   ///< 0 to 3; -1: not announced
    int fastBssTransition = -1;              ///< 0 to 3; -1: not announced
    std::int64_t phyMode = 0;                ///< bits: 1 a, 2 b, 4 g, 8 n, 16 ac
    SecurityMode securityMode = SecurityMode::kUnknown;
    int cipherType = 0; ///< bits: 1 WEP-40, 2 TKIP, 4 CCMP, 8 WEP-104
    bool wpsEnabled = false;
    bool wpsConfigured = false;
    bool wpsLocked = false;
    std::vector<double> rates; ///< Mbit/s by magnitude; a basic rate is negative
    float minBasicRate = 0;    ///< Mbit/s
    float maxBasicRate = 0;
    QStringList amendments;    ///< letters of the 802.11 amendments in use
    std::int64_t ccxDTPC = -1; ///< client transmit power in dBm; -1: not announced
    QString ccxClientMFP;      ///< "Enabled", "Disabled" or empty
};

/// What a raw scan dictionary says of a network, beyond itself: the meaning of its element bytes.
/// Bytes from the air may be cut anywhere: an element that runs past their end ends the reading,
/// a field beyond it is absent.
/// @param previous the attributes so far: some outlive the scan
NetworkAttributes attributesOf(const ScanDictionary& dictionary, NetworkAttributes previous);

} // namespace tessara
