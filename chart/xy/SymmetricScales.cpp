#include "chart/xy/SymmetricScales.h"

#include <algorithm>
#include <cmath>

#include "foundation/Constants.h"

namespace {

bool hasData(double min, double max) {
    return min != kNoValue && max != kNoValue && min <= max;
}

bool spansZero(double min, double max) {
    return hasData(min, max) && min < 0 && max > 0;
}

double reach(double min, double max) {
    return std::max(std::fabs(min), std::fabs(max));
}

void centre(double m, double *min, double *max) {
    *min = -m;
    *max = m;
}

void centreOwn(bool always, bool ifNeeded, double *min, double *max) {
    if (!hasData(*min, *max)) return;
    if (always || (ifNeeded && spansZero(*min, *max))) centre(reach(*min, *max), min, max);
}

}  // namespace

void SymmetricScales::apply(int mode, double *xMin, double *xMax, double *yMin, double *yMax) {
    bool both = mode & kXYAxisSymmetric;
    bool bothIfNeeded =
        (mode & kXYAxisSymmetricIfNeeded) && (spansZero(*xMin, *xMax) || spansZero(*yMin, *yMax));
    if (both || bothIfNeeded) {
        double m = 0;
        if (hasData(*xMin, *xMax)) m = reach(*xMin, *xMax);
        if (hasData(*yMin, *yMax)) m = std::max(m, reach(*yMin, *yMax));
        if (hasData(*xMin, *xMax)) centre(m, xMin, xMax);
        if (hasData(*yMin, *yMax)) centre(m, yMin, yMax);
        return;
    }
    centreOwn(mode & kXAxisSymmetric, mode & kXAxisSymmetricIfNeeded, xMin, xMax);
    centreOwn(mode & kYAxisSymmetric, mode & kYAxisSymmetricIfNeeded, yMin, yMax);
}
