#pragma once

#include <QString>

namespace tessara {

class TSSignalStrengthView;

/// Whether a name ends as a chart's file may: .png, .pdf or .svg.
bool isChartFileName(const QString& path);

/// Writes a chart, as large as its view, to a file of the kind that its name tells. A file that is
/// there is replaced whole or not at all.
/// @return what is wrong, if something is
QString writeChart(TSSignalStrengthView& chart, const QString& path);

} // namespace tessara
