#include "model/RateText.h"

#include <QStringList>

#include <cmath>

namespace tessara {

namespace {

QString magnitudeText(double rate)
{
    const double magnitude = std::abs(rate);
    const bool isFractional = magnitude - std::trunc(magnitude) > 0.1;
    return QString::number(magnitude, 'f', isFractional ? 1 : 0);
}

} // namespace

QString humanReadableDataRates(std::span<const double> rates)
{
    QStringList texts;
    for (const double rate : rates)
        texts += rate < 0 ? magnitudeText(rate) + QStringLiteral("(B)") : magnitudeText(rate);
    return texts.join(QStringLiteral(", "));
}

QString humanReadableBasicDataRates(std::span<const double> rates)
{
    QStringList texts;
    for (const double rate : rates) {
        if (rate < 0)
            texts += magnitudeText(rate);
    }
    return texts.join(QStringLiteral(", "));
}

QString rateValue(float rate)
{
    if (!(rate > 0))
        return {};
    return QString::number(static_cast<double>(rate), 'f', 1).remove(QStringLiteral(".0"));
}

} // namespace tessara
