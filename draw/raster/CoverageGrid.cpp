#include "draw/raster/CoverageGrid.h"

#include <algorithm>

#include "draw/raster/scan/ShapeTarget.h"

namespace {

// A list costs 16 bytes a plot and a sort; the grid a byte a pixel of the clip
// and a walk over the rows touched.  The list serves up to a quarter as many
// plots as the clip has pixels (and a few thousand on any clip).
const size_t kMinListLimit = 4096;

}  // namespace

// The colour of every step is the line's own, and the walk stays inside the
// clip: no call per step, and no test but the level's once in the grid.
class CoverageGrid::PlainSink {
public:
    PlainSink(CoverageGrid *grid, int color) : grid(grid), color(color) {}
    int stepColor(int, int) const { return color; }
    void plot(int x, int y, int level, int c) {
        if (!grid->isGrid()) {
            grid->plot(x, y, level, c);
            return;
        }
        unsigned char &l = grid->levels[(size_t)(y - grid->top) * grid->width + (x - grid->left)];
        if (c == grid->gridColor && grid->colors.empty())
            l = std::max(l, (unsigned char)level);
        else
            grid->plotInGrid(x, y, level, c);
    }

private:
    CoverageGrid *grid;
    int color;
};

CoverageGrid::CoverageGrid(BrushHost *host, int color, int clipLeft, int clipTop, int clipRight,
                           int clipBottom)
    : list(host, color),
      left(clipLeft),
      top(clipTop),
      width(std::max(0, clipRight - clipLeft + 1)),
      height(std::max(0, clipBottom - clipTop + 1)),
      listLimit(std::max(kMinListLimit, (size_t)width * (size_t)height / 4)),
      gridColor(0) {}

void CoverageGrid::plot(int x, int y, int level, int c) {
    if (x < left || y < top || x - left >= width || y - top >= height) return;
    if (isGrid()) {
        plotInGrid(x, y, level, c);
        return;
    }
    list.plot(x, y, level, c);
    if (list.getPlots().size() > listLimit) toGrid();
}

void CoverageGrid::addPolyline(const double *xy, int pointCount, bool antiAlias, bool plainColor) {
    LineRasterizer walker(left, top, left + width - 1, top + height - 1, antiAlias);
    PlainSink plain(this, list.stepColor(0, 0));
    for (int i = 0; i + 1 < pointCount; ++i) {
        const double *p = xy + 2 * i;
        if (plainColor)
            walker.drawJoinedInto(p[0], p[1], p[2], p[3], plain, i > 0);
        else
            walker.drawJoined(p[0], p[1], p[2], p[3], this, i > 0);
    }
}

void CoverageGrid::toGrid() {
    levels.assign((size_t)width * height, 0);
    gridColor = list.getPlots().front().color;
    // In walking order, so that of equal levels the first stays.
    for (const PlotCollector::Plot &p : list.getPlots()) plotInGrid(p.x, p.y, p.level, p.color);
    list.clear();
}

void CoverageGrid::plotInGrid(int x, int y, int level, int c) {
    int row = y - top, column = x - left;
    size_t i = (size_t)row * width + column;
    if (level <= levels[i]) return;
    levels[i] = (unsigned char)level;
    if (colors.empty() && c != gridColor) colors.assign(levels.size(), gridColor);
    if (!colors.empty()) colors[i] = c;
}

void CoverageGrid::flush(ShapeTarget *target) {
    if (isGrid())
        flushGrid(target);
    else
        list.flush(target);
}

void CoverageGrid::flushGrid(ShapeTarget *target) {
    for (int row = 0; row < height; ++row) {
        size_t base = (size_t)row * width;
        for (int column = 0; column < width; ++column) {
            unsigned char level = levels[base + column];
            if (level == 0) continue;
            int c = colors.empty() ? gridColor : colors[base + column];
            target->fringePixel(left + column, top + row, level, c);
        }
    }
    // The grid goes with the lines: a later batch starts small again.
    std::vector<unsigned char>().swap(levels);
    std::vector<int>().swap(colors);
}
