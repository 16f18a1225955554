#include "draw/canvas/ShapePath.h"

#include <cmath>

#include "draw/pixel/ColorWords.h"
#include "foundation/Constants.h"

ShapePath::ShapePath(MetaDraw *list, int edgeColor)
    : shape(list->createShape()),
      edgeColor(edgeColor),
      open(false),
      startX(0),
      startY(0),
      curX(0),
      curY(0) {}

ShapePath::~ShapePath() {
    shape->destroy();
}

// Exact on the axes, so that the halves of an ellipse meet on its vertical axis.
double ShapePath::pointX(double cx, double rx, double angle) {
    return std::fmod(angle, 180) == 0 ? cx : cx + rx * std::sin(angle * kPi / 180);
}

double ShapePath::pointY(double cy, double ry, double angle) {
    return std::fmod(angle, 180) == 90 || std::fmod(angle, 180) == -90
               ? cy
               : cy - ry * std::cos(angle * kPi / 180);
}

void ShapePath::moveTo(double x, double y) {
    close();
    startX = curX = x;
    startY = curY = y;
    open = true;
}

void ShapePath::lineTo(double x, double y) {
    if (!open) {
        moveTo(x, y);
        return;
    }
    if (x != curX || y != curY) shape->addLine(edgeColor, false, curX, curY, x, y);
    curX = x;
    curY = y;
}

void ShapePath::arcTo(double cx, double cy, double rx, double ry, double a1, double a2) {
    double x1 = pointX(cx, rx, a1), y1 = pointY(cy, ry, a1);
    if (open)
        lineTo(x1, y1);
    else
        moveTo(x1, y1);
    if (a1 == a2 || rx <= 0 || ry <= 0) return;
    // Split at every multiple of 180 degrees between the two angles.
    double step = a2 > a1 ? 180 : -180;
    double from = a1;
    while ((a2 - from) * step > 0) {
        double edge =
            step > 0 ? (std::floor(from / 180) + 1) * 180 : (std::ceil(from / 180) - 1) * 180;
        double to = (a2 - edge) * step > 0 ? edge : a2;
        arcPiece(cx, cy, rx, ry, from, to);
        from = to;
    }
}

void ShapePath::arcPiece(double cx, double cy, double rx, double ry, double a1, double a2) {
    double x2 = pointX(cx, rx, a2), y2 = pointY(cy, ry, a2);
    shape->addArc(edgeColor, cx, cy, rx, ry, pointX(cx, rx, a1), pointY(cy, ry, a1), x2, y2);
    curX = x2;
    curY = y2;
}

void ShapePath::close() {
    if (open) lineTo(startX, startY);
    open = false;
}

void ShapePath::roundedRect(double x1, double y1, double x2, double y2, const double radius[4]) {
    double r0 = radius[0], r1 = radius[1], r2 = radius[2], r3 = radius[3];
    moveTo(x1 + r0, y1);
    lineTo(x2 - r1, y1);
    if (r1 > 0) arcTo(x2 - r1, y1 + r1, r1, r1, 0, 90);
    lineTo(x2, y2 - r2);
    if (r2 > 0) arcTo(x2 - r2, y2 - r2, r2, r2, 90, 180);
    lineTo(x1 + r3, y2);
    if (r3 > 0) arcTo(x1 + r3, y2 - r3, r3, r3, 180, 270);
    lineTo(x1, y1 + r0);
    if (r0 > 0) arcTo(x1 + r0, y1 + r0, r0, r0, 270, 360);
    close();
}

void ShapePath::paint(int fillColor) {
    close();
    shape->paint(fillColor, false, false);
}
