#include "chart/axis/scale/LogTickGenerator.h"

#include <cmath>

#include "foundation/Constants.h"

namespace {

const double kLog2 = 0.3010299956639812;
const double kLog5 = 0.6989700043360189;
// A hair below the two, so that a value already on 2 or 5 moves on.
const double kBelowLog2 = 0.3009299956639812;
const double kBelowLog5 = 0.6988700043360189;

// 1 -> 2 -> 5 -> 10 within a decade.
double nextOneTwoFive(double value) {
    double decade = std::floor(value);
    double fraction = value - decade;
    if (fraction < kBelowLog2) return decade + kLog2;
    if (fraction < kBelowLog5) return decade + kLog5;
    return std::ceil(value);
}

// 1 -> 2 -> ... -> 9 -> 10 within a decade.
double nextDigit(double value) {
    double decade = std::floor(value);
    double k = std::floor(std::pow(10.0, value - decade) + 0.5) + 1;
    if (k <= 9) return std::log10(k) + decade;
    return std::ceil(value);
}

}  // namespace

double LogTickGenerator::nextTick(double value, double step) const {
    if (step == kLogTick) return nextOneTwoFive(value);
    if (step == kLinearTick) return nextDigit(value);
    return value + step;
}

double LogTickGenerator::firstTick(double value, double start, double step) const {
    if (isLogSentinel(step)) return std::floor(value);
    return start - std::ceil((start - value) / step) * step;
}

double LogTickGenerator::powerOfTen(double x) {
    if (!std::isfinite(x) || std::fabs(x) > 300) return std::pow(10.0, x);
    double decade = std::floor(x + 1e-9);
    double mantissa = std::round(std::pow(10.0, x - decade) * 1e11) / 1e11;
    double scale = std::pow(10.0, std::fabs(decade));
    return decade >= 0 ? mantissa * scale : mantissa / scale;
}
