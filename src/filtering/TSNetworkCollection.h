#pragma once

#include "model/TSNetwork.h"

#include <cstddef>

namespace tessara {

/// A row that stands for several networks at once. Each value of a column is combined of those of
/// the members: that of the best one, the extreme, the one that all share or a placeholder, or all
/// distinct ones in a list.
class TSNetworkCollection final : public NetworkRow {
public:
    explicit TSNetworkCollection(QString name)
        : m_name(std::move(name))
    {
    }

    /// The title of the group.
    const QString& name() const { return m_name; }
    bool isUserHighlighted() const override { return m_userHighlighted; }
    void setUserHighlighted(bool highlighted) { m_userHighlighted = highlighted; }

    /// The text in place of values that differ.
    static QString multipleValues();

    // The members, in the order of their insertion ---------------------------------------------

    const NetworkList& collection() const { return m_collection; }
    std::size_t count() const { return m_collection.size(); }
    /// @param index below `count`
    const NetworkPtr& objectAtIndex(std::size_t index) const { return m_collection[index]; }
    void addObject(NetworkPtr network) { m_collection.push_back(std::move(network)); }
    /// @param index up to `count`
    void insertObject(NetworkPtr network, std::size_t index)
    {
        m_collection.insert(m_collection.begin() + static_cast<std::ptrdiff_t>(index),
                            std::move(network));
    }
    /// @param index below `count`
    void replaceObjectAtIndex(std::size_t index, NetworkPtr network)
    {
        m_collection[index] = std::move(network);
    }

    /// The member with the highest last ratio of signal to noise, the first of equals: among those
    /// in sight if there are any, else among all. By the ratio, not by the signal, on purpose.
    const TSNetwork* bestNetwork() const override;

    // Of the best network; without members no signal, no ratio, nothing announced ---------------

    std::int64_t rssiValue() const override;
    std::int64_t noiseValue() const override;
    std::int64_t snrValue() const override;
    std::int64_t channelUtilizationValue() const override;

    // Extremes: an average is that of the best member. Without members the lowest integer there is
    // for a maximum or an average, the highest for a minimum ------------------------------------

    std::int64_t rssiAvgValue() const override;
    std::int64_t rssiMinValue() const override;
    std::int64_t rssiMaxValue() const override;
    std::int64_t noiseAvgValue() const override;
    std::int64_t noiseMinValue() const override;
    std::int64_t noiseMaxValue() const override;
    std::int64_t snrAvgValue() const override;
    std::int64_t snrMinValue() const override;
    std::int64_t snrMaxValue() const override;

    // The value that all members share, or the placeholder --------------------------------------

    /// The identity of the access point, so that all radios of one share a value.
    QString bssidValue() const override;
    QString securityValue() const override;
    QString wpsValue() const override;
    QString annotationsValue() const override;
    QString htProtectionValue() const override;
    QString fastBssTransitionValue() const override;
    // Of these, members without the value do not count.
    QString vendorValue() const override;
    QString deviceNameValue() const override;
    QString stationCountValue() const override;

    // Distinct values in order: "1, 11", "20, 40 MHz", "a/b/g/n" --------------------------------

    QString ssidValue() const override;
    QString channelValue() const override;
    QString channelCenterValue() const override;
    QString centerFrequencyValue() const override;
    QString streamsValue() const override;
    QString channelBandValue() const override;
    QString channelWidthValue() const override;
    QString minRateValue() const override;
    QString maxRateValue() const override;
    QString basicDataRatesValue() const override;
    QString networkTypeValue() const override;
    QString countryCodeValue() const override;
    QString phyModeValue() const override;
    QString beaconIntervalValue() const override;

    // The earliest, the latest, the least ago ---------------------------------------------------

    std::optional<double> firstSeenValue() const override;
    std::optional<double> lastSeenValue() const override;
    std::optional<double> lastSeenElapsedSecondsValue() const override;

private:
    QString m_name;
    NetworkList m_collection;
    bool m_userHighlighted = false;
};

} // namespace tessara
