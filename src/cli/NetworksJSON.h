#pragma once

#include "model/ColumnRegistry.h"
#include "model/TSNetwork.h"

#include <QTextStream>

namespace tessara {

/// Writes networks for programs, one a line: `{"lastScanTime": seconds, "filterIdentifiers": [],
/// "networks": [{"columns": {ID: text of the cell}, "record": {name: value}}]}`. An absent value
/// is null. Takes the memory of one network at a time.
void writeNetworksJSON(QTextStream& out, const NetworkList& networks, const CellContext& context,
                       double lastScanTime);

} // namespace tessara
