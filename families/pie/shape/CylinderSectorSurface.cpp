#include "families/pie/shape/CylinderSectorSurface.h"

#include "draw/canvas/DrawArea.h"

CylinderSectorSurface::CylinderSectorSurface(const SectorGeometry &g, double start, double span,
                                             bool inner, double z, int mainColor, int fill,
                                             int edgeColor)
    : SectorSurface(kWall, z, mainColor),
      geometry(g),
      start(start),
      span(span),
      inner(inner),
      fill(fill),
      edgeColor(edgeColor) {}

void CylinderSectorSurface::paint(DrawArea *d) {
    const SectorGeometry &g = geometry;
    int rx = inner ? g.innerRx : g.rx, ry = inner ? g.innerRy : g.ry;
    d->cylinder(g.x, g.y, rx, ry, PieAngle::toDegrees(start), PieAngle::toDegrees(start + span),
                g.depthX, g.depthY, edgeColor, fill);
}
