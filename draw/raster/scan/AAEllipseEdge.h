#pragma once

#include "draw/raster/scan/AAEdge.h"

// A piece of an ellipse that lies in one half (left or right of the centre) and
// so runs one way in y.
class AAEllipseEdge : public AAEdge {
public:
    // (x1, y1) to (x2, y2) along the ellipse; `reverse` turns the direction.
    AAEllipseEdge(int color, double cx, double cy, double rx, double ry, double x1, double y1,
                  double x2, double y2, bool reverse);
    AASpan spanAt(double y) const override;
    void drawOutline(ShapeTarget *target) const override;
    bool isLeftHalf() const { return leftHalf; }

private:
    double halfWidth(double y) const;
    double xOnEdge(double y) const;

    double cx, cy, rx, ry;
    double rx2, ratio, ratio2;
    bool leftHalf;
    double topX, topY, bottomX, bottomY;
    bool downward;
};
