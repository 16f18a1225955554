#pragma once

#include <vector>

#include "draw/raster/scan/ShapeTarget.h"

// Coverage of several shapes over one box, each pixel keeping the largest: the
// pieces of a wide line and its joints overlap without painting twice.
class StrokeMask : public ShapeTarget {
public:
    StrokeMask(int left, int top, int right, int bottom, bool antiAlias);
    void getClip(int *l, int *t, int *r, int *b) const override;
    bool isAntiAlias() const override { return antiAlias; }
    void solidSpan(int x1, int x2, int y, int color) override;
    void fringePixel(int x, int y, int level, int color) override;
    void outlineLine(double, double, double, double, int) override {}

    bool isEmpty() const { return left > right || top > bottom; }
    // Hands each covered pixel to target's fringePixel with `color`.
    void paintOn(ShapeTarget *target, int color) const;
    int levelAt(int x, int y) const;

private:
    int left, top, right, bottom;
    bool antiAlias;
    int stride;
    std::vector<unsigned char> levels;
};
