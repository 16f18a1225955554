#pragma once

#include "families/pie/shape/SectorGeometry.h"
#include "families/pie/shape/SectorPaintStyle.h"
#include "families/pie/shape/SectorSurface.h"

// The top of a sector, filled by its shading method, with its edge.
class TopSectorSurface : public SectorSurface {
public:
    TopSectorSurface(const SectorGeometry &g, const SectorPaintStyle &s);

    void paint(DrawArea *d) override;
    // The ring sector between the two ellipses as one shape of the canvas: a
    // whole ring or disc when the sector is whole.  An edge wider than a pixel
    // is drawn over the shape.
    void paintRing(DrawArea *d, double rx, double ry, double innerRx, double innerRy, int edgeColor,
                   int edgeWidth, int fill) const;

private:
    void paintConcave(DrawArea *d, int fill) const;
    void paintGlare(DrawArea *d) const;

    SectorGeometry geometry;
    SectorPaintStyle style;
};
