#pragma once

#include "chart/axis/scale/TickGenerator.h"

// Equal steps of plain values.
class LinearTickGenerator : public TickGenerator {
public:
    double nextTick(double value, double step) const override { return value + step; }
    double firstTick(double value, double start, double step) const override;
};
