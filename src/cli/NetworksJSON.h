#pragma once

#include "model/ColumnRegistry.h"
#include "model/TSNetwork.h"

#include <QByteArray>

namespace tessara {

/// Networks for programs: `{"lastScanTime": seconds, "filterIdentifiers": [], "networks":
/// [{"columns": {ID: text of the cell}, "record": {name: value}}]}`. An absent value is null.
QByteArray networksJSON(const NetworkList& networks, const CellContext& context,
                        double lastScanTime);

} // namespace tessara
