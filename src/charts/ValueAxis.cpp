#include "charts/ValueAxis.h"

#include "foundation/Localized.h"
#include "model/SignalPercentage.h"

#include <algorithm>
#include <array>

namespace tessara {

namespace {

constexpr double kLowChart = 75; // points; up to this height most labels are left out
constexpr double kBelowLine = 3; // brings the middle of a text onto its line
constexpr double kLabelOpacity = 0.8;
constexpr double kDistance = 14; // of a label's middle from the chart
constexpr double kPercentDistance = 17;
constexpr double kHundredDistance = 19; // of "100%"

/// How the marks of a scale are labelled, by mark, the lowest first.
struct ValueScale {
    int marks;
    int firstYellow;
    int firstGreen;
    std::array<int, 3> kept; ///< the marks of a low chart
};

constexpr ValueScale kDBmScale{.marks = 9, .firstYellow = 3, .firstGreen = 5, .kept = {3, 7, 0}};
constexpr ValueScale kPercentScale{
    .marks = 10, .firstYellow = 4, .firstGreen = 7, .kept = {1, 5, 9}};
constexpr ValueScale kRatioScale{.marks = 9, .firstYellow = 4, .firstGreen = 7, .kept = {3, 7, 0}};

const ValueScale& scaleOf(Metric metric, Units units)
{
    if (metric == Metric::kSNR)
        return kRatioScale;
    return units == Units::kPercent ? kPercentScale : kDBmScale;
}

QColor colorOf(int mark, const ValueScale& scale)
{
    QColor color = mark < scale.firstYellow  ? Qt::red
                   : mark < scale.firstGreen ? Qt::yellow
                                             : Qt::green;
    color.setAlphaF(kLabelOpacity);
    return color;
}

QString textOf(int mark, Metric metric, Units units)
{
    if (metric == Metric::kSNR)
        return QString::number(10 * mark);
    return units == Units::kPercent ? QStringLiteral("%1%").arg(10 * mark)
                                    : QString::number(10 * mark - 100);
}

double distanceOf(int mark, const ValueScale& scale)
{
    if (&scale != &kPercentScale)
        return kDistance;
    return mark == scale.marks ? kHundredDistance : kPercentDistance;
}

} // namespace

QString valueText(const TSDataPoint& sample, Metric metric, Units units)
{
    const std::int64_t dBm = metric == Metric::kNoise ? sample.noiseValue() : sample.rssiValue();
    if (metric != Metric::kSNR && units == Units::kPercent)
        return QStringLiteral("%1%").arg(signalPercentage(dBm));
    if (!sample.hasData())
        return localized("No Data");
    return metric == Metric::kSNR ? QStringLiteral("%1 dB").arg(sample.snr())
                                  : QStringLiteral("%1 dBm").arg(dBm);
}

int valueMarks(Metric metric, Units units)
{
    return scaleOf(metric, units).marks;
}

bool isMarkKept(int mark, Metric metric, const ChartScale& scale)
{
    if (scale.rect.height() > kLowChart)
        return true;
    return std::ranges::count(scaleOf(metric, scale.units).kept, mark) > 0;
}

std::vector<ValueLabel> valueLabels(const ChartScale& scale, Metric metric, int skip,
                                    LabelSide side)
{
    if (metric == Metric::kNoise)
        return {};
    const ValueScale& values = scaleOf(metric, scale.units);
    const double step = scale.plotHeight() / values.marks;
    std::vector<ValueLabel> labels;
    for (int mark = 1; mark <= values.marks; mark += skip) {
        if (!isMarkKept(mark, metric, scale))
            continue;
        const double distance = distanceOf(mark, values);
        const double x = side == LabelSide::kLeft ? scale.rect.x() - distance
                                                  : scale.rect.x() + scale.rect.width() + distance;
        labels.push_back({{x, scale.rect.y() + mark * step - kBelowLine},
                          textOf(mark, metric, scale.units),
                          colorOf(mark, values)});
    }
    return labels;
}

} // namespace tessara
