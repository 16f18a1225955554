#pragma once

#include <vector>

#include "draw/raster/brush/ColorBrush.h"

// A tile of pixels repeated from (startX, startY).
class PatternBrush : public ColorBrush {
public:
    // An invalid pattern (a side not 1 to 65535, or too few pixels) is one
    // transparent pixel.
    PatternBrush(int startX, int startY, int width, int height, const int *pixels, int n);
    int colorAt(int x, int y) override;
    // Bilinear between the four neighbours in 16 steps each way.
    int colorAtF(double x, double y) override;
    int getWidth() const { return width; }
    int getHeight() const { return height; }

private:
    int at(long long x, long long y) const;

    int startX, startY, width, height;
    std::vector<int> pixels;
};

// Another colour seen through x' = a x + b y + e, y' = c x + d y + f, sampled at
// the nearest pixel; the matrix is held in 12-bit fixed point.
class TransformedBrushF : public ColorBrush {
public:
    TransformedBrushF(BrushHost *host, int source, const double m[6]);
    int colorAt(int x, int y) override;

private:
    BrushHost *host;
    long long a, b, c, d, e, f;
};

// As TransformedBrushF, sampling the source between pixels where it can.
class PreciseTransformBrush : public ColorBrush {
public:
    // source is the brush of the source colour, or null for a plain colour.
    PreciseTransformBrush(BrushHost *host, ColorBrush *sourceBrush, int source, const double m[6]);
    int colorAt(int x, int y) override;

private:
    BrushHost *host;
    ColorBrush *sourceBrush;
    double m[6];
};
