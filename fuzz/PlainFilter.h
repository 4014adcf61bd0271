#pragma once

#include "model/TSNetwork.h"

#include <QMap>

namespace tessara::plain {

/// The filter language once more, slow and word for word: each term is read again for each network,
/// texts are compared character by character, and nothing is shared with the filter itself.
/// @param identifiers takes the columns on which any term found any network, as key and as value
NetworkList filterNetworks(const NetworkList& networks, const QString& line,
                           QMap<QString, QString>& identifiers);

} // namespace tessara::plain
