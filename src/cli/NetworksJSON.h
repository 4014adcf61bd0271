#pragma once

#include "filtering/DisplayPipeline.h"
#include "model/ColumnRegistry.h"

#include <QTextStream>

namespace tessara {

/// Writes what a pipeline shows for programs, one network a line: `{"lastScanTime": seconds,
/// "filterIdentifiers": [ID], "networks": [{"columns": {ID: text of the cell}, "record": {name:
/// value}}]}`. An absent value is null. Takes the memory of one network at a time.
void writeNetworksJSON(QTextStream& out, const DisplayPipeline& pipeline,
                       const CellContext& context, double lastScanTime);

} // namespace tessara
