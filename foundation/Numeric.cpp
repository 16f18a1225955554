#include "foundation/Numeric.h"

#include <cmath>

#include "foundation/Constants.h"

namespace qlx {

double round(double x) {
    return std::floor(x + 0.5);
}

bool isDivisible(double a, double b, double tolerance) {
    double q = a / b;
    return std::fabs(q - std::floor(0.5 + q)) <= tolerance;
}

double pmod(double x, double y) {
    double r = std::fmod(x, y);
    return r < 0 ? r + y : r;
}

double atan(double y, double x) {
    return std::fmod(std::atan2(y, x) * 180 / kPi + 360, 360);
}

double cosDegree(double a) {
    if (std::fmod(a, 90) == 0) {
        int quadrant = (int)std::floor(std::fmod(a, 360) / 90 + 0.5);
        if (quadrant < 0) quadrant += 4;
        if (quadrant % 2 == 1) return 0;
        return quadrant == 0 ? 1 : -1;
    }
    return std::cos(a * kPi / 180);
}

double invN(double p) {
    if (p < 0 || p > 1) return 0;
    if (p < 0.5) return -invN(1 - p);
    double q = p - 0.5;
    if (q <= 0.42) {
        double r = q * q;
        return q *
               (((-25.44106049637 * r + 41.39119773534) * r - 18.61500062529) * r + 2.50662823884) /
               ((((3.13082909833 * r - 21.06224101826) * r + 23.08336743743) * r - 8.4735109309) *
                    r +
                1);
    }
    double r = std::sqrt(-std::log(1 - p));
    return (((2.32121276858 * r + 4.85014127135) * r - 2.29796479134) * r - 2.78718931138) /
           ((1.63706781897 * r + 3.54388924762) * r + 1);
}

double invT(double p, int df) {
    if (p <= 0 || p >= 1 || df <= 0) return -1;
    if (p < 0.5) return -invT(1 - p, df);
    double P = 2 * p;
    if (df == 1) return 1 / std::tan(kPi * P * 0.5);
    if (df == 2) return std::sqrt(2 / ((2 - P) * P) - 2);

    double n = df;
    double a = 1 / (n - 0.5);
    double b = 48 / (a * a);
    double c = ((20700 * a / b - 98) * a - 16) * a + 96.36;
    double d = ((94.5 / (b + c) - 3) / b + 1) * std::sqrt(a * kPi * 0.5) * n;
    double x = d * P;
    double y = std::pow(x, 2 / n);
    if (y > a + 0.05) {
        x = invN(0.5 * P);
        y = x * x;
        if (df < 5) c += 0.3 * (n - 4.5) * (x + 0.6);
        c += (((0.05 * d * x - 5) * x - 7) * x - 2) * x + b;
        y = (((((0.4 * y + 6.3) * y + 36) * y + 94.5) / c - y - 3) / b + 1) * x;
        y = a * y * y;
        y = y > 0.002 ? std::exp(y) - 1 : (0.5 * y + 1) * y;
    } else {
        y = ((1 / (((n + 6) / (n * y) - 0.089 * d - 0.822) * (n + 2) * 3) + 0.5 / (n + 4)) * y -
             1) *
                (n + 1) / (n + 2) +
            1 / y;
    }
    return std::sqrt(n * y);
}

}  // namespace qlx
