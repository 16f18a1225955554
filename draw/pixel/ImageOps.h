#pragma once

#include <cstddef>
#include <vector>

// Whole-image operations on colour-word pixels: resampling with a choice of
// filters, flips, moves and warps.  A pixel that maps outside the source takes
// the background colour.
struct PixelBuffer {
    int width = 0;
    int height = 0;
    std::vector<int> pixels;

    PixelBuffer() {}
    PixelBuffer(int w, int h, int fill) : width(w), height(h), pixels((size_t)w * h, fill) {}
    bool isEmpty() const { return width <= 0 || height <= 0; }
    int at(int x, int y) const { return pixels[(size_t)y * width + x]; }
    int &at(int x, int y) { return pixels[(size_t)y * width + x]; }
};

namespace ImageOps {

enum Filter {
    kBoxFilter = 0,
    kLinearFilter = 1,
    kQuadraticFilter = 2,
    kBSplineFilter = 3,
    kHermiteFilter = 4,
    kCatromFilter = 5,
    kMitchellFilter = 6,
    kSincFilter = 7,
    kLanczosFilter = 8,
    kGaussianFilter = 9,
    kHanningFilter = 10,
    kHammingFilter = 11,
    kBlackmanFilter = 12,
    kBesselFilter = 13,
    kFilterCount = 14,
};

// The kernel of a filter: its weight at distance x and the distance beyond
// which it is 0.  An unknown filter is the linear one.
double filterWeight(int filter, double x);
double filterSupport(int filter);

// A new size by separable resampling; blur above 1 widens the kernel.
PixelBuffer resize(const PixelBuffer &src, int width, int height, int filter, double blur);

// Matrices are a to f of x' = a x + b y + e, y' = c x + d y + f.
//
// Destination pixel (x, y) takes the source at the inverse matrix applied to
// (x, y).  The result is width by height.
PixelBuffer remap(const PixelBuffer &src, int width, int height, const double inverse[6],
                  int bgColor, int filter);
// The transform of the image onto a canvas of the same size.
PixelBuffer affineTransform(const PixelBuffer &src, const double m[6], int bgColor, int filter,
                            double blur);
// Rotation by `angle` degrees clockwise around (cx, cy).
PixelBuffer rotate(const PixelBuffer &src, double angle, double cx, double cy, int bgColor,
                   int filter);
PixelBuffer move(const PixelBuffer &src, double dx, double dy, int bgColor, int filter);
PixelBuffer shearTransform(const PixelBuffer &src, double xShear, double yShear, int bgColor,
                           int filter);
// Rows shifted by a sine wave: period and amplitude in pixels.
PixelBuffer waveTransform(const PixelBuffer &src, double period, double amplitude, double phase,
                          int bgColor);
// The image wrapped on a cylinder (horizontal axis: rows bulge) or a sphere.
PixelBuffer hCylinderTransform(const PixelBuffer &src, int bgColor);
PixelBuffer vCylinderTransform(const PixelBuffer &src, int bgColor);
PixelBuffer sphereTransform(const PixelBuffer &src, int bgColor);
// The image squeezed into a triangle with its apex at the top (vertical) or left.
PixelBuffer vTriangleTransform(const PixelBuffer &src, int bgColor);
PixelBuffer hTriangleTransform(const PixelBuffer &src, int bgColor);

// A warp that has no record of its own: the canvas applies it to its raster.
struct ImageWarp {
    enum Kind { kWave, kHCylinder, kVCylinder, kSphere, kVTriangle, kHTriangle };
    Kind kind;
    int bgColor;
    double period;     // kWave only
    double amplitude;  // kWave only
    double phase;      // kWave only
};
PixelBuffer warp(const PixelBuffer &src, const ImageWarp &w);

void hFlip(PixelBuffer &image);
void vFlip(PixelBuffer &image);

// Bilinear sample at (x, y), pixel centres on whole numbers.
int sampleBilinear(const PixelBuffer &src, double x, double y, int bgColor);
// A blur of one channel of `values` (width by height) with a box kernel of
// 2 radius + 1 taps, along x then along y.
void boxBlur(std::vector<int> &values, int width, int height, int radius);

}  // namespace ImageOps
