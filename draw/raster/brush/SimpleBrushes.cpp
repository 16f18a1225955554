#include "draw/raster/brush/SimpleBrushes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "draw/pixel/PixelBlend.h"

RectBrush::RectBrush(double x1, double y1, double x2, double y2, int color)
    : ColorBrush(color),
      left(std::min(x1, x2)),
      top(std::min(y1, y2)),
      right(std::max(x1, x2)),
      bottom(std::max(y1, y2)) {}

int RectBrush::colorAt(int x, int y) {
    return inside(x, y) ? color : kTransparent;
}

void RectBrush::fillSpan(BrushHost *target, int x1, int x2, int y, int *out, int outIndex) {
    if (y < top || y > bottom) return;
    int from = std::max(x1, (int)std::ceil(std::max(left, -1e9)));
    int to = std::min(x2, (int)std::floor(std::min(right, 1e9)));
    for (int x = from; x <= to; ++x) target->blendInto(out + outIndex + (x - x1), x, y, color);
}

ZoneBrush::ZoneBrush(bool vertical, int boundary, int before, int after)
    : ColorBrush(before), vertical(vertical), boundary(boundary), after(after) {}

int ZoneBrush::colorAt(int x, int y) {
    return (vertical ? y : x) < boundary ? color : after;
}

MultiLayerBrush::MultiLayerBrush(BrushHost *host, const int *data, int n)
    : ColorBrush(kTransparent), host(host) {
    if (data && n > 0) layers.assign(data, data + n);
}

int MultiLayerBrush::colorAt(int x, int y) {
    int n = (int)layers.size();
    std::vector<unsigned> seen;
    unsigned result = (unsigned)kTransparent;
    int i = n - 1;
    for (; i >= 0; --i) {
        unsigned c = (unsigned)host->resolveColor(layers[i], x, y);
        if (PixelBlend::alphaOf(c) == 0) {
            result = c;
            break;
        }
        seen.push_back(c);
    }
    for (int k = (int)seen.size() - 1; k >= 0; --k) result = PixelBlend::blend(result, seen[k]);
    return PixelBlend::isInvisible(result) ? kTransparent : (int)result;
}

BrightnessAdjustmentBrush::BrightnessAdjustmentBrush(BrushHost *host, int source, double factor)
    : ColorBrush(source), host(host) {
    double v = std::floor(1024 * factor + 0.5);
    k = std::isfinite(v) ? (int)std::max(std::min(v, 1e9), -1.0) : 1024;
}

int BrightnessAdjustmentBrush::colorAt(int x, int y) {
    return (int)PixelBlend::adjustBrightness((unsigned)host->resolveColor(color, x, y), k);
}

DashLineBrush::DashLineBrush(int color, int pattern)
    : ColorBrush(color), pos(0), lastX(0), lastY(0), started(false) {
    unsigned p = (unsigned)pattern;
    for (int shift = 24, on = 1; shift >= 0; shift -= 8, on = !on)
        runs.insert(runs.end(), (p >> shift) & 255, on != 0);
    if (runs.empty()) runs.assign(16, false);
}

int DashLineBrush::colorAt(int x, int y) {
    if (!started || std::abs(x - lastX) >= 2 || std::abs(y - lastY) >= 2) {
        pos = 0;
        started = true;
    } else if (x != lastX || y != lastY) {
        pos = (pos + 1) % (int)runs.size();
    }
    lastX = x;
    lastY = y;
    return runs[pos] ? color : kTransparent;
}
