#include "chart/axis/paint/AxisFrame.h"

#include <cmath>

#include "foundation/Constants.h"
#include "foundation/Numeric.h"

AxisFrame::AxisFrame(int side, double x, double y, double dx, double dy, double nx, double ny)
    : side(side), x0(x), y0(y), dx(dx), dy(dy), nx(nx), ny(ny) {}

AxisFrame AxisFrame::upright(int side, double x, double y) {
    switch (side) {
        case kTop:
            return AxisFrame(kTop, x, y, 1, 0, 0, -1);
        case kLeft:
            return AxisFrame(kLeft, x, y, 0, -1, -1, 0);
        case kRight:
            return AxisFrame(kRight, x, y, 0, -1, 1, 0);
        default:
            return AxisFrame(kBottom, x, y, 1, 0, 0, 1);
    }
}

AxisFrame AxisFrame::turned(double angle, double x, double y) {
    double t = (std::isfinite(angle) ? angle : 0) * kPi / 180;
    double c = std::cos(t), s = std::sin(t);
    return AxisFrame(kCenter, x, y, c, s, -s, c);
}

// Upright axes draw on whole pixels, so that lines and ticks stay crisp;
// turned ones on 64ths, which keep the sine's rounding noise out of the drawing.
double AxisFrame::snap(double v) const {
    double steps = side == kCenter ? 64 : 1;
    return std::floor(v * steps + 0.5) / steps;
}

double AxisFrame::pointX(double along, double out) const {
    return snap(x0 + dx * along + nx * out);
}

double AxisFrame::pointY(double along, double out) const {
    return snap(y0 + dy * along + ny * out);
}

double AxisFrame::along(double px, double py) const {
    return (px - x0) * dx + (py - y0) * dy;
}

double AxisFrame::outward(double px, double py) const {
    return (px - x0) * nx + (py - y0) * ny;
}

double AxisFrame::outwardAngle() const {
    return qlx::pmod(std::atan2(ny, nx) * 180 / kPi, 360);
}
