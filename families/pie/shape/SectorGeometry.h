#pragma once

#include "families/pie/shape/PieAngle.h"

// Where one sector stands once the pie is laid out: its centre (moved by
// explosion and by its own depth), radii, arc and depth.  Pixel values are
// ints; angles are radians of PieAngle.
struct SectorGeometry {
    int x = 0;
    int y = 0;
    int rx = 1;
    int ry = 1;
    int innerRx = 0;
    int innerRy = 0;
    double start = 0;
    // Clockwise from start; 2 pi for a whole disc.
    double span = 0;
    double mid = 0;
    // The offset of the sector's bottom from its top, in pixels of the picture.
    int depthX = 0;
    int depthY = 0;

    double end() const { return PieAngle::normalise(start + span); }
    bool isWhole() const { return span >= PieAngle::kFullCircle; }
    bool hasDepth() const { return depthX != 0 || depthY != 0; }
    bool isDonut() const { return innerRx > 0 && innerRy > 0; }
    // The point at angle t on the ellipse of radii (radiusX, radiusY) about the centre.
    double pointX(double t, double radiusX) const;
    double pointY(double t, double radiusY) const;
};
