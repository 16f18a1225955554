#pragma once

#include "families/pie/shape/SectorGeometry.h"
#include "families/pie/shape/SectorSurface.h"

// A part of a sector's curved wall, outer or inner (a donut's), between two
// angles and down to the sector's bottom: one shape of the canvas, so that a
// wall has no seam inside a part.
class CylinderSectorSurface : public SectorSurface {
public:
    CylinderSectorSurface(const SectorGeometry &g, double start, double span, bool inner, double z,
                          int mainColor, int fill, int edgeColor);
    void paint(DrawArea *d) override;

    double getStart() const { return start; }
    double getSpan() const { return span; }
    bool isInner() const { return inner; }

private:
    SectorGeometry geometry;
    double start;
    double span;
    bool inner;
    int fill;
    int edgeColor;
};
