#pragma once

#include "model/ColumnRegistry.h"
#include "model/TSNetwork.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace tessara {

/// Networks as a table for people: a line of titles, then one line a network. Columns are as wide
/// as what stands in them; where that is more than `width` terminal columns, names are cut, and
/// then the last columns are left out.
/// @param width 0 for no limit
QStringList tableText(const NetworkList& networks, const std::vector<const Column*>& columns,
                      const CellContext& context, int width);

} // namespace tessara
