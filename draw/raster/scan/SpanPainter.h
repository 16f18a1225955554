#pragma once

#include <vector>

#include "draw/raster/scan/AAEdge.h"

class ShapeTarget;

// Paints one pixel row of a shape from the spans of the edges that cross it:
// spans sorted by x, taken in pairs (even-odd), with anti-aliased fringes.
class SpanPainter {
public:
    struct RowSpan {
        AASpan span;
        int edge;  // index of the edge, for an order that doesn't depend on the filler
    };

    SpanPainter(ShapeTarget *target, int color, bool inset);
    // Sorts spans and paints row y.
    void paintRow(std::vector<RowSpan> &spans, int y);
    // The rows a shape with these y bounds paints, limited to the clip; false when none.
    bool rowRange(double minY, double maxY, int *first, int *last) const;

    // Coverage of pixel x from the left edge of a pair (xL, fL) with the right
    // edge (xR, fR), or from the right edge; half is 0.5 for an inset shape.
    static double leftCoverage(double x, double xL, double fL, double xR, double fR, double half);
    static double rightCoverage(double x, double xL, double fL, double xR, double fR, double half);
    // Coverage in sixteenths, rounded.
    static int levelOf(double coverage);

private:
    void paintPair(const AASpan &l, const AASpan &r, int y);
    void fringe(int x, int y, double coverage);

    ShapeTarget *target;
    int color;
    bool antiAlias;
    double half;
    int clipLeft, clipTop, clipRight, clipBottom;
};
