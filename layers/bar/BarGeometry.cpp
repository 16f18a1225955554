#include "layers/bar/BarGeometry.h"

#include <algorithm>
#include <cmath>

#include "foundation/Constants.h"

namespace {

// Truncates towards zero within the int range; at least 1.
int widthOf(double v) {
    if (!(v >= 1)) return 1;
    return (int)std::min(v, (double)(1 << 28));
}

}  // namespace

BarGeometry::BarGeometry(double barGap, double subBarGap, int fixedGroup, int fixedBar, int points,
                         int bars, double span)
    : groupWidth(1),
      barWidth(1),
      gap(0),
      barsPerGroup(std::max(bars, 1)),
      touching(false),
      evenShare(false) {
    int n = std::max(points, 1), G = barsPerGroup;
    if (barGap == kNoValue) {
        groupWidth = std::max(fixedGroup, 1);
    } else {
        groupWidth = widthOf(span * (1 - barGap) / n);
        touching = barGap < 0 && widthOf(span / n) == groupWidth;
    }
    if (subBarGap == kNoValue) {
        barWidth = std::max(fixedBar, 1);
    } else {
        barWidth = widthOf(groupWidth / (G + (G - 1) * subBarGap));
        evenShare = subBarGap < 0 && groupWidth / G == barWidth;
    }
    if (G > 1 && subBarGap != 0)
        gap = (int)std::max(
            std::min((double)(groupWidth - (long long)barWidth * G) / (G - 1), (double)(1 << 28)),
            -(double)(1 << 28));
}

void BarGeometry::centreBlock(int *left, int *right) const {
    if (*left > *right) std::swap(*left, *right);
    if (evenShare) return;
    long long slot = (long long)*right + 1 - *left;
    long long block = (long long)barWidth * barsPerGroup + (long long)gap * (barsPerGroup - 1);
    *left += (int)((slot - block) / 2);
}

void BarGeometry::barSpan(int left, int right, int slot, int *start, int *end) const {
    if (evenShare) {
        long long d = (long long)right + 1 - left;
        *start = left + (int)(d * slot / barsPerGroup);
        *end = left + (int)(d * (slot + 1) / barsPerGroup) - 1;
        return;
    }
    *start = left + slot * (barWidth + gap);
    *end = *start + barWidth - 1;
}
