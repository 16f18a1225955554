#include "families/pie/shape/TopSectorSurface.h"

#include <vector>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "families/pie/shape/SectorOutline.h"
#include "families/pie/shape/SectorShading.h"

namespace {

// The glare fades from half-transparent white to white that no longer shows;
// a fade to kTransparent would pass through grey.
const int kGlareColor = 0x80FFFFFF;
const int kGlareEnd = (int)0xFEFFFFFFu;

}  // namespace

TopSectorSurface::TopSectorSurface(const SectorGeometry &g, const SectorPaintStyle &s)
    : SectorSurface(kTop, 0, s.color), geometry(g), style(s) {}

void TopSectorSurface::paint(DrawArea *d) {
    SectorShading shading(style.shading);
    int fill = shading.fill(d, geometry, style);
    const SectorGeometry &g = geometry;
    // A hairline in the fill's own colour would only roughen the shape's
    // smoothed outline.
    int edge = style.edgeColor;
    if (style.edgeWidth == 1 && fill == style.color &&
        d->getARGBColor(edge) == d->getARGBColor(fill))
        edge = kTransparent;
    switch (shading.getEffect()) {
        case SectorShading::kConcave:
            paintConcave(d, fill);
            break;
        case SectorShading::kRadialGlare:
            paintRing(d, g.rx, g.ry, g.innerRx, g.innerRy, edge, style.edgeWidth, fill);
            paintGlare(d);
            break;
        default:
            paintRing(d, g.rx, g.ry, g.innerRx, g.innerRy, edge, style.edgeWidth, fill);
            break;
    }
}

void TopSectorSurface::paintRing(DrawArea *d, double rx, double ry, double innerRx, double innerRy,
                                 int edgeColor, int edgeWidth, int fill) const {
    const SectorGeometry &g = geometry;
    int shapeEdge = edgeWidth == 1 ? edgeColor : kTransparent;
    double a1 = PieAngle::toDegrees(g.start), a2 = PieAngle::toDegrees(g.start + g.span);
    bool hole = innerRx > 0 && innerRy > 0;
    if (g.isWhole() && hole)
        d->ring(g.x, g.y, rx, ry, innerRx, innerRy, shapeEdge, fill);
    else if (g.isWhole())
        d->circle(g.x, g.y, rx, ry, shapeEdge, fill);
    else
        d->ringSector(g.x, g.y, rx, ry, innerRx, innerRy, a1, a2, shapeEdge, fill);
    if (edgeWidth <= 1) return;
    std::vector<double> x, y;
    SectorOutline::closed(g, rx, ry, innerRx, innerRy, x, y);
    d->rawPolyline(DoubleArray(x.data(), (int)x.size()), DoubleArray(y.data(), (int)y.size()),
                   edgeColor, edgeWidth);
    if (!g.isWhole() || !hole) return;
    x.clear(), y.clear();
    SectorOutline::arc(g, innerRx, innerRy, false, x, y);
    d->rawPolyline(DoubleArray(x.data(), (int)x.size()), DoubleArray(y.data(), (int)y.size()),
                   edgeColor, edgeWidth);
}

void TopSectorSurface::paintConcave(DrawArea *d, int fill) const {
    const SectorGeometry &g = geometry;
    // The dish inside, the flat rim around it, then the edges over both.
    double rimRx = g.rx * SectorShading::kConcaveRimPercent / 100.0;
    double rimRy = g.ry * SectorShading::kConcaveRimPercent / 100.0;
    paintRing(d, g.rx, g.ry, g.innerRx, g.innerRy, kTransparent, 0, fill);
    if (rimRx > g.innerRx && rimRy > g.innerRy)
        paintRing(d, g.rx, g.ry, rimRx, rimRy, kTransparent, 0, style.color);
    paintRing(d, g.rx, g.ry, g.innerRx, g.innerRy, style.edgeColor, style.edgeWidth, kTransparent);
}

void TopSectorSurface::paintGlare(DrawArea *d) const {
    const SectorGeometry &g = geometry;
    double rx = g.rx * SectorShading::kGlareRadius / 256.0;
    double ry = g.ry * SectorShading::kGlareRadius / 256.0;
    if (rx <= g.innerRx || ry <= g.innerRy) return;
    int glare =
        d->linearGradientColor(g.x, (int)(g.y - ry), g.x, g.y, kGlareColor, kGlareEnd, false);
    paintRing(d, rx, ry, g.innerRx, g.innerRy, kTransparent, 0, glare);
}
