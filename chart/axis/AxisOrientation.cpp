#include "chart/axis/AxisOrientation.h"

#include <cmath>

#include "foundation/Numeric.h"

namespace {

const int kWideSpacing = 50;
const int kNarrowSpacing = 20;

bool standsUpright(const AxisOrientation &o) {
    if (o.alignment == kLeft || o.alignment == kRight) return true;
    if (o.alignment != kCenter) return false;
    double a = qlx::pmod(o.angle, 360);
    return a >= 300 || a <= 60 || (a >= 120 && a <= 240);
}

}  // namespace

int AxisOrientation::defaultTickSpacing() const {
    double a = std::fmod(std::fabs(labelAngle), 180);
    bool alongAxis = standsUpright(*this) ? a >= 75.1 && a <= 104.9 : a < 15 || a > 165;
    return alongAxis ? kWideSpacing : kNarrowSpacing;
}
