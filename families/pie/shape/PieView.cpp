#include "families/pie/shape/PieView.h"

#include <algorithm>

#include "families/pie/shape/PieAngle.h"

namespace {

// Arc ends closer than this to the far point don't count as holding it.
const double kFarPointMargin = 0.0001;

}  // namespace

PieView::PieView(double direction, bool severalDepths)
    : direction(PieAngle::normalise(direction)), severalDepths(severalDepths) {}

double PieView::zOrder(double a, double b) const {
    double arc = PieAngle::normalise(b - a);
    if (severalDepths) {
        // A tall sector's wall across the far point stands behind everything.
        double far = PieAngle::normalise(direction + kPi);
        if (arc > PieAngle::normalise(far - a) && PieAngle::fold(a - far) > kFarPointMargin &&
            PieAngle::fold(b - far) > kFarPointMargin)
            return kPi;
    }
    if (arc > PieAngle::normalise(direction - a)) return 0;
    return std::min(PieAngle::fold(direction - a), PieAngle::fold(direction - b));
}

bool PieView::isNearHalf(double t) const {
    return PieAngle::normalise(t - (direction - kPi / 2)) < kPi;
}
