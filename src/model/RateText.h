#pragma once

#include <QString>

#include <span>

namespace tessara {

/// All rates in Mbit/s, "6(B), 9, 12(B), 54": a basic rate, which is negative, is marked.
QString humanReadableDataRates(std::span<const double> rates);

/// The basic ones alone, "6, 12".
QString humanReadableBasicDataRates(std::span<const double> rates);

/// One rate, "54" or "5.5"; empty if it is not above 0.
QString rateValue(float rate);

} // namespace tessara
