#pragma once

// Where a filled shape puts its pixels: the raster, or a coverage mask that is
// blended later in one go.  Coordinates are pixels; spans are inclusive.
class ShapeTarget {
public:
    virtual ~ShapeTarget() {}
    // Pixels outside this rectangle (inclusive) are never asked for.
    virtual void getClip(int *left, int *top, int *right, int *bottom) const = 0;
    virtual bool isAntiAlias() const = 0;
    // Pixels x1..x2 of row y fully covered by `color`.
    virtual void solidSpan(int x1, int x2, int y, int color) = 0;
    // A fringe pixel covered level / 16 (1 to 16).
    virtual void fringePixel(int x, int y, int level, int color) = 0;
    // A one-pixel line, the outline of an edge.
    virtual void outlineLine(double x1, double y1, double x2, double y2, int color) = 0;
};
