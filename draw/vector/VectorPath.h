#pragma once

#include <vector>

#include "draw/vector/VectorBox.h"

// One step of an outline.  An arc runs over the ellipse of centre (cx, cy) and
// radii rx, ry through the points (cx + rx cos a, cy + ry sin a), a going from
// startAngle by sweep (radians; positive is clockwise on the canvas, where y
// grows downwards).
struct PathSegment {
    enum Kind { kMove, kLine, kArc, kClose };
    Kind kind;
    double x, y;  // the point reached
    double cx, cy, rx, ry;
    double startAngle, sweep;
};

// An outline in canvas space: figures of lines and elliptic arcs.  The form
// tells an output that may write a simpler element what the path is.
class VectorPath {
public:
    enum Form {
        kGeneral,
        kPolyline,  // one open figure of lines
        kPolygon,   // one closed figure of lines
        kRect,      // a rectangle, corners rounded by cornerRadius
    };

    void moveTo(double x, double y);
    void lineTo(double x, double y);
    // From the current point to (x, y) along the half of the ellipse left of its
    // centre (leftHalf) or right of it.
    void halfArcTo(double cx, double cy, double rx, double ry, double x, double y, bool leftHalf);
    void close();
    void clear();
    // The figures of another path added as they are.
    void append(const VectorPath &other);

    // A rectangle, corners rounded with radius r (0 for none).
    static VectorPath rect(const VectorBox &box, double r);

    const std::vector<PathSegment> &segments() const { return steps; }
    bool isEmpty() const { return steps.empty(); }
    bool hasCurrentPoint() const { return !steps.empty(); }
    double currentX() const { return curX; }
    double currentY() const { return curY; }
    VectorBox bounds() const;

    Form form = kGeneral;
    double cornerRadius = 0;

    // The arc as cubic Bézier pieces of at most a quarter turn, each handed to
    // out(c1x, c1y, c2x, c2y, x, y).
    template <class Out>
    static void forEachBezier(const PathSegment &arc, Out out);

private:
    void arcPiece(double cx, double cy, double rx, double ry, double a1, double sweep);

    std::vector<PathSegment> steps;
    double curX = 0, curY = 0, startX = 0, startY = 0;
};

#include "draw/vector/VectorPathBezier.h"
