#include "layers/line/MultiLine.h"

#include <cmath>

#include "foundation/Constants.h"

MultiLine::MultiLine()
    : pendingMaker(nullptr), pendingSet(0), swapXY(false), offsetX(0), offsetY(0) {}

void MultiLine::clear() {
    points.clear();
    canvasPoints.clear();
    pendingMaker = nullptr;
}

void MultiLine::make() {
    if (!pendingMaker) return;
    LineMaker *maker = pendingMaker;
    pendingMaker = nullptr;
    maker->makeLine(pendingSet);
}

double MultiLine::getY(double x) const {
    for (size_t i = 1; i < points.size(); ++i) {
        const Point &a = points[i - 1], &b = points[i];
        if (x < std::fmin(a.x, b.x) || x > std::fmax(a.x, b.x)) continue;
        if (a.gapAfter) return kNoValue;
        return a.x == b.x ? a.y : a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x);
    }
    if (points.size() == 1 && points[0].x == x) return points[0].y;
    return kNoValue;
}

void MultiLine::layout(bool swap, int dx, int dy) {
    swapXY = swap;
    offsetX = dx;
    offsetY = dy;
    canvasPoints.clear();
}

DoubleArray MultiLine::getPoints() {
    make();
    if (canvasPoints.empty()) {
        canvasPoints.reserve(2 * points.size());
        for (const Point &p : points) {
            canvasPoints.push_back((swapXY ? p.y : p.x) + offsetX);
            canvasPoints.push_back((swapXY ? p.x : p.y) + offsetY);
        }
    }
    return DoubleArray(canvasPoints.data(), (int)canvasPoints.size());
}
