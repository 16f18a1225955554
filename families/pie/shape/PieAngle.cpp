#include "families/pie/shape/PieAngle.h"

#include <cmath>

double PieAngle::normalise(double t) {
    if (!std::isfinite(t)) return 0;
    double n = std::fmod(t, kFullCircle);
    if (n < 0) n += kFullCircle;
    // fmod of a value just below a multiple can round up to the full circle.
    return n >= kFullCircle ? 0 : n;
}

double PieAngle::fold(double t) {
    double n = normalise(t);
    return n > kPi ? kFullCircle - n : n;
}

int PieAngle::round(double v) {
    const double limit = 1 << 30;
    if (!(v > -limit)) return -(1 << 30);
    if (v > limit) return 1 << 30;
    return (int)std::floor(v + 0.5);
}
