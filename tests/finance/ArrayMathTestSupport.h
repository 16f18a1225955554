#pragma once

#include <memory>
#include <random>
#include <vector>

#include "finance/ArrayMath.h"
#include "foundation/Constants.h"

// Owns an ArrayMath for the length of a test.
struct ArrayMathDestroyer {
    void operator()(ArrayMath *m) const { m->destroy(); }
};
using ArrayMathPtr = std::unique_ptr<ArrayMath, ArrayMathDestroyer>;

inline ArrayMathPtr makeArrayMath(const std::vector<double> &v) {
    return ArrayMathPtr(ArrayMath::create(DoubleArray(v.data(), (int)v.size())));
}

inline DoubleArray viewOf(const std::vector<double> &v) {
    return DoubleArray(v.data(), (int)v.size());
}

inline std::vector<double> valuesOf(const ArrayMath &m) {
    DoubleArray r = m.result();
    return std::vector<double>(r.data, r.data + r.len);
}

inline bool isGapValue(double v) {
    return v == kNoValue || v != v;
}

// Random values in [-100, 100] with about gapShare of them gaps. With
// coarse set, values are whole numbers so that ties are common.
inline std::vector<double> randomSeries(std::mt19937 &rng, int n, double gapShare, bool coarse) {
    std::uniform_real_distribution<double> value(-100, 100);
    std::uniform_real_distribution<double> unit(0, 1);
    std::vector<double> v(n);
    for (double &x : v) {
        x = unit(rng) < gapShare ? kNoValue : value(rng);
        if (coarse && x != kNoValue) x = (double)(int)(x / 20);
    }
    return v;
}
