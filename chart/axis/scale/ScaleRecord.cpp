#include "chart/axis/scale/ScaleRecord.h"

namespace {

double unsetAsZero(double v) {
    return v == kNoValue ? 0 : v;
}

double notNegative(double v) {
    return v == kNoValue || v >= 0 ? v : 0;
}

}  // namespace

void ScaleRecord::setExtensions(double top, double bottom) {
    double newTop = top != kNoValue ? notNegative(top) : topExtension;
    double newBottom = bottom != kNoValue ? notNegative(bottom) : bottomExtension;
    // NaN fails the test as well, and is refused with it.
    if (!(unsetAsZero(newTop) + unsetAsZero(newBottom) < 1)) return;
    topExtension = newTop;
    bottomExtension = newBottom;
}

void ScaleRecord::setZeroAffinity(double zero) {
    if (zero == kNoValue) return;
    if (zero > 1) {
        zeroAffinity = 1;
    } else if (zero > 0) {
        zeroAffinity = zero;
    } else {
        zeroAffinity = 0;
    }
}
