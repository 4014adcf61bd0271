#pragma once

#include "charts/ChartScale.h"

#include <QColor>
#include <QString>

#include <vector>

namespace tessara {

/// Where the axis of values is labelled.
enum class LabelSide { kLeft, kRight };

/// One label of the axis of values, to be centred at its origin.
struct ValueLabel {
    QPointF origin;
    QString text;
    QColor color;

    bool operator==(const ValueLabel&) const = default;
};

/// What a bubble tells of a sample.
QString valueText(const TSDataPoint& sample, Metric metric, Units units);

/// Into how many steps a scale is divided.
int valueMarks(Metric metric, Units units);

/// Whether a mark, counted from 1 at the lowest, keeps its line and its label however low the
/// chart is; other marks need some height.
bool isMarkKept(int mark, Metric metric, const ChartScale& scale);

/// The labels of an axis, the lowest first. There are none for noise.
/// @param skip every how-manieth mark is labelled, from the first
std::vector<ValueLabel> valueLabels(const ChartScale& scale, Metric metric, int skip,
                                    LabelSide side);

} // namespace tessara
