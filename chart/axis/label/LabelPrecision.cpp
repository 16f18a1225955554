#include "chart/axis/label/LabelPrecision.h"

#include <algorithm>
#include <cmath>

namespace LabelPrecision {

namespace {

const int kMostDecimals = 4;

// Decimals of the fraction of v, read to four places.
int fractionDecimals(double v) {
    double n = std::floor(10000 * (v - std::floor(v)) + 0.5);
    if (!(n >= 1 && n <= 9999)) return 0;
    if (std::fmod(n, 1000) == 0) return 1;
    if (std::fmod(n, 100) == 0) return 2;
    if (std::fmod(n, 10) == 0) return 3;
    return kMostDecimals;
}

// Decimals that show a difference of d; 0 for differences of 10 and more.
int spacingDecimals(double d) {
    double decimals = std::ceil(-std::log10(d));
    if (!(decimals >= 0)) return 0;
    if (decimals > 300) return kMostDecimals;
    int k = (int)decimals;
    double n = std::floor(d * std::pow(10.0, k + 2) + 0.5);
    if (n > 999) return k - 1;
    if (std::fmod(n, 100) == 0) return k;
    if (std::fmod(n, 10) == 0) return k + 1;
    return k + 2;
}

}  // namespace

int decimalsFor(const std::vector<double> &values) {
    int fromFractions = 0;
    for (size_t i = 0; i < values.size() && fromFractions < kMostDecimals; ++i)
        fromFractions = std::max(fromFractions, fractionDecimals(values[i]));
    if (values.size() < 2) return fromFractions;

    double smallest = HUGE_VAL, largest = 0;
    for (size_t i = 1; i < values.size(); ++i) {
        double d = std::fabs(values[i] - values[i - 1]);
        smallest = std::min(smallest, d);
        largest = std::max(largest, d);
    }
    if (largest > 9.9999 * smallest || !(smallest > 0)) return -1;
    int fromSpacing = 0;
    for (size_t i = 1; i < values.size(); ++i)
        fromSpacing = std::max(fromSpacing, spacingDecimals(std::fabs(values[i] - values[i - 1])));
    return std::max(fromFractions, fromSpacing);
}

}  // namespace LabelPrecision
