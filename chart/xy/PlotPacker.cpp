#include "chart/xy/PlotPacker.h"

#include <algorithm>
#include <cstdlib>

namespace {

int clampToInt(long long v) {
    return (int)std::max(std::min(v, 0x7FFFFFFFLL), -0x7FFFFFFFLL);
}

}  // namespace

PlotSpan PlotPacker::fit(int low, int high, int lowNeed, int highNeed, int depth, int minLength) {
    long long lo = low, hi = high, l = std::max(lowNeed, 0), r = std::max(highNeed, 0);
    long long d = depth;
    long long excess = lo + std::llabs(d) - hi + std::max(minLength, 1) + l + r;
    if (excess > 0) {
        long long lowShare = l + r > 0 ? excess * l / (l + r) : excess / 2;
        lo -= lowShare;
        hi += excess - lowShare;
    }
    long long start = lo + l + std::max(-d, 0LL);
    long long length = std::max(hi - r - std::max(d, 0LL) - start, 1LL);
    return {clampToInt(start), clampToInt(length)};
}
