#pragma once

#include "foundation/Constants.h"

// Small numeric rules shared by every part of the array calculator.
namespace ArrayMathStats {

// kNoValue and NaN both mark a missing number.
inline bool isGap(double v) {
    return v == kNoValue || v != v;
}

// Arguments meant as values store NaN as a gap.
inline double gapForNaN(double v) {
    return v != v ? kNoValue : v;
}

// Population deviation from running sums; rounding can leave the radicand at
// or below zero for a flat series, which reads as no deviation at all.
double populationStdDev(double n, double sum, double sumSq);

// Percentile of n real values by selection (the values are reordered).
// p is clamped to 0..100; no values give 0.
double selectPercentile(double *values, int n, double p);

// Copies the real values of a[0..len) to out and returns their count.
int gatherReal(const double *a, int len, double *out);

}  // namespace ArrayMathStats
