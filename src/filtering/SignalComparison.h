#pragma once

#include "filtering/FilterTest.h"

#include <QStringView>

namespace tessara {

/// Signal comparisons: ">=", "<=", ">" or "<" and then a number, in dBm, or in per cent where a
/// "%" follows. What begins so and goes on otherwise is a comparison that no network passes.
/// @return no test for a token that is no comparison
FilterTest signalComparison(QStringView token);

} // namespace tessara
