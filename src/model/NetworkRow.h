#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace tessara {

class TSNetwork;

/// A row of the table, a network or a collection of networks, by the values of its columns. Texts
/// are empty and times absent where there is no value.
class NetworkRow {
public:
    virtual ~NetworkRow() = default;

    /// The user has selected the row.
    virtual bool isUserHighlighted() const = 0;

    virtual QString bssidValue() const = 0;
    virtual QString ssidValue() const = 0;
    virtual QString deviceNameValue() const = 0;
    virtual QString vendorValue() const = 0;
    virtual QString annotationsValue() const = 0;

    virtual std::int64_t rssiValue() const = 0; ///< dBm, as the next seven
    virtual std::int64_t rssiAvgValue() const = 0;
    virtual std::int64_t rssiMinValue() const = 0;
    virtual std::int64_t rssiMaxValue() const = 0;
    virtual std::int64_t noiseValue() const = 0;
    virtual std::int64_t noiseAvgValue() const = 0;
    virtual std::int64_t noiseMinValue() const = 0;
    virtual std::int64_t noiseMaxValue() const = 0;
    virtual std::int64_t snrValue() const = 0; ///< dB, as the next three
    virtual std::int64_t snrAvgValue() const = 0;
    virtual std::int64_t snrMinValue() const = 0;
    virtual std::int64_t snrMaxValue() const = 0;

    virtual QString channelValue() const = 0;
    virtual QString channelCenterValue() const = 0;
    virtual QString channelBandValue() const = 0;
    virtual QString channelWidthValue() const = 0;
    virtual QString centerFrequencyValue() const = 0; ///< MHz
    virtual QString streamsValue() const = 0;
    virtual QString stationCountValue() const = 0;
    virtual std::int64_t channelUtilizationValue() const = 0; ///< per cent; -1: not announced
    virtual QString phyModeValue() const = 0;
    virtual QString htProtectionValue() const = 0;
    virtual QString fastBssTransitionValue() const = 0;
    virtual QString countryCodeValue() const = 0;
    virtual QString basicDataRatesValue() const = 0; ///< Mbit/s, as the next two
    virtual QString minRateValue() const = 0;
    virtual QString maxRateValue() const = 0;
    virtual QString securityValue() const = 0;
    virtual QString wpsValue() const = 0;
    virtual QString networkTypeValue() const = 0;
    virtual QString beaconIntervalValue() const = 0; ///< milliseconds

    virtual std::optional<double> firstSeenValue() const = 0; ///< seconds since 1970
    virtual std::optional<double> lastSeenValue() const = 0;
    virtual std::optional<double> lastSeenElapsedSecondsValue() const = 0;

    /// The network that stands for the row; none for a collection without members.
    virtual const TSNetwork* bestNetwork() const = 0;
};

} // namespace tessara
