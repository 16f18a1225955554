#pragma once

#include <vector>

#include "draw/list/GlyphText.h"

class DrawBMP;

// Puts one glyph bitmap on the raster as coverage: LCD samples are averaged to
// grey, and a glyph in a rotated frame is resampled.
class GlyphRaster {
public:
    // (u, v) is the pen position in the text's frame, m its linear map onto the
    // raster, and (x, y) where the frame's origin lands.
    static void paint(DrawBMP *raster, const GlyphImage &glyph, int x, int y, double u, double v,
                      const double m[4], int color);
    // One byte a pixel, pitch = width.
    static std::vector<unsigned char> toCoverage(const GlyphImage &glyph);
    // Bilinear sample of coverage at (sx, sy), zero outside.
    static int sample(const std::vector<unsigned char> &coverage, int width, int height, double sx,
                      double sy);
};
