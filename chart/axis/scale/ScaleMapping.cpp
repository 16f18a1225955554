#include "chart/axis/scale/ScaleMapping.h"

#include <cmath>

#include "foundation/Constants.h"

void ScaleMapping::setLinear(double lowerLimit, double upperLimit) {
    log = false;
    lower = lowerLimit;
    upper = upperLimit;
    origin = lowerLimit;
    factor = upper != lower ? 1 / (upper - lower) : 0;
}

void ScaleMapping::setLog(double lowerLimit, double upperLimit) {
    log = true;
    lower = lowerLimit;
    upper = upperLimit;
    origin = lowerLimit;
    double decades = std::log(upper / lower);
    factor = decades != 0 && std::isfinite(decades) ? 1 / decades : 0;
}

double ScaleMapping::toFraction(double value) const {
    if (!log) return (value - origin) * factor;
    double ratio = value / origin;
    // Values on the other side of zero sit at the end the scale starts from.
    if (!(ratio > 0)) return factor < 0 ? 1 : 0;
    return std::log(ratio) * factor;
}

double ScaleMapping::fromFraction(double fraction) const {
    if (factor == 0) return kNoValue;
    if (!log) return origin + fraction / factor;
    return origin * std::exp(fraction / factor);
}
