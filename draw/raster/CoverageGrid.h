#pragma once

#include <cstddef>
#include <vector>

#include "draw/raster/PlotCollector.h"
#include "draw/raster/scan/LineRasterizer.h"

class BrushHost;
class ShapeTarget;

// Gathers the pixels of several lines so that a pixel that two of them touch,
// at a joint, is painted once with the larger coverage (the first colour of
// equals), as PlotCollector does, but in memory bounded by the clip rather
// than by the lines' length.  Plots are listed while they are few; once they
// outnumber a share of the clip's pixels they go into a grid over the clip that
// keeps the best level (and, when colours differ, the colour) of each pixel,
// which is then walked whole: it costs no more than the plots that filled it.
class CoverageGrid final : public LineSink {
public:
    // Plots outside the inclusive clip rectangle are ignored.
    CoverageGrid(BrushHost *host, int color, int clipLeft, int clipTop, int clipRight,
                 int clipBottom);
    void setColor(int c) { list.setColor(c); }
    int stepColor(int x, int y) override { return list.stepColor(x, y); }
    void plot(int x, int y, int level, int c) override;
    // Walks the joined segments of a polyline into the collector.  With
    // plainColor the colour is taken for a plain word and the walk writes the
    // collector directly (the fast path); otherwise each step asks for its
    // colour through the LineSink calls, as dynamic colours need.
    void addPolyline(const double *xy, int pointCount, bool antiAlias, bool plainColor);
    // Paints every gathered pixel once through target's fringePixel, row by row
    // and left to right, and forgets them.
    void flush(ShapeTarget *target);
    bool isGrid() const { return !levels.empty(); }

private:
    class PlainSink;
    void toGrid();
    void plotInGrid(int x, int y, int level, int c);
    void flushGrid(ShapeTarget *target);

    PlotCollector list;
    int left, top, width, height;
    size_t listLimit;
    // The grid: a level per pixel, and the colour of all of them or of each.
    std::vector<unsigned char> levels;
    int gridColor;
    std::vector<int> colors;
};
