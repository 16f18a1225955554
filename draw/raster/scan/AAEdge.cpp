#include "draw/raster/scan/AAEdge.h"

#include <cmath>

double AAEdge::snap(double v) {
    double r = std::floor(v + 0.5);
    return std::fabs(v - r) <= 0.001 ? r : v;
}
