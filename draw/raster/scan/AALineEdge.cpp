#include "draw/raster/scan/AALineEdge.h"

#include <algorithm>
#include <cmath>

#include "draw/raster/scan/ShapeTarget.h"

AALineEdge::AALineEdge(int color, double ax1, double ay1, double ax2, double ay2, bool exact)
    : AAEdge(color), x1(ax1), y1(ay1), x2(ax2), y2(ay2), exact(exact) {
    if (!exact) {
        x1 = snap(x1), y1 = snap(y1), x2 = snap(x2), y2 = snap(y2);
        if (std::fabs(x1 - x2) <= 0.001) x2 = x1;
        if (std::fabs(y1 - y2) <= 0.001) y2 = y1;
    }
    yMin = std::min(y1, y2), yMax = std::max(y1, y2);
    xMin = std::min(x1, x2), xMax = std::max(x1, x2);
    if (y1 != y2) {
        slope = (x1 - x2) / (y1 - y2);
        intercept = x1 - y1 * slope;
        factor = 1 / std::sqrt(slope * slope + 1);
    } else {
        slope = 0, intercept = x1, factor = 0;
    }
}

double AALineEdge::xAt(double y) const {
    if (y1 == y2) return x1;
    double x = y * slope + intercept;
    return exact ? x : snap(x);
}

AASpan AALineEdge::spanAt(double y) const {
    AASpan s;
    s.x = xAt(y);
    s.factor = factor;
    double ya = std::max(y - 0.5, yMin), yb = std::min(y + 0.5, yMax);
    double xa = xAt(ya), xb = xAt(yb);
    s.minX = std::max(std::min(xa, xb), xMin);
    s.maxX = std::min(std::max(xa, xb), xMax);
    return s;
}

void AALineEdge::drawOutline(ShapeTarget *target) const {
    target->outlineLine(x1, y1, x2, y2, color);
}
