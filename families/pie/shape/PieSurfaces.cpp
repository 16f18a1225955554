#include "families/pie/shape/PieSurfaces.h"

#include <algorithm>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "families/pie/shape/CylinderSectorSurface.h"
#include "families/pie/shape/SectorPaintStyle.h"
#include "families/pie/shape/SideSectorSurface.h"
#include "families/pie/shape/TopSectorSurface.h"
#include "families/pie/shape/WallLighting.h"

namespace {

// The palette entry that kSameAsMainColor reads.
const int kMainColorEntry = kSameAsMainColor & 0xFFFF;

}  // namespace

PieSurfaces::PieSurfaces(const PieView &view) : view(view) {}

PieSurfaces::~PieSurfaces() {
    for (SectorSurface *s : surfaces) delete s;
}

void PieSurfaces::addSector(DrawArea *d, const SectorGeometry &g, const SectorPaintStyle &s) {
    surfaces.push_back(new TopSectorSurface(g, s));
    if (!g.hasDepth()) return;
    bool showBack = !d->isOpaque(s.color);
    int flat = WallLighting::flatWall(d, s.color);
    double end = g.start + g.span;
    surfaces.push_back(new SideSectorSurface(g, g.start, view.zOrder(g.start, g.start), s.color,
                                             flat, s.edgeColor));
    surfaces.push_back(
        new SideSectorSurface(g, end, view.zOrder(end, end), s.color, flat, s.edgeColor));
    addCurvedWall(g, g.start, g.span, false, showBack, s.color,
                  WallLighting::curvedWall(d, s.color, g, false), s.edgeColor);
    if (g.isDonut())
        addCurvedWall(g, g.start, g.span, true, showBack, s.color,
                      WallLighting::curvedWall(d, s.color, g, true), s.edgeColor);
}

void PieSurfaces::addWholeDisc(DrawArea *d, const SectorGeometry &g, const SectorPaintStyle &s) {
    SectorGeometry whole = g;
    whole.start = 0;
    whole.span = PieAngle::kFullCircle;
    surfaces.push_back(new TopSectorSurface(whole, s));
    if (!g.hasDepth()) return;
    bool showBack = !d->isOpaque(s.color);
    addCurvedWall(whole, 0, whole.span, false, showBack, s.color,
                  WallLighting::curvedWall(d, s.color, whole, false), s.edgeColor);
    if (whole.isDonut())
        addCurvedWall(whole, 0, whole.span, true, showBack, s.color,
                      WallLighting::curvedWall(d, s.color, whole, true), s.edgeColor);
}

void PieSurfaces::addCurvedWall(const SectorGeometry &g, double start, double span, bool inner,
                                bool showBack, int mainColor, int fill, int edgeColor) {
    double facing = view.getDirection() + (inner ? kPi : 0);
    double tangents[2] = {facing - kPi / 2, facing + kPi / 2};
    // A whole wall starts at a tangent, so that it falls into just two halves.
    if (span >= PieAngle::kFullCircle) start = tangents[0];
    std::vector<double> cuts = {0, span};
    for (double t : tangents) {
        double at = PieAngle::normalise(t - start);
        if (at > 0 && at < span) cuts.push_back(at);
    }
    std::sort(cuts.begin(), cuts.end());
    for (size_t i = 0; i + 1 < cuts.size(); ++i) {
        double a = start + cuts[i], b = start + cuts[i + 1];
        if (b <= a) continue;
        bool facesViewer = PieAngle::fold((a + b) / 2 - facing) < kPi / 2;
        if (!facesViewer && !showBack) continue;
        surfaces.push_back(new CylinderSectorSurface(g, a, b - a, inner, view.zOrder(a, b),
                                                     mainColor, fill, edgeColor));
    }
}

void PieSurfaces::paint(DrawArea *d) {
    if (surfaces.empty()) return;
    std::stable_sort(surfaces.begin(), surfaces.end(), SectorSurface::orderByZ);
    d->beginSuperPixelMode();
    for (auto it = surfaces.rbegin(); it != surfaces.rend(); ++it) {
        d->setColorTable(kMainColorEntry, (*it)->getMainColor());
        (*it)->paint(d);
    }
    d->commitSuperPixels();
}
