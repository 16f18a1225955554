#include "draw/raster/GlyphRaster.h"

#include <algorithm>
#include <cmath>

#include "draw/raster/DrawBMP.h"

std::vector<unsigned char> GlyphRaster::toCoverage(const GlyphImage &g) {
    int w = g.width;
    std::vector<unsigned char> out((size_t)w * g.rows);
    bool lcd = g.bytesPerPixel == 3;
    for (int y = 0; y < g.rows; ++y) {
        const unsigned char *row = g.pixels + (size_t)y * g.pitch;
        for (int x = 0; x < w; ++x)
            out[(size_t)y * w + x] =
                lcd ? (unsigned char)((row[3 * x] + row[3 * x + 1] + row[3 * x + 2] + 1) / 3)
                    : row[x];
    }
    return out;
}

int GlyphRaster::sample(const std::vector<unsigned char> &c, int w, int h, double sx, double sy) {
    sx -= 0.5;
    sy -= 0.5;
    int x0 = (int)std::floor(sx), y0 = (int)std::floor(sy);
    double fx = sx - x0, fy = sy - y0;
    auto at = [&](int x, int y) {
        return x < 0 || y < 0 || x >= w || y >= h ? 0.0 : (double)c[(size_t)y * w + x];
    };
    double top = at(x0, y0) * (1 - fx) + at(x0 + 1, y0) * fx;
    double bottom = at(x0, y0 + 1) * (1 - fx) + at(x0 + 1, y0 + 1) * fx;
    return (int)std::floor(top * (1 - fy) + bottom * fy + 0.5);
}

void GlyphRaster::paint(DrawBMP *raster, const GlyphImage &g, int x, int y, double u, double v,
                        const double m[4], int color) {
    int w = g.width, h = g.rows;
    if (w <= 0 || h <= 0 || !g.pixels) return;
    std::vector<unsigned char> coverage = toCoverage(g);
    bool upright = m[0] == 1 && m[1] == 0 && m[2] == 0 && m[3] == 1;
    if (upright) {
        int px = x + (int)std::floor(u + 0.5) + g.left;
        int py = y + (int)std::floor(v + 0.5) - g.top;
        raster->fillGlyph(coverage.data(), w, h, w, px, py, color);
        return;
    }
    // The bitmap's corners in the text frame, mapped; then every target pixel
    // is mapped back and sampled.
    double bx = std::floor(u + 0.5) + g.left, by = std::floor(v + 0.5) - g.top;
    double minX = 1e30, minY = 1e30, maxX = -1e30, maxY = -1e30;
    for (int k = 0; k < 4; ++k) {
        double cu = bx + (k & 1 ? w : 0), cv = by + (k & 2 ? h : 0);
        double tx = x + m[0] * cu + m[1] * cv, ty = y + m[2] * cu + m[3] * cv;
        minX = std::min(minX, tx), maxX = std::max(maxX, tx);
        minY = std::min(minY, ty), maxY = std::max(maxY, ty);
    }
    double det = m[0] * m[3] - m[1] * m[2];
    if (std::fabs(det) < 1e-12) return;
    int left = (int)std::floor(minX), top = (int)std::floor(minY);
    int tw = (int)std::ceil(maxX) - left, th = (int)std::ceil(maxY) - top;
    if (tw <= 0 || th <= 0 || tw > 4096 || th > 4096) return;
    std::vector<unsigned char> out((size_t)tw * th);
    for (int j = 0; j < th; ++j) {
        for (int i = 0; i < tw; ++i) {
            double dx = left + i + 0.5 - x, dy = top + j + 0.5 - y;
            double cu = (m[3] * dx - m[1] * dy) / det, cv = (-m[2] * dx + m[0] * dy) / det;
            out[(size_t)j * tw + i] = (unsigned char)sample(coverage, w, h, cu - bx, cv - by);
        }
    }
    raster->fillGlyph(out.data(), tw, th, tw, left, top, color);
}
