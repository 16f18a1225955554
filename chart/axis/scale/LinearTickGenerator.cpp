#include "chart/axis/scale/LinearTickGenerator.h"

#include <cmath>

double LinearTickGenerator::firstTick(double value, double start, double step) const {
    return start - std::ceil((start - value) / step) * step;
}
