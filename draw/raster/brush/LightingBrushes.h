#pragma once

#include <vector>

#include "draw/raster/brush/ColorBrush.h"

// 256 pairs (offset, factor) for the lighting of a colour: a channel becomes
// (channel * factor >> 10) + offset, limited to 0..255.
class LightingTable {
public:
    // lighting: n integers, position (0 to 256) and brightness (1024 = as is).
    LightingTable(const int *lighting, int n);
    static const int kEntries = 256;
    int offsetAt(int i) const { return offsets[i]; }
    int factorAt(int i) const { return factors[i]; }
    // The colour c lit by entry i; transparent stays transparent.
    int apply(int c, int i) const;

private:
    void setBrightness(int i, long long b);
    std::vector<int> offsets, factors;
};

// Lighting along a direction, indexed as the linear gradient.
class LightingBrush : public ColorBrush {
public:
    LightingBrush(BrushHost *host, int color, double x1, double y1, double x2, double y2,
                  bool periodic, const int *lighting, int n);
    int colorAt(int x, int y) override;

private:
    BrushHost *host;
    LightingTable table;
    bool periodic;
    long long dx, dy, offset;
};

// Lighting by the distance from the centre.
class RadialLightingBrush : public ColorBrush {
public:
    RadialLightingBrush(BrushHost *host, int color, int cx, int cy, int rx, int ry,
                        const int *lighting, int n);
    int colorAt(int x, int y) override;

private:
    BrushHost *host;
    LightingTable table;
    int cx, cy;
    long long kx, ky;
};

// A colour whose brightness follows fine stripes along x: brushed metal.
class MetalTextureBrush : public ColorBrush {
public:
    // texture 1 to 3 are the light, medium and heavy strengths; larger values are
    // a strength of their own.
    MetalTextureBrush(BrushHost *host, int color, int texture);
    int colorAt(int x, int y) override;
    static int strengthOf(int texture);
    // The stripe value of (x, y), 0 to 255 around 128.
    static int stripeAt(int x, int y);

private:
    BrushHost *host;
    int strength;
};
