#include "layers/line/LineHotSpots.h"

#include <algorithm>
#include <cmath>

#include "chart/symbol/LayerPainter.h"
#include "layers/line/ClipChain.h"
#include "layers/line/MultiLine.h"

namespace {

int roundPixel(double v) {
    const double limit = 1 << 28;
    return (int)std::floor(std::max(-limit, std::min(v, limit)) + 0.5);
}

// The unit normal of the segment, or (0, 0) for none.
void normalOf(double x1, double y1, double x2, double y2, double *nx, double *ny) {
    double dx = x2 - x1, dy = y2 - y1, length = std::sqrt(dx * dx + dy * dy);
    *nx = length > 0 ? -dy / length : 0;
    *ny = length > 0 ? dx / length : 0;
}

}  // namespace

void LineHotSpots::collect(int dataSet, const MultiLine &line, const LayerPainter &painter,
                           int width, ClipChain &clip, std::vector<HotSpot> &out) {
    double half = std::max(width, 1) / 2.0;
    int n = line.size();
    for (int k = 0; k < n; ++k) {
        const MultiLine::Point &p = line.at(k);
        bool before = k > 0 && !line.at(k - 1).gapAfter, after = k + 1 < n && !p.gapAfter;
        // The half segments: from the middle before, through the point, to the middle after.
        double lx[3] = {p.x, p.x, p.x}, ly[3] = {p.y, p.y, p.y};
        if (before) lx[0] = (line.at(k - 1).x + p.x) / 2, ly[0] = (line.at(k - 1).y + p.y) / 2;
        if (after) lx[2] = (line.at(k + 1).x + p.x) / 2, ly[2] = (line.at(k + 1).y + p.y) / 2;
        double x[3], y[3];
        for (int i = 0; i < 3; ++i) painter.map(lx[i], ly[i], &x[i], &y[i]);
        HotSpot spot = {dataSet, p.index, {}};
        if (x[0] == x[2] && y[0] == y[2])
            spot.coords = {roundPixel(x[1] - half), roundPixel(y[1] - half),
                           roundPixel(x[1] + half), roundPixel(y[1] + half)};
        else
            addBand(spot, x, y, half, clip);
        if (!spot.coords.empty()) out.push_back(spot);
    }
}

void LineHotSpots::addBand(HotSpot &spot, const double *x, const double *y, double half,
                           ClipChain &clip) {
    double n0x, n0y, n1x, n1y;
    normalOf(x[0], y[0], x[1], y[1], &n0x, &n0y);
    normalOf(x[1], y[1], x[2], y[2], &n1x, &n1y);
    if (n0x == 0 && n0y == 0) n0x = n1x, n0y = n1y;
    if (n1x == 0 && n1y == 0) n1x = n0x, n1y = n0y;
    const double px[8] = {x[0] + n0x * half, x[1] + n0x * half, x[1] + n1x * half,
                          x[2] + n1x * half, x[2] - n1x * half, x[1] - n1x * half,
                          x[1] - n0x * half, x[0] - n0x * half};
    const double py[8] = {y[0] + n0y * half, y[1] + n0y * half, y[1] + n1y * half,
                          y[2] + n1y * half, y[2] - n1y * half, y[1] - n1y * half,
                          y[1] - n0y * half, y[0] - n0y * half};
    const PointBuffer &clipped = clip.clip(px, py, 8);
    for (int i = 0; i < clipped.size(); ++i) {
        int cx = roundPixel(clipped.getX()[i]), cy = roundPixel(clipped.getY()[i]);
        size_t m = spot.coords.size();
        // Corners that round to the point before them add nothing.
        if (m >= 2 && spot.coords[m - 2] == cx && spot.coords[m - 1] == cy) continue;
        spot.coords.push_back(cx);
        spot.coords.push_back(cy);
    }
    // A polygon needs three corners; four numbers would read as a rectangle.
    if (spot.coords.size() < 6) spot.coords.clear();
}
