#include "families/pie/shape/SideSectorSurface.h"

#include "draw/canvas/DrawArea.h"

SideSectorSurface::SideSectorSurface(const SectorGeometry &g, double angle, double z, int mainColor,
                                     int fill, int edgeColor)
    : SectorSurface(kWall, z, mainColor),
      geometry(g),
      angle(angle),
      fill(fill),
      edgeColor(edgeColor) {}

void SideSectorSurface::paint(DrawArea *d) {
    const SectorGeometry &g = geometry;
    d->surface(g.pointX(angle, g.innerRx), g.pointY(angle, g.innerRy), g.pointX(angle, g.rx),
               g.pointY(angle, g.ry), g.depthX, g.depthY, edgeColor, fill);
}
