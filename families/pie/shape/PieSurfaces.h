#pragma once

#include <vector>

#include "families/pie/shape/PieView.h"

class DrawArea;
class SectorSurface;
struct SectorGeometry;
struct SectorPaintStyle;

// The surfaces of a pie in the order they are painted: each sector's top and,
// with depth, its flat walls and the parts of its curved walls that face the
// viewer (all parts when its colour lets the back show through).  Owns them.
class PieSurfaces {
public:
    explicit PieSurfaces(const PieView &view);
    ~PieSurfaces();
    PieSurfaces(const PieSurfaces &) = delete;
    PieSurfaces &operator=(const PieSurfaces &) = delete;

    // A sector among others: its top, two flat walls and its curved walls.
    void addSector(DrawArea *d, const SectorGeometry &g, const SectorPaintStyle &s);
    // The only sector of a pie: a whole disc or ring, without flat walls, so
    // that no seam shows anywhere.
    void addWholeDisc(DrawArea *d, const SectorGeometry &g, const SectorPaintStyle &s);
    // Sorts the surfaces and paints them, farthest first, with kSameAsMainColor
    // standing for each one's sector colour.
    void paint(DrawArea *d);

    int size() const { return (int)surfaces.size(); }
    // After paint: the surfaces from the nearest to the farthest.
    const SectorSurface *at(int i) const { return surfaces[i]; }

private:
    // The curved wall from start over span, cut where it turns away from the
    // viewer.  The outer wall shows around the view direction; the inner one
    // around the opposite direction.
    void addCurvedWall(const SectorGeometry &g, double start, double span, bool inner,
                       bool showBack, int mainColor, int fill, int edgeColor);

    PieView view;
    std::vector<SectorSurface *> surfaces;
};
