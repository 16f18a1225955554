#pragma once

#include "draw/raster/scan/AAEdge.h"

// A straight edge.  Unless exact, coordinates within 0.001 of a whole number
// are snapped to it, and so are x values on rows.
class AALineEdge : public AAEdge {
public:
    AALineEdge(int color, double x1, double y1, double x2, double y2, bool exact);
    AASpan spanAt(double y) const override;
    void drawOutline(ShapeTarget *target) const override;
    double getFactor() const { return factor; }
    double getSlope() const { return slope; }

private:
    double xAt(double y) const;

    double x1, y1, x2, y2;
    double xMin, xMax;
    double factor, slope, intercept;
    bool exact;
};
