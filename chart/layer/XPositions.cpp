#include "chart/layer/XPositions.h"

#include <algorithm>
#include <cmath>

#include "foundation/Constants.h"

namespace {

double given(double v) {
    return std::isfinite(v) ? v : kNoValue;
}

}  // namespace

XPositions::XPositions() : ascending(true), minValue(kNoValue), maxValue(kNoValue) {}

void XPositions::setValues(DoubleArray x) {
    // One pass that copies, cleans and checks the order.  Gaps break the
    // order: such data are searched point by point.
    int n = x.data ? std::max(x.len, 0) : 0;
    values.resize(n);
    bool rising = true;
    double before = -HUGE_VAL;
    for (int i = 0; i < n; ++i) {
        double v = given(x.data[i]);
        values[i] = v;
        rising &= v != kNoValue && before <= v;
        before = v;
    }
    ascending = rising;
}

void XPositions::setRange(double lower, double upper) {
    minValue = given(lower);
    maxValue = given(upper);
}

int XPositions::nearestByScan(double x, int count) const {
    int best = -1;
    double bestDistance = 0;
    for (int i = 0; i < count; ++i) {
        double p = at(i, count);
        if (p == kNoValue) continue;
        double distance = std::fabs(p - x);
        if (best < 0 || distance < bestDistance) {
            best = i;
            bestDistance = distance;
        }
    }
    return best;
}

int XPositions::nearestIndex(double x, int count) const {
    if (count <= 0 || !std::isfinite(x)) return -1;
    if (values.empty() && hasRange() && count > 1 && maxValue != minValue) {
        double f = (x - minValue) / (maxValue - minValue) * (count - 1);
        // A half lies between two points: the lower one wins.
        double i = std::ceil(f - 0.5);
        return (int)std::max(0.0, std::min(i, (double)count - 1));
    }
    if (isEnumerated()) return (int)std::max(0.0, std::min(std::ceil(x - 0.5), (double)count - 1));
    if (!values.empty() && ascending) {
        int n = std::min(count, (int)values.size());
        if (n <= 0) return -1;
        int hi = (int)(std::lower_bound(values.begin(), values.begin() + n, x) - values.begin());
        if (hi >= n) return n - 1;
        if (hi == 0) return 0;
        return x - values[hi - 1] <= values[hi] - x ? hi - 1 : hi;
    }
    return nearestByScan(x, count);
}

int XPositions::indexOf(double x, double tolerance, int count) const {
    int i = nearestIndex(x, count);
    if (i < 0) return -1;
    double p = at(i, count);
    return p != kNoValue && std::fabs(p - x) <= std::fabs(tolerance) ? i : -1;
}

void XPositions::range(int from, int to, int count, double *min, double *max) const {
    *min = *max = kNoValue;
    from = std::max(from, 0);
    to = std::min(to, count);
    if (from >= to) return;
    if (values.empty()) {
        // Evenly spread positions rise or fall with the index.
        double a = at(from, count), b = at(to - 1, count);
        *min = std::min(a, b);
        *max = std::max(a, b);
        return;
    }
    // Rising positions without gaps start and end the range.
    if (ascending && to <= (int)values.size()) {
        *min = values[from];
        *max = values[to - 1];
        return;
    }
    bool any = false;
    for (int i = from; i < to && i < (int)values.size(); ++i) {
        double p = values[i];
        if (p == kNoValue) continue;
        if (!any || p < *min) *min = p;
        if (!any || p > *max) *max = p;
        any = true;
    }
}
