// What the SVG and PDF outputs must carry over from the raster: colours that
// change along a boundary or repeat a tile, layered and transformed colours,
// merged and turned pictures, shaded triangles, a rounded frame with a shadow.
// Each page is written as PNG, SVG, SVGZ and PDF like every other sample.
#include <cmath>

#include "draw/canvas/DrawArea.h"
#include "draw/pixel/ColorWords.h"
#include "examples/gallery/Gallery.h"
#include "foundation/Constants.h"

namespace {

bool save(DrawArea *d, const std::string &path) {
    bool ok = d->out(path.c_str());
    d->destroy();
    return ok;
}

// A badge drawn on its own canvas, to be merged.
DrawArea *badge() {
    DrawArea *b = DrawArea::create();
    b->setSize(60, 40, 0xffffff);
    b->rect(0, 0, 59, 39, 0x1f3a5f, 0xdde8f5, 0);
    b->circle(20, 20, 12, 12, kTransparent, 0xe4572e);
    const double x[3] = {36, 52, 44}, y[3] = {30, 30, 10};
    b->polygon(DoubleArray(x, 3), DoubleArray(y, 3), 0x1f3a5f, 0x76b041);
    return b;
}

bool colors(const std::string &path) {
    DrawArea *d = DrawArea::create();
    d->setSize(420, 260, 0xffffff);
    // A line and an area whose colour changes at y = 70.
    double x[12], y[12];
    for (int i = 0; i < 12; ++i) x[i] = 20 + 16 * i, y[i] = 70 + 45 * std::sin(i * 0.7);
    d->rawPolyline(DoubleArray(x, 12), DoubleArray(y, 12), d->yZoneColor(70, 0xcc3333, 0x3366cc),
                   3);
    d->rect(220, 20, 400, 120, 0x333333, d->xZoneColor(300, 0xffcc66, 0x66cc99), 0);
    // A tile of pixels, a layered colour and a turned gradient.
    const int checker[16] = {0x1f3a5f, 0x1f3a5f, 0xdde8f5, 0xdde8f5, 0x1f3a5f, 0x1f3a5f,
                             0xdde8f5, 0xdde8f5, 0xdde8f5, 0xdde8f5, 0x1f3a5f, 0x1f3a5f,
                             0xdde8f5, 0xdde8f5, 0x1f3a5f, 0x1f3a5f};
    int pattern = d->patternColor(IntArray(checker, 16), 4, 0, 0);
    d->circle(70, 190, 50, 50, 0x333333, pattern);
    const int layers[2] = {
        0x76b041, d->linearGradientColor(140, 140, 140, 240, 0x80ffffff, kTransparent, false)};
    d->rect(140, 140, 260, 240, 0x333333, d->multiLayerColor(IntArray(layers, 2)), 0);
    const double turn[6] = {0.8, -0.6, 0.6, 0.8, 0, 0};
    int stripes = d->linearGradientColor(0, 0, 20, 0, 0xe4572e, 0xffc914, true);
    d->rect(280, 140, 400, 240, 0x333333, d->transformedColor(stripes, turn), 0);
    d->rect(300, 160, 380, 220, kTransparent, d->rectColor(300, 160, 340, 190, 0x80000000), 0);
    return save(d, path);
}

bool pictures(const std::string &path) {
    DrawArea *d = DrawArea::create();
    d->setSize(400, 240, 0xf4f6fa);
    DrawArea *b = badge();
    d->merge(b, 20, 20, kTopLeft, 0);
    d->mergeScaled(b, 100, 20, 120, 80, 0);
    d->merge(b, 240, 20, kTopLeft, 128);
    d->mergeRotated(b, 330, 60, 30);
    b->destroy();
    // A shaded mesh of triangles, as surfaces are drawn.
    for (int j = 0; j < 4; ++j)
        for (int i = 0; i < 8; ++i) {
            double x0 = 20 + 20 * i, y0 = 130 + 20 * j;
            double a = 0.4 + 0.08 * (i + j), b2 = 0.4 + 0.08 * (i + j + 1);
            d->gouraudTriangle(x0, y0, a, x0 + 20, y0, b2, x0, y0 + 20, b2, 0x3366cc);
            d->gouraudTriangle(x0 + 20, y0, b2, x0 + 20, y0 + 20, a + 0.16, x0, y0 + 20, b2,
                               0x3366cc);
        }
    d->setClipRect(200, 130, 380, 210);
    d->circle(290, 210, 90, 90, 0x333333,
              d->radialGradientColor(290, 210, 90, 90, 0xffffff, 0xe4572e, false));
    d->setClipRect(0, 0, 399, 239);
    d->setBgRoundedClip(16, 16, 16, 16, kTransparent);
    d->setBgDropShadow(0x80000000, 5, 5, 5);
    return save(d, path);
}

}  // namespace

VISTREL_GALLERY_SAMPLE("Vector outputs", "Zone, pattern, layered, turned and rectangle colours",
                       "vector_colors.png", colors);
VISTREL_GALLERY_SAMPLE("Vector outputs",
                       "Merged, scaled, faded and turned pictures, a shaded mesh, a clip, a "
                       "rounded frame and a shadow",
                       "vector_pictures.png", pictures);
