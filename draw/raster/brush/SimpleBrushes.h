#pragma once

#include <vector>

#include "draw/raster/brush/ColorBrush.h"

// A colour inside a rectangle, transparent outside.
class RectBrush : public ColorBrush {
public:
    RectBrush(double x1, double y1, double x2, double y2, int color);
    int colorAt(int x, int y) override;
    void fillSpan(BrushHost *target, int x1, int x2, int y, int *out, int outIndex) override;

private:
    bool inside(int x, int y) const { return x >= left && x <= right && y >= top && y <= bottom; }
    double left, top, right, bottom;
};

// One of two colours by the side of a boundary line.
class ZoneBrush : public ColorBrush {
public:
    // vertical: the colour changes along y.
    ZoneBrush(bool vertical, int boundary, int before, int after);
    int colorAt(int x, int y) override;

private:
    bool vertical;
    int boundary, after;
};

// Colours stacked with the last one on top.
class MultiLayerBrush : public ColorBrush {
public:
    MultiLayerBrush(BrushHost *host, const int *layers, int n);
    int colorAt(int x, int y) override;

private:
    BrushHost *host;
    std::vector<int> layers;
};

// Another colour made darker or lighter; factor 1 keeps it.
class BrightnessAdjustmentBrush : public ColorBrush {
public:
    BrightnessAdjustmentBrush(BrushHost *host, int source, double factor);
    int colorAt(int x, int y) override;

private:
    BrushHost *host;
    int k;
};

// A colour switched on and off along the walk of a line.  The pattern word holds
// four run lengths, the top byte first: on, off, on, off.
class DashLineBrush : public ColorBrush {
public:
    DashLineBrush(int color, int pattern);
    int colorAt(int x, int y) override;
    // One entry per pixel of the period: true where the line shows.
    const std::vector<bool> &getRuns() const { return runs; }
    int getColor() const { return color; }

private:
    std::vector<bool> runs;
    int pos;
    int lastX, lastY;
    bool started;
};
