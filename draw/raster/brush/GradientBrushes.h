#pragma once

#include <vector>

#include "draw/raster/brush/ColorBrush.h"

// Colour tables looked up by a position computed in fixed point.  Tables are
// built once, when the colour is defined.
class BaseGradientBrush : public ColorBrush {
public:
    // pairs: n integers, position and colour alternately.  Positions run from 0
    // to the last pair's position, which maps to the last of `entries` entries.
    static void buildTable(const int *pairs, int n, int entries, std::vector<int> &table);
    // The last position of the pairs (0 when there are none).
    static int lastPosition(const int *pairs, int n);
    // Fixed-point steps and offsets limited so that stepping over any int
    // coordinate stays inside 64 bits; NaN gives 0.
    static long long limitedStep(double v);
    static long long limitedOffset(double v);

    int colorAt(int x, int y) override;
    const std::vector<int> &getTable() const { return table; }

protected:
    BaseGradientBrush(bool periodic) : periodic(periodic) {}
    // The table entry for pixel (x, y).
    virtual int indexAt(int x, int y) const = 0;
    // An index outside the table: wrapped when periodic, else the nearer end.
    int limitIndex(long long index) const;

    bool periodic;
    std::vector<int> table;
};

// 256 entries along the direction from (x1, y1) to (x2, y2), in 12-bit steps.
class GradientBrush : public BaseGradientBrush {
public:
    GradientBrush(double x1, double y1, double x2, double y2, bool periodic, const int *pairs,
                  int n);
    void fillSpan(BrushHost *target, int x1, int x2, int y, int *out, int outIndex) override;

protected:
    int indexAt(int x, int y) const override;

private:
    long long dx, dy, offset;
};

// A table as long as the gradient needs, in 16-bit steps.
class PreciseGradientBrush : public BaseGradientBrush {
public:
    PreciseGradientBrush(double x1, double y1, double x2, double y2, bool periodic,
                         const int *pairs, int n);
    static constexpr int kMaxEntries = 16384;
    static constexpr int kMaxSlantedEntries = 8192;

protected:
    int indexAt(int x, int y) const override;

private:
    long long dx, dy, offset;
};

// The linear gradient a table of these pairs asks for.
ColorBrush *createLinearGradient(double x1, double y1, double x2, double y2, bool periodic,
                                 const int *pairs, int n);

// 256 entries by the distance from the centre scaled to the radii.
class RadialGradientBrush : public BaseGradientBrush {
public:
    RadialGradientBrush(int cx, int cy, int rx, int ry, bool periodic, const int *pairs, int n);

protected:
    int indexAt(int x, int y) const override;

private:
    int cx, cy;
    long long kx, ky;
};

// As the radial gradient, one entry per pixel of the larger radius.
class PreciseRadialGradientBrush : public BaseGradientBrush {
public:
    PreciseRadialGradientBrush(int cx, int cy, int rx, int ry, bool periodic, const int *pairs,
                               int n);

protected:
    int indexAt(int x, int y) const override;

private:
    int cx, cy;
    long long kx, ky;
};

ColorBrush *createRadialGradient(int cx, int cy, int rx, int ry, bool periodic, const int *pairs,
                                 int n);

// 1000 entries around the centre, clockwise from 12 o'clock, inside a ring.
class AngleGradientBrush : public BaseGradientBrush {
public:
    AngleGradientBrush(double cx, double cy, double startAngle, double endAngle, double innerRadius,
                       double outerRadius, const int *pairs, int n);
    int colorAt(int x, int y) override;

protected:
    int indexAt(int x, int y) const override;

private:
    double cx, cy, r1, r2;
    int start, sweep;
    long long k;
};
