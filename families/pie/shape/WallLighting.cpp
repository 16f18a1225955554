#include "families/pie/shape/WallLighting.h"

#include "draw/canvas/DrawArea.h"
#include "families/pie/shape/SectorGeometry.h"

namespace {

// Position (0 to 256 across the pie) and brightness pairs, left to right.
const int kOuterLight[] = {0, 700, 80, 1180, 170, 940, 256, 560};
const int kInnerLight[] = {0, 560, 86, 940, 176, 1180, 256, 700};

}  // namespace

int WallLighting::curvedWall(DrawArea *d, int color, const SectorGeometry &g, bool inner) {
    const int *table = inner ? kInnerLight : kOuterLight;
    int rx = inner ? g.innerRx : g.rx;
    return d->linearLightingColor(g.x - rx, g.y, g.x + rx, g.y, color, IntArray(table, 8), false);
}

int WallLighting::flatWall(DrawArea *d, int color) {
    return d->adjustBrightness(color, kFlatWallBrightness / 1024.0);
}
