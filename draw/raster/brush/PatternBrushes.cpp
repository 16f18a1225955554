#include "draw/raster/brush/PatternBrushes.h"

#include <algorithm>
#include <climits>
#include <cmath>

#include "draw/pixel/PixelBlend.h"

PatternBrush::PatternBrush(int startX, int startY, int width, int height, const int *data, int n)
    : startX(startX), startY(startY), width(width), height(height) {
    bool valid = data && width >= 1 && width <= 65535 && height >= 1 && height <= 65535 &&
                 (long long)width * height <= n;
    if (!valid) {
        this->width = this->height = 1;
        pixels.assign(1, kTransparent);
        return;
    }
    pixels.assign(data, data + (long long)width * height);
}

int PatternBrush::at(long long x, long long y) const {
    long long px = (x - startX) % width, py = (y - startY) % height;
    if (px < 0) px += width;
    if (py < 0) py += height;
    return pixels[py * width + px];
}

int PatternBrush::colorAt(int x, int y) {
    return at(x, y);
}

namespace {

// c0 to c1 in steps of 1/16, red with blue and alpha with green.
unsigned mix16(unsigned c0, unsigned c1, unsigned w) {
    unsigned rb = (((c1 & 0xFF00FFu) * w + (c0 & 0xFF00FFu) * (16 - w)) >> 4) & 0xFF00FFu;
    unsigned ag =
        ((((c1 >> 8) & 0xFF00FFu) * w + ((c0 >> 8) & 0xFF00FFu) * (16 - w)) >> 4) & 0xFF00FFu;
    return rb | (ag << 8);
}

}  // namespace

int PatternBrush::colorAtF(double x, double y) {
    if (!std::isfinite(x) || !std::isfinite(y) || std::fabs(x) > 1e15 || std::fabs(y) > 1e15)
        return kTransparent;
    double fx = std::floor(x), fy = std::floor(y);
    long long ix = (long long)fx, iy = (long long)fy;
    unsigned wx = (unsigned)((x - fx) * 16), wy = (unsigned)((y - fy) * 16);
    unsigned top = mix16((unsigned)at(ix, iy), (unsigned)at(ix + 1, iy), wx);
    unsigned bottom = mix16((unsigned)at(ix, iy + 1), (unsigned)at(ix + 1, iy + 1), wx);
    unsigned c = mix16(top, bottom, wy);
    return PixelBlend::isInvisible(c) ? kTransparent : (int)c;
}

namespace {

long long fixed12(double v) {
    if (!std::isfinite(v)) return 0;
    double s = std::floor(v * 4096 + 0.5);
    return (long long)std::max(std::min(s, 1e12), -1e12);
}

}  // namespace

TransformedBrushF::TransformedBrushF(BrushHost *host, int source, const double m[6])
    : ColorBrush(source), host(host) {
    a = fixed12(m[0]), b = fixed12(m[1]), c = fixed12(m[2]);
    d = fixed12(m[3]), e = fixed12(m[4]), f = fixed12(m[5]);
}

int TransformedBrushF::colorAt(int x, int y) {
    long long u = (a * x + b * y + e + 2048) >> 12;
    long long v = (c * x + d * y + f + 2048) >> 12;
    u = std::min<long long>(std::max<long long>(u, INT_MIN), INT_MAX);
    v = std::min<long long>(std::max<long long>(v, INT_MIN), INT_MAX);
    return host->resolveColor(color, (int)u, (int)v);
}

PreciseTransformBrush::PreciseTransformBrush(BrushHost *host, ColorBrush *sourceBrush, int source,
                                             const double mm[6])
    : ColorBrush(source), host(host), sourceBrush(sourceBrush) {
    for (int i = 0; i < 6; ++i) m[i] = std::isfinite(mm[i]) ? mm[i] : 0;
}

int PreciseTransformBrush::colorAt(int x, int y) {
    double u = m[0] * x + m[1] * y + m[4], v = m[2] * x + m[3] * y + m[5];
    if (!sourceBrush) return color;
    if (std::fabs(u) > 1e9 || std::fabs(v) > 1e9) return kTransparent;
    return host->resolveColor(sourceBrush->colorAtF(u, v), (int)std::floor(u + 0.5),
                              (int)std::floor(v + 0.5));
}
