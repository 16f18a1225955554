#pragma once

#include <vector>

#include "draw/raster/DrawBMP.h"

class AAEdge;
class ShapeTarget;
class SpanPainter;

// A shape of straight and elliptic edges filled with the even-odd rule and
// anti-aliased fringes.  Small shapes test every edge on each row; larger ones
// go to the active-edge filler, which gives the same pixels.
class AAShape : public DrawBMP::BMPShape {
public:
    // Shapes up to this many edges are filled by the direct loop.
    static const int kMaxDirectEdges = 20;

    // target may be null when the shape is only painted through paintOn.
    explicit AAShape(ShapeTarget *target, bool exact = false);
    ~AAShape() override;

    void addLine(int color, bool exact, double x1, double y1, double x2, double y2) override;
    void addArc(int color, double cx, double cy, double rx, double ry, double x1, double y1,
                double x2, double y2) override;
    void addArc2(int color, bool reverse, double cx, double cy, double rx, double ry, double x1,
                 double y1, double x2, double y2) override;
    void paint(int color, bool inset, bool keepOutline) override;

    void paintOn(ShapeTarget *on, int color, bool inset, bool keepOutline);
    // The same pixels by the direct loop or by the active-edge filler.
    // The rows the edges reach within the painter's clip; false when none.
    bool rowRange(const SpanPainter &painter, int *first, int *last) const;
    void fillDirect(ShapeTarget *on, int color, bool inset);
    void fillGeneral(ShapeTarget *on, int color, bool inset);
    int edgeCount() const { return (int)edges.size(); }
    void clear();

private:
    void addEdge(AAEdge *edge);

    ShapeTarget *target;
    bool exact;
    std::vector<AAEdge *> edges;
};
