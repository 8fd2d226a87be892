#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

/// A quantile of the measurements, e.g. the median for part 0.5, interpolated linearly. There must be at
/// least one measurement.
inline double Quantile(std::vector<double> measurements, double part)
{
    std::sort(measurements.begin(), measurements.end());
    const double place = part * static_cast<double>(measurements.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const auto above = std::min(below + 1, measurements.size() - 1);
    return measurements[below] +
           (measurements[above] - measurements[below]) * (place - static_cast<double>(below));
}

inline double Median(const std::vector<double>& measurements) { return Quantile(measurements, 0.5); }
