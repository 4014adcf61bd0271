#pragma once

#include "model/TSNetwork.h"

#include <QHash>
#include <QStringList>

#include <optional>

namespace tessara {

/// Networks by the radio that sends them: one that stands for each radio of each access point on
/// each channel, and the names that are seen there.
class RadioMerge {
public:
    /// One network for each radio and channel.
    const NetworkList& networks() const { return m_networks; }

    /// The names that the access point of a network uses on its channel, in order of appearance;
    /// nothing for an access point that is not among the networks.
    const QStringList* ssids(const TSNetwork& network) const;
    /// What a network is called where it stands for its radio: by its access point, where that has
    /// several names, or else by its own address. None for an access point that is not there.
    std::optional<QString> labelOf(const TSNetwork& network) const;

    friend RadioMerge mergeNetworksByRadio(const NetworkList& networks);

private:
    NetworkList m_networks;
    QHash<QString, QHash<std::int64_t, QStringList>> m_data; ///< by `apid`, by channel
};

/// The networks of each radio as one: an associated or a selected one, or else the one with the
/// strongest signal.
RadioMerge mergeNetworksByRadio(const NetworkList& networks);

} // namespace tessara
