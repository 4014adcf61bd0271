#pragma once

#include "model/TSNetwork.h"

#include <vector>

namespace tessara {

/// A node of the side view: the heading, a facet, or one of its values.
struct TSSideViewItem {
    QString title;
    QString identifier;        ///< "group", "category", or the kind of value: "item-vendor"
    QString filterString = {}; ///< what a network is compared with
    bool showCount = false;    ///< the number of children beside a category
    std::vector<TSSideViewItem> children = {};

    bool hasChildren() const { return !children.empty(); }
};

/// The heading alone, as it stands before there are networks.
std::vector<TSSideViewItem> emptySideView();

/// The heading and the facets with the values that occur, each once.
std::vector<TSSideViewItem> sideViewOf(const NetworkList& networks);

} // namespace tessara
