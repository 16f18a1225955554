#include "draw/raster/PlotCollector.h"

#include <algorithm>

#include "draw/raster/brush/ColorBrush.h"
#include "draw/raster/scan/ShapeTarget.h"

int PlotCollector::stepColor(int x, int y) {
    return host->resolveColor(color, x, y);
}

void PlotCollector::plot(int x, int y, int level, int c) {
    plots.push_back({x, y, level, c});
}

void PlotCollector::flush(ShapeTarget *target) {
    std::stable_sort(plots.begin(), plots.end(), [](const Plot &a, const Plot &b) {
        if (a.y != b.y) return a.y < b.y;
        if (a.x != b.x) return a.x < b.x;
        return a.level > b.level;
    });
    for (size_t i = 0; i < plots.size(); ++i) {
        const Plot &p = plots[i];
        if (i > 0 && plots[i - 1].x == p.x && plots[i - 1].y == p.y) continue;
        target->fringePixel(p.x, p.y, p.level, p.color);
    }
    plots.clear();
}
