#include "finance/ArrayMathStats.h"

#include <algorithm>
#include <cmath>

namespace ArrayMathStats {

double populationStdDev(double n, double sum, double sumSq) {
    double radicand = n * sumSq - sum * sum;
    return radicand > 0 ? std::sqrt(radicand) / n : 0;
}

double selectPercentile(double *values, int n, double p) {
    if (n <= 0) return 0;
    if (n == 1) return values[0];
    // Written so that NaN lands on 0.
    p = p > 0 ? std::min(p, 100.0) : 0;
    double rank = (n - 1) * p / 100;
    int k = (int)std::floor(rank);
    std::nth_element(values, values + k, values + n);
    double low = values[k];
    double fraction = rank - k;
    if (fraction == 0) return low;
    double high = *std::min_element(values + k + 1, values + n);
    return low * (1 - fraction) + fraction * high;
}

int gatherReal(const double *a, int len, double *out) {
    int n = 0;
    for (int i = 0; i < len; ++i) {
        if (!isGap(a[i])) out[n++] = a[i];
    }
    return n;
}

}  // namespace ArrayMathStats
