#pragma once

#include <vector>

#include "families/pie/shape/PieView.h"

class DrawArea;
class SectorImpl;
class SectorTemplate;
struct PieSettings;

// Lays out the labels of the sectors that have a value: fills each template,
// places the box beside its sector's rim (around the pie, or in a column at
// its side), and spreads each side column so that its labels don't overlap.
class SectorLabelPlacer {
public:
    SectorLabelPlacer(DrawArea *d, const PieSettings &pie, int radius, const PieView &view,
                      int chartHeight, const SectorTemplate &labels);

    void place(const std::vector<SectorImpl *> &sectors) const;

    // The alignment of a label around the pie, by the octant of its angle.
    static int circleAlignment(double mid);

private:
    void placeLabel(SectorImpl *s) const;
    // The side labels of one column, from top to bottom, spread.
    void spreadColumn(std::vector<SectorImpl *> &column) const;

    DrawArea *d;
    const PieSettings &pie;
    int radius;
    PieView view;
    int chartHeight;
    const SectorTemplate &labels;
};
