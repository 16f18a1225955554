#include "draw/vector/BrushSampler.h"

#include "draw/raster/DrawBMP.h"

BrushSampler::BrushSampler() : raster(DrawBMP::create(nullptr, nullptr)) {}

BrushSampler::~BrushSampler() {
    delete raster;
}

DrawBackEnd *BrushSampler::colorRecords() {
    return raster;
}

PixelBuffer BrushSampler::sample(int color, int left, int top, int width, int height) {
    PixelBuffer out(width, height, kTransparent);
    if (!out.isEmpty()) raster->sampleColor(color, left, top, width, height, out.pixels.data());
    return out;
}

PixelBuffer BrushSampler::renderTriangles(const std::vector<Triangle> &triangles, int left, int top,
                                          int width, int height, int scale) {
    // A raster of its own that shares the brushes of the sampling one.
    DrawBMP *fine = DrawBMP::create(nullptr, raster);
    fine->setSize(width * scale, height * scale, kTransparent);
    for (const Triangle &t : triangles) {
        double v[9];
        for (int k = 0; k < 3; ++k) {
            // Pixel centres of the canvas onto pixel centres of the finer grid.
            v[3 * k] = scale * (t.v[3 * k] + 0.5 - left) - 0.5;
            v[3 * k + 1] = scale * (t.v[3 * k + 1] + 0.5 - top) - 0.5;
            v[3 * k + 2] = t.v[3 * k + 2];
        }
        fine->gouraudTriangle(v, t.color);
    }
    PixelBuffer out = fine->copyImage();
    delete fine;
    return out;
}
