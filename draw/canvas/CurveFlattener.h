#pragma once

#include <vector>

// Turns cubic Bezier pieces into polylines by recursive halving, and builds the
// pieces of a smooth curve through given points.
class CurveFlattener {
public:
    struct Point {
        double x, y;
    };

    // Largest squared offset, in pixels squared, of a control point from its place
    // on the chord for a piece to be taken as straight.
    static constexpr double kTolerance = 2.0;

    // Appends the points after p0 up to and including p3.
    static void flattenCubic(Point p0, Point c1, Point c2, Point p3, std::vector<Point> &out);

    // The control points of the piece from p[i] to p[i + 1] of a smooth curve
    // through n points; tangents come from the neighbours, weighted by the chord
    // lengths.  A closed curve wraps around; an open one has free ends.
    static void smoothControls(const Point *p, int n, int i, bool closed, Point *c1, Point *c2);

    // A smooth curve through the points as a polyline, starting with p[0]; a closed
    // curve ends back at p[0].
    static void smoothCurve(const Point *p, int n, bool closed, std::vector<Point> &out);

private:
    static void subdivide(Point p0, Point c1, Point c2, Point p3, int depth,
                          std::vector<Point> &out);
};
