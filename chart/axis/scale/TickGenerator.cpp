#include "chart/axis/scale/TickGenerator.h"

#include <cmath>
#include <utility>

#include "foundation/Constants.h"

namespace {

// A walk takes at most this many steps, made ticks or not, before it gives up.
const int kMaxSteps = 4 * TickGenerator::kMaxTicks;

}  // namespace

struct TickGenerator::TickRange {
    double lower;
    double upper;
    double eps;
    double tiny;

    bool contains(double t) const { return t >= lower - eps && t <= upper + eps; }
    // Ticks this close to a limit are the limit; this close to zero, zero.
    double snapToLimit(double t) const {
        if (std::fabs(t - upper) < tiny) return upper;
        if (std::fabs(t - lower) < tiny) return lower;
        return t;
    }
    double snapToZero(double t) const { return std::fabs(t) < tiny ? 0 : t; }
};

bool TickGenerator::isLogSentinel(double step) {
    return step == kLogTick || step == kLinearTick;
}

void TickGenerator::generate(double lower, double upper, double start, double major, double minor) {
    majorTicks.clear();
    minorTicks.clear();
    if (!(major != 0) || !std::isfinite(lower) || !std::isfinite(upper) || !std::isfinite(start))
        return;
    if ((lower < upper && major < 0) || (lower > upper && major > 0)) return;
    if (lower > upper) {
        major = -major;
        if (!isLogSentinel(minor)) minor = -minor;
        std::swap(lower, upper);
        start = firstTick(lower, start, major);
    }
    if (start > lower) start = firstTick(lower, start, major);
    if (!isLogSentinel(minor) && !(minor > 0)) minor = 0;
    walk(lower, upper, start, major, minor);
}

// Minors between the major t and the next, none too close to the next.
void TickGenerator::walkMinors(const TickRange &range, double t, double next, double minor,
                               int &made, int &steps) {
    double previous = t;
    double m = nextTick(t, minor);
    for (; m < next && 2 * (next - m) > m - previous && m <= range.upper + range.eps &&
           made < kMaxTicks + 1 && steps < kMaxSteps;
         ++steps) {
        if (range.contains(m)) {
            minorTicks.push_back(range.snapToZero(m));
            ++made;
        }
        previous = m;
        double after = nextTick(m, minor);
        if (!(after > m)) break;
        m = after;
    }
}

void TickGenerator::walk(double lower, double upper, double start, double major, double minor) {
    double eps = (upper - lower) * 1e-7;
    TickRange range = {lower, upper, eps, eps * 0.001};
    bool withMinors = isLogSentinel(minor) || (minor > 0 && minor < major);
    int made = 0, steps = 0;
    double t = start;
    for (; t <= upper + eps && made <= kMaxTicks && steps < kMaxSteps; ++steps) {
        t = range.snapToLimit(t);
        if (range.contains(t)) {
            majorTicks.push_back(range.snapToZero(t));
            ++made;
        }
        double next = nextTick(t, major);
        if (!(next > t)) break;
        if (withMinors) walkMinors(range, t, next, minor, made, steps);
        t = next;
    }
}
