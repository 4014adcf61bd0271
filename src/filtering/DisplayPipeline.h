#pragma once

#include "filtering/FilterIdentifiers.h"
#include "filtering/QuickFilter.h"
#include "filtering/SideViewSelection.h"
#include "filtering/SignalThreshold.h"
#include "model/Band.h"
#include "model/ColumnRegistry.h"
#include "model/TSNetwork.h"

#include <QString>

#include <optional>
#include <vector>

namespace tessara {

class Defaults;

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

/// The kinds of networks that the settings leave out of all lists.
struct ShownKinds {
    bool secure = true;
    bool adHoc = true;

    static ShownKinds fromDefaults(const Defaults& defaults);
};

/// From everything that is known to the rows on screen: narrows the list by a chain of tests, the
/// filter line among them, marks the associated network and sorts. What is set takes effect at the
/// next pass.
class DisplayPipeline {
public:
    void setShownKinds(ShownKinds kinds) { m_shownKinds = kinds; }
    void setSignalThreshold(SignalThreshold threshold) { m_threshold = threshold; }
    const SignalThreshold& signalThreshold() const { return m_threshold; }
    void setSideViewSelection(SideViewSelection selection)
    {
        m_sideViewSelection = std::move(selection);
    }
    /// The order of the rows: the first descriptor rules, the others break its ties.
    void setSortDescriptors(std::vector<SortDescriptor> descriptors);
    /// What the interface is associated with while scanning; none otherwise.
    void setAssociation(std::optional<Association> association);

    // What the user does clears the selection and works out again what is shown.
    void selectQuickFilter(QuickFilter filter);
    void onFilter(const QString& line);
    const QString& filterString() const { return m_filterString; }

    /// Takes the list of all networks and works out what is shown.
    void filterAndSetNetworks(const NetworkList& networks);
    /// Stores that networks are not organised, the one choice there is, and works out anew what is
    /// shown.
    void onViewOrganizeNetworksBy(Defaults& defaults);

    const NetworkList& networks() const { return m_networks; }
    const NetworkList& filteredNetworks() const { return m_filteredNetworks; }
    /// What the side view counts: the list before its own selection narrows it.
    const NetworkList& sideViewNetworks() const { return m_sideViewNetworks; }
    /// The columns on which the filter line found networks; empty without one.
    const FilterIdentifiers& filteredColumnIdentifiers() const
    {
        return m_filteredColumnIdentifiers;
    }
    /// "Networks Found: 31, Displayed: 31 (100%)"
    QString footerText() const;

private:
    void clearUserHighlighted();
    bool isKept(const TSNetwork& network) const;
    bool isAssociated(const TSNetwork& network) const;
    void computeCollections();

    ShownKinds m_shownKinds;
    QuickFilter m_quickFilter = QuickFilter::kAllNetworks;
    SignalThreshold m_threshold;
    SideViewSelection m_sideViewSelection;

    NetworkList m_networks;
    NetworkList m_sideViewNetworks;
    NetworkList m_filteredNetworks;
    FilterIdentifiers m_filteredColumnIdentifiers;
    QString m_filterString;
    std::vector<SortDescriptor> m_sortDescriptors;
    std::optional<Association> m_association;
};

/// The networks in the order of the descriptors; equal ones keep their places. Each sort key is
/// computed once.
NetworkList sortedNetworks(const NetworkList& networks,
                           const std::vector<SortDescriptor>& descriptors);

} // namespace tessara
