#pragma once

#include "layers/line/PointStream.h"

// One pass of Sutherland-Hodgman clipping: keeps the part of a polygon on the
// inner side of one bound and hands it to the next stream.  A point inside is
// passed on; an edge that crosses the bound passes on the crossing.
class SideClipper : public PointStream {
public:
    // The inner side of each kind of bound.
    enum Side { kAtLeastX, kAtLeastY, kAtMostX, kAtMostY };

    SideClipper(Side side, double bound, PointStream *next);
    void addPoint(double x, double y) override;
    void close() override;

private:
    bool inside(double x, double y) const;
    // Passes on where the edge from the previous point to (x, y) crosses the bound.
    void passCrossing(double x, double y);

    Side side;
    double bound;
    PointStream *next;
    bool started;
    double firstX, firstY;
    double lastX, lastY;
};
