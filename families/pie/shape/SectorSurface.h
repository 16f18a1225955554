#pragma once

#include "families/pie/shape/PieAngle.h"

class DrawArea;

// One paintable piece of a pie: a sector's top, a flat wall along a radius, or
// a part of the curved wall.  A pie paints its pieces farthest first: z is 0
// for the nearest and pi for the farthest, and of equal z the walls go before
// the tops.
class SectorSurface {
public:
    enum Kind { kWall = 1, kTop = 2 };

    SectorSurface(Kind kind, double z, int mainColor) : kind(kind), z(z), mainColor(mainColor) {}
    virtual ~SectorSurface() {}
    SectorSurface(const SectorSurface &) = delete;
    SectorSurface &operator=(const SectorSurface &) = delete;

    virtual void paint(DrawArea *d) = 0;

    Kind getKind() const { return kind; }
    double getZ() const { return z; }
    // The sector's colour, which kSameAsMainColor stands for while this paints.
    int getMainColor() const { return mainColor; }

    // Sorted by this, the list runs from the nearest to the farthest; of equal
    // z the tops come first.  It is painted from its end.
    static bool orderByZ(const SectorSurface *p, const SectorSurface *q) {
        if (q->z - p->z >= 1e-10 || p->z - q->z >= 1e-10) return q->z > p->z;
        return q->kind < p->kind;
    }

private:
    Kind kind;
    double z;
    int mainColor;
};
