#pragma once

#include "chart/axis/scale/TickGenerator.h"

// Walks in log10 units.  Besides plain steps (in decades) it knows two sentinel
// steps: kLogTick, the values 1, 2, 5 of each decade, and kLinearTick, the values
// 1, 2, 3 ... 9 of each decade.
class LogTickGenerator : public TickGenerator {
public:
    double nextTick(double value, double step) const override;
    double firstTick(double value, double start, double step) const override;

    // 10 to the power x, with the mantissa cleaned to 12 digits so that the
    // logarithms of 2 and 5 come back as 2 and 5.
    static double powerOfTen(double x);
};
