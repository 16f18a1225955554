#pragma once

#include "families/pie/shape/SectorGeometry.h"
#include "families/pie/shape/SectorSurface.h"

// The flat wall of a sector along one of its radii, from the centre (or the
// inner rim of a donut) to the outer rim, down to the sector's bottom.
class SideSectorSurface : public SectorSurface {
public:
    SideSectorSurface(const SectorGeometry &g, double angle, double z, int mainColor, int fill,
                      int edgeColor);
    void paint(DrawArea *d) override;

private:
    SectorGeometry geometry;
    double angle;
    int fill;
    int edgeColor;
};
