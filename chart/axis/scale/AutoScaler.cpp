#include "chart/axis/scale/AutoScaler.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "chart/axis/scale/TickGenerator.h"

namespace {

bool allFinite(const std::vector<double> &values) {
    return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

void negate(std::vector<double> &values) {
    for (double &v : values) v = -v;
}

}  // namespace

double ScaleOutcome::tickStep() const {
    return majorTicks.size() < 2 ? 0 : std::fabs(majorTicks[1] - majorTicks[0]);
}

bool AutoScaler::scale(double lower, double upper, int n, int m, ScaleOutcome &out) const {
    out = ScaleOutcome();
    if (!std::isfinite(lower) || !std::isfinite(upper)) return false;
    bool mirrored = prepare(lower, upper);
    bool swapped = lower > upper;
    if (swapped) std::swap(lower, upper);
    scaleAscending(lower, upper, std::max(n, 1), std::max(m, 1), out);
    if (swapped) std::swap(out.lower, out.upper);
    if (mirrored) {
        out.lower = -out.lower;
        out.upper = -out.upper;
        negate(out.majorTicks);
        negate(out.minorTicks);
    }
    return std::isfinite(out.lower) && std::isfinite(out.upper) && allFinite(out.majorTicks) &&
           allFinite(out.minorTicks);
}

void AutoScaler::spreadEqualLimits(double &lower, double &upper) {
    if (lower != upper) return;
    double half = std::fabs(lower) / 2;
    upper += half;
    lower -= half;
    if (lower == upper) {
        lower = 0;
        upper = 100;
    }
}

void AutoScaler::takeTicks(const TickGenerator &generator, ScaleOutcome &out) {
    out.majorTicks = generator.getMajorTicks();
    out.minorTicks = generator.getMinorTicks();
    if (out.majorTicks.size() < 2 && out.minorTicks.empty())
        out.majorTicks = {out.lower, out.upper};
}
