#include "families/pie/shape/SectorGeometry.h"

#include <cmath>

double SectorGeometry::pointX(double t, double radiusX) const {
    return x + radiusX * std::sin(t);
}

double SectorGeometry::pointY(double t, double radiusY) const {
    return y - radiusY * std::cos(t);
}
