#include "chart/axis/paint/PaintExtent.h"

#include <algorithm>

void PaintExtent::addPoint(double x, double y) {
    if (empty) {
        empty = false;
        left = right = x;
        top = bottom = y;
        return;
    }
    left = std::min(left, x);
    right = std::max(right, x);
    top = std::min(top, y);
    bottom = std::max(bottom, y);
}

void PaintExtent::addBox(double boxLeft, double boxTop, double width, double height) {
    addPoint(boxLeft, boxTop);
    addPoint(boxLeft + width, boxTop + height);
}

void PaintExtent::add(const PaintExtent &other) {
    if (other.empty) return;
    addPoint(other.left, other.top);
    addPoint(other.right, other.bottom);
}
