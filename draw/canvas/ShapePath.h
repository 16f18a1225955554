#pragma once

#include "draw/list/MetaDraw.h"

// Builds a filled outline on a display list from lines and elliptic arcs, in
// drawing order.  Arcs are split where they cross the vertical axis of their
// ellipse, so that every arc edge lies in one half and runs one way in y.
// Angles are degrees, 0 at 12 o'clock, clockwise.
class ShapePath {
public:
    ShapePath(MetaDraw *list, int edgeColor);
    ~ShapePath();
    ShapePath(const ShapePath &) = delete;
    ShapePath &operator=(const ShapePath &) = delete;

    void setEdgeColor(int color) { edgeColor = color; }
    void moveTo(double x, double y);
    void lineTo(double x, double y);
    // From the current point (or the arc's start when there is none) along the
    // ellipse from a1 to a2; a2 below a1 runs anti-clockwise.
    void arcTo(double cx, double cy, double rx, double ry, double a1, double a2);
    // Back to the start of the current figure.
    void close();
    // Corner radii top-left, top-right, bottom-right, bottom-left.
    void roundedRect(double x1, double y1, double x2, double y2, const double radius[4]);
    void paint(int fillColor);

    static double pointX(double cx, double rx, double angle);
    static double pointY(double cy, double ry, double angle);

private:
    void arcPiece(double cx, double cy, double rx, double ry, double a1, double a2);

    MetaDraw::MetaShape *shape;
    int edgeColor;
    bool open;
    double startX, startY, curX, curY;
};
