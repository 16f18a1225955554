#include "host/glue/ScaleFactor.h"

#include <climits>

namespace {

double gScaleFactor = 1;

}  // namespace

double getScaleFactor() {
    return gScaleFactor;
}

void setScaleFactor(double factor) {
    if (!(factor >= 1)) factor = 1;
    if (factor > 100) factor = 100;
    gScaleFactor = factor;
}

int scalePixels(int64_t pixels) {
    double v = (double)pixels * gScaleFactor;
    // Out-of-range pixels saturate instead of wrapping into nonsense.
    if (v >= (double)INT_MAX) return INT_MAX;
    if (v <= (double)INT_MIN) return INT_MIN;
    return (int)v;
}

double scalePixels(double pixels) {
    return pixels * gScaleFactor;
}
