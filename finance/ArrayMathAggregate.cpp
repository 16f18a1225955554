#include "finance/ArrayMathAggregate.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "finance/ArrayMath.h"
#include "finance/ArrayMathStats.h"

using ArrayMathStats::isGap;

namespace ArrayMathAggregate {

namespace {

struct Sums {
    int count = 0;
    double sum = 0;
    double sumSq = 0;
    double low = kNoValue;
    double high = -kNoValue;
};

Sums sumUp(const double *group, int len) {
    Sums s;
    for (int i = 0; i < len; ++i) {
        double v = group[i];
        if (isGap(v)) continue;
        ++s.count;
        s.sum += v;
        s.sumSq += v * v;
        s.low = std::min(s.low, v);
        s.high = std::max(s.high, v);
    }
    return s;
}

double groupPercentile(const double *group, int len, double p) {
    std::vector<double> values(len);
    int n = ArrayMathStats::gatherReal(group, len, values.data());
    return ArrayMathStats::selectPercentile(values.data(), n, p);
}

}  // namespace

double reduce(const double *group, int len, int method, double param) {
    Sums s = sumUp(group, len);
    if (s.count == 0) return method == kAggregateCount ? 0 : kNoValue;
    switch (method) {
        case kAggregateSum:
            return s.sum;
        case kAggregateStdDev:
            return ArrayMathStats::populationStdDev(s.count, s.sum, s.sumSq);
        case kAggregateMin:
            return s.low;
        case kAggregateMax:
            return s.high;
        case kAggregateMed:
            return groupPercentile(group, len, 50);
        case kAggregatePercentile:
            return groupPercentile(group, len, param);
        case kAggregateFirst:
            return ArrayMathStats::gapForNaN(group[0]);
        case kAggregateLast:
            return ArrayMathStats::gapForNaN(group[len - 1]);
        case kAggregateCount:
            return s.count;
        default:
            return s.sum / s.count;
    }
}

int aggregate(const double *keys, int keyLen, double *src, int srcLen, int method, double param) {
    if (keyLen <= 0 || srcLen <= 0) return std::max(srcLen, 0);
    int walked = std::min(keyLen, srcLen);
    int groups = 0;
    for (int start = 0; start < walked;) {
        int end = start + 1;
        while (end < walked && isGap(keys[end])) ++end;
        // Never ahead of `start`, so no unread item is overwritten.
        src[groups++] = reduce(src + start, end - start, method, param);
        start = end;
    }
    int tail = srcLen - walked;
    if (tail > 0) std::memmove(src + groups, src + walked, tail * sizeof(double));
    return groups + tail;
}

}  // namespace ArrayMathAggregate
