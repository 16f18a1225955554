#include "chart/axis/scale/LinearScaler.h"

#include <algorithm>
#include <cmath>

#include "chart/axis/scale/LinearTickGenerator.h"
#include "chart/axis/scale/TickStep.h"
#include "foundation/Numeric.h"

void LinearScaler::scaleAscending(double lower, double upper, int n, int m,
                                  ScaleOutcome &out) const {
    spreadEqualLimits(lower, upper);
    extend(lower, upper);
    chooseTicks(lower, upper, n, m, out);
}

void LinearScaler::extend(double &lower, double &upper) const {
    double top = record.getTopExtension();
    double bottom = record.getBottomExtension();
    double zero = record.getZeroAffinity();
    if (lower > 0 && zero * upper >= lower) lower = 0;
    if (upper < 0 && upper >= zero * lower) upper = 0;
    if (lower == 0) bottom = 0;
    if (upper == 0) top = 0;
    if ((top == 0 && bottom == 0) || !(top + bottom < 1)) return;
    double room = 1 - top - bottom;
    double range = upper - lower;
    double up = top * range / room;
    double down = bottom * range / room;
    if (lower >= 0) {
        upper += up;
        lower = std::max(lower - down, 0.0);
    } else {
        lower -= down;
        upper = upper <= 0 ? std::min(upper + up, 0.0) : upper + up;
    }
}

double LinearScaler::stepThroughZero(double lower, double upper, int count) {
    // The ticks above zero; NaN (from limits grown past the doubles) counts as none.
    double above = std::floor(upper / (upper - lower) * count + 0.5);
    int k = above >= count ? count - 1 : above > 0 ? (int)above : 0;
    if (k <= 0) k = 1;
    return std::max(-lower / (count - k), upper / k);
}

void LinearScaler::applyMinTickInc(double &major, double &minor) const {
    double least = record.minTickInc;
    if (least > major) {
        major = TickSteps::getTickInc(least);
        minor = major;
    } else if (least > minor) {
        if (qlx::isDivisible(major, least, 0.0001)) {
            minor = least;
        } else {
            minor = TickSteps::getTickInc(least);
            if (!qlx::isDivisible(major, minor, 0.0001)) minor = major;
        }
    }
}

void LinearScaler::chooseTicks(double lower, double upper, int n, int m, ScaleOutcome &out) const {
    bool throughZero = lower < 0 && upper > 0 && (record.roundsMin() || record.roundsMax());
    double major, minor, base;
    if (n < 2) {
        // One interval over the whole axis, cut by the minors.
        double step =
            throughZero ? stepThroughZero(lower, upper, std::max(m, 2)) : (upper - lower) / m;
        minor = TickSteps::getTickInc(step);
        if (record.minTickInc > minor) minor = TickSteps::getTickInc(record.minTickInc);
        base = std::floor(lower / minor) * minor;
        major = std::ceil(upper / minor) * minor - base;
        if (m == 1) minor = major;
    } else {
        double step = throughZero ? stepThroughZero(lower, upper, n) : (upper - lower) / n;
        TickStep chosen = TickSteps::getTickInc(step, m);
        major = chosen.major;
        minor = chosen.minor;
        applyMinTickInc(major, minor);
        base = std::floor(lower / major) * major;
    }
    if (record.roundsMin()) lower = base;
    if (record.roundsMax()) upper = std::ceil((upper - base) / major - 1e-10) * major + base;

    LinearTickGenerator generator;
    generator.generate(lower, upper, base, major, minor);
    out.lower = lower;
    out.upper = upper;
    out.linearSteps = true;
    takeTicks(generator, out);
}
