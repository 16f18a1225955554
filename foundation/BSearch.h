#pragma once

#include <vector>

namespace qlx {

// Fractional index of v in the ascending run a[0..n-1]: the lower bound, or the
// linear position between its two neighbours.  -1 for an empty run.
template <class T>
double bSearch(const T *a, int n, double v) {
    if (n <= 0) return -1;
    int lo = 0, hi = n;
    while (lo < hi) {
        int mid = lo + (hi - lo) / 2;
        if (a[mid] < v)
            lo = mid + 1;
        else
            hi = mid;
    }
    if (lo == n) return n - 1;
    if (lo == 0) return 0;
    double upper = a[lo], lower = a[lo - 1];
    if (upper == v) return lo;
    return lo - (upper - v) / (upper - lower);
}

template <class T>
double bSearch(const std::vector<T> &a, double v) {
    return bSearch(a.data(), (int)a.size(), v);
}

}  // namespace qlx
