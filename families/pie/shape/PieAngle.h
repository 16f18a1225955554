#pragma once

#include "foundation/Constants.h"

// Angles of a pie in radians: 0 at 12 o'clock, growing clockwise, so that the
// point at angle a on an ellipse is (cx + rx sin a, cy - ry cos a).
class PieAngle {
public:
    static constexpr double kFullCircle = 2 * kPi;

    // t taken into [0, 2 pi); anything not finite gives 0.
    static double normalise(double t);
    // How far t lies from 0 whichever way round: 0 to pi.
    static double fold(double t);
    // Whether t lies on the arc that starts at a and runs span clockwise.
    static bool onArc(double t, double a, double span) { return normalise(t - a) < span; }
    static double toDegrees(double t) { return t * 180 / kPi; }
    static double toRadians(double degrees) { return degrees * kPi / 180; }
    // floor(v + 0.5) as an int, kept within +-2^30.
    static int round(double v);
};
