#pragma once

#include "model/Band.h"
#include "model/ColumnRegistry.h"
#include "model/TSNetwork.h"

#include <QString>

#include <optional>
#include <vector>

namespace tessara {

/// One level of the order of the list.
struct SortDescriptor {
    const Column* column;
    bool ascending = true;
};

/// The network that the interface is associated with.
struct Association {
    QString bssid; ///< in any case of letters
    Band band;
    QString ssid;
};

/// From everything that is known to the rows on screen: marks the associated network and sorts.
class DisplayPipeline {
public:
    /// The order of the rows: the first descriptor rules, the others break its ties.
    void setSortDescriptors(std::vector<SortDescriptor> descriptors);
    /// What the interface is associated with while scanning; none otherwise.
    void setAssociation(std::optional<Association> association);

    /// Takes the list of all networks and works out what is shown.
    void filterAndSetNetworks(const NetworkList& networks);

    const NetworkList& networks() const { return m_networks; }
    const NetworkList& filteredNetworks() const { return m_filteredNetworks; }
    /// "Networks Found: 31, Displayed: 31 (100%)"
    QString footerText() const;

private:
    NetworkList m_networks;
    NetworkList m_filteredNetworks;
    std::vector<SortDescriptor> m_sortDescriptors;
    std::optional<Association> m_association;
};

/// The networks in the order of the descriptors; equal ones keep their places. Each sort key is
/// computed once.
NetworkList sortedNetworks(const NetworkList& networks,
                           const std::vector<SortDescriptor>& descriptors);

} // namespace tessara
