#include "layers/line/SideClipper.h"

SideClipper::SideClipper(Side side, double bound, PointStream *next)
    : side(side),
      bound(bound),
      next(next),
      started(false),
      firstX(0),
      firstY(0),
      lastX(0),
      lastY(0) {}

bool SideClipper::inside(double x, double y) const {
    switch (side) {
        case kAtLeastX:
            return x >= bound;
        case kAtLeastY:
            return y >= bound;
        case kAtMostX:
            return x <= bound;
        default:
            return y <= bound;
    }
}

void SideClipper::passCrossing(double x, double y) {
    bool alongX = side == kAtLeastX || side == kAtMostX;
    double from = alongX ? lastX : lastY, to = alongX ? x : y;
    double t = (bound - from) / (to - from);
    if (alongX)
        next->addPoint(bound, lastY + (y - lastY) * t);
    else
        next->addPoint(lastX + (x - lastX) * t, bound);
}

void SideClipper::addPoint(double x, double y) {
    bool in = inside(x, y);
    if (!started) {
        started = true;
        firstX = x, firstY = y;
    } else if (in != inside(lastX, lastY)) {
        passCrossing(x, y);
    }
    if (in) next->addPoint(x, y);
    lastX = x, lastY = y;
}

void SideClipper::close() {
    if (started && inside(firstX, firstY) != inside(lastX, lastY)) passCrossing(firstX, firstY);
    started = false;
    next->close();
}
