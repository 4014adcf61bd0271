#pragma once

#include "model/TSNetwork.h"

namespace tessara {

/// What is selected in the side view: a facet, and the value that it is to have. Without a facet
/// everything is selected.
struct SideViewSelection {
    QString identifier; ///< of the facet, such as "item-vendor"
    QString string;     ///< the value

    bool contains(const TSNetwork& network) const;
};

} // namespace tessara
