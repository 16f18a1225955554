#pragma once

#include <vector>

#include "draw/raster/scan/LineRasterizer.h"

class BrushHost;
class ShapeTarget;

// Gathers the pixels of several lines so that a pixel that two of them touch,
// at a joint, is painted once, with the larger coverage.  Step colours are taken
// in walking order as the lines are walked.
class PlotCollector : public LineSink {
public:
    PlotCollector(BrushHost *host, int color) : host(host), color(color) {}
    void setColor(int c) { color = c; }
    int stepColor(int x, int y) override;
    void plot(int x, int y, int level, int c) override;
    // Paints every gathered pixel once through target's fringePixel and forgets them.
    void flush(ShapeTarget *target);
    bool isEmpty() const { return plots.empty(); }

    struct Plot {
        int x, y, level, color;
    };
    // The plots in walking order.
    const std::vector<Plot> &getPlots() const { return plots; }
    // Forgets the plots and gives their memory back.
    void clear() { std::vector<Plot>().swap(plots); }

private:
    BrushHost *host;
    int color;
    std::vector<Plot> plots;
};
