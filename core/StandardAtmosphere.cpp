#include "core/StandardAtmosphere.h"

#include <cmath>

namespace {

constexpr double power = 5.2559;

double seaLevel(bool isMetric) { return isMetric ? 101.325 : 14.696; }
double partPerHeight(bool isMetric) { return isMetric ? 2.25577e-5 : 6.8754e-6; }

} // namespace

double StandardPressure(double Z, bool isMetric)
{
    return seaLevel(isMetric) * std::pow(std::fmax(1.0 - partPerHeight(isMetric) * Z, 0.0), power);
}

double StandardAltitude(double P, bool isMetric)
{
    return (1.0 - std::pow(P / seaLevel(isMetric), 1.0 / power)) / partPerHeight(isMetric);
}
