#include "draw/raster/SymbolStamp.h"

#include <algorithm>

namespace {

inline unsigned keepOf(int pixel) {
    return (unsigned)pixel >> 24;
}

// What shows of a pixel under a dot that lets `keep` of 255 through.
inline unsigned char through(unsigned shows, unsigned keep) {
    return (unsigned char)((shows * keep + 127) / 255);
}

}  // namespace

SymbolStamp::SymbolStamp(const PixelBuffer &image)
    : stamp(true), color(0), width(image.width), height(image.height) {
    bool first = true;
    for (int y = 0; y < image.height; ++y)
        for (int x = 0; x < image.width; ++x) {
            int p = image.at(x, y);
            unsigned keep = keepOf(p);
            if (keep == 255) continue;
            unsigned rgb = (unsigned)p & 0xFFFFFFu;
            if (first) color = rgb;
            stamp = stamp && rgb == color;
            first = false;
            dots.push_back(Dot{x, y, keep});
        }
}

SymbolStamp::Cover::Cover(int l, int t, int r, int b)
    : left(l), top(t), width(std::max(r - l + 1, 0)), height(std::max(b - t + 1, 0)) {
    if (!isEmpty()) shows.assign((size_t)width * height, 255);
}

void SymbolStamp::stampAll(Cover &cover, const int *points, int pointCount) const {
    if (!stamp || cover.isEmpty() || dots.empty()) return;
    // Where each dot falls from a stamp's corner, as an offset into the cover.
    std::vector<long long> offsets(dots.size());
    for (size_t k = 0; k < dots.size(); ++k)
        offsets[k] = (long long)dots[k].dy * cover.width + dots[k].dx;
    unsigned char *shows = cover.shows.data();
    for (int i = 0; i < pointCount; ++i) {
        long long x = points[2 * i] - (long long)cover.left, y = points[2 * i + 1] - (long long)cover.top;
        if (x < 0 || y < 0 || x + width > cover.width || y + height > cover.height) {
            stampClipped(cover, points[2 * i], points[2 * i + 1]);
            continue;
        }
        unsigned char *corner = shows + y * cover.width + x;
        for (size_t k = 0; k < dots.size(); ++k) {
            unsigned char &s = corner[offsets[k]];
            s = through(s, dots[k].keep);
        }
    }
}

void SymbolStamp::stampClipped(Cover &cover, int x, int y) const {
    for (const Dot &d : dots) {
        long long cx = (long long)x + d.dx - cover.left, cy = (long long)y + d.dy - cover.top;
        if (cx < 0 || cy < 0 || cx >= cover.width || cy >= cover.height) continue;
        unsigned char &s = cover.shows[(size_t)cy * cover.width + (size_t)cx];
        s = through(s, d.keep);
    }
}
