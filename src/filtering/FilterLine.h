#pragma once

#include "filtering/FilterIdentifiers.h"
#include "filtering/FilterSubject.h"
#include "filtering/FilterTerm.h"

#include <QBitArray>
#include <QList>
#include <QString>

namespace tessara {

/// The networks that a line of the filter language selects, in the order in which they came.
///
/// "&" parts the line into groups, "," parts a group into terms: a network stays if it passes any
/// term of each group. A group without terms is passed by none. There is no wrong line.
/// @param identifiers takes the columns on which any term found any network
NetworkList filterNetworks(const NetworkList& networks, const QString& filter,
                           FilterIdentifiers& identifiers);

/// Which networks of a list pass one term, place by place.
QBitArray filterNetworksUsing(const FilterTerm& term, const QList<FilterSubject>& networks,
                              FilterIdentifiers& identifiers);

} // namespace tessara
