// What the raster makes of shapes, lines, dynamic colours and effect words.
#include <cmath>
#include <vector>

#include "draw/canvas/ColorEffects.h"
#include "draw/canvas/DrawArea.h"
#include "draw/canvas/Palettes.h"
#include "draw/pixel/ColorWords.h"
#include "examples/gallery/Gallery.h"
#include "foundation/Constants.h"

namespace {

bool save(DrawArea *d, const std::string &path) {
    bool ok = d->out(path.c_str());
    d->destroy();
    return ok;
}

DrawArea *canvas(int w, int h) {
    DrawArea *d = DrawArea::create();
    d->setSize(w, h, 0xffffff);
    return d;
}

bool shapes(const std::string &path) {
    DrawArea *d = canvas(420, 300);
    d->circle(70, 70, 50, 50, 0x1f3a5f, 0x3366cc);
    d->ring(200, 75, 60, 36, 35, 21, 0x006600, 0x8000aa00);
    double x[10], y[10];
    for (int i = 0; i < 10; ++i) {
        double a = i * kPi / 5, r = i % 2 ? 20 : 50;
        x[i] = 340 + r * std::sin(a);
        y[i] = 75 - r * std::cos(a);
    }
    d->polygon(DoubleArray(x, 10), DoubleArray(y, 10), 0x000000, 0xffcc00);
    const int colors[5] = {0xcc3333, 0x33cc33, 0x3333cc, 0xcccc33, 0x33cccc};
    double a = 0;
    for (int i = 0; i < 5; ++i) {
        double b = a + 30 + i * 25;
        d->sector(80, 220, 70, 70, a, b, 0xffffff, colors[i]);
        a = b;
    }
    for (int i = 0; i <= 24; ++i) {
        double t = i * kPi / 24;
        d->line(280, 280, 280 + 120 * std::cos(t), 280 - 120 * std::sin(t), 0x333333, 1);
    }
    return save(d, path);
}

bool lines(const std::string &path) {
    DrawArea *d = canvas(420, 220);
    for (int w = 1; w <= 9; w += 2) d->line(20, 20 + w * 6, 190, 10 + w * 12, 0xaa0000, w);
    const double zx[5] = {210, 260, 300, 340, 400}, zy[5] = {120, 30, 110, 40, 120};
    d->rawPolyline(DoubleArray(zx, 5), DoubleArray(zy, 5), (int)0x80000080u, 12);
    const int patterns[4] = {kDashLine, kDotLine, kDotDashLine, kAltDashLine};
    for (int i = 0; i < 4; ++i)
        d->line(20, 150 + i * 16, 400, 150 + i * 16, d->dashLineColor(0x1f3a5f, patterns[i]), 2);
    return save(d, path);
}

bool brushes(const std::string &path) {
    DrawArea *d = canvas(420, 300);
    const int pairs[6] = {0, 0xff0000, 128, 0x00ff00, 256, kTransparent};
    d->rect(20, 20, 200, 80, kTransparent,
            d->linearGradientColor2(20, 0, 200, 0, IntArray(pairs, 6), false), 0);
    d->rect(220, 20, 400, 80, kTransparent,
            d->radialGradientColor2(310, 50, 90, 30, IntArray(pairs, 6), false), 0);
    const int wheel[6] = {0, 0xff0000, 128, 0x0000ff, 256, 0xff0000};
    d->ring(70, 170, 55, 55, 25, 25, kTransparent,
            d->angleGradientColor(70, 170, 0, 360, 25, 55, IntArray(wheel, 6)));
    const int glass[6] = {0, 2048, 128, 1024, 256, 600};
    d->rect(150, 110, 230, 230, kTransparent,
            d->linearLightingColor(150, 110, 150, 230, 0x3366cc, IntArray(glass, 6), false), 0);
    d->rect(250, 110, 400, 230, 0x000000, d->brushedTextureColor(0x909090, 3), 0);
    d->circle(70, 260, 30, 30, kTransparent,
              d->radialLightingColor(60, 250, 40, 40, 0xcc6633, IntArray(glass, 6)));
    d->rect(150, 245, 400, 290, 0x000000, d->getARGBColor(Chart::goldColor(90)), 0);
    return save(d, path);
}

bool effects(const std::string &path) {
    DrawArea *d = canvas(420, 250);
    const struct {
        int effect;
        int color;
    } boxes[] = {
        {3, 0x6699cc},
        {-3, 0x6699cc},
        {0x2000 | 5, 0x66aa66},
        {Chart::flatBorder(4), 0xeeeeee},
        {Chart::glassEffect(3, kTop, 5), 0x3366cc},
        {Chart::glassEffect(2, kLeft, 5), 0xcc3333},
        {Chart::softLighting(kTop, 4), 0xffaa33},
        {Chart::cylinderEffect(5, 0.5, 0.5, 0.75, 8), 0x33aa99},
        {Chart::barLighting(0.75, 1.5), 0x9966cc},
    };
    for (int i = 0; i < 9; ++i) {
        int x = 20 + (i % 3) * 135, y = 20 + (i / 3) * 75;
        d->rect(x, y, x + 115, y + 60, 0x444444, boxes[i].color, boxes[i].effect);
    }
    return save(d, path);
}

// A million points of a noisy random walk in one poly-line, with its trend:
// the line is painted in memory the size of the canvas, whatever its length.
bool millionPoints(const std::string &path) {
    const int n = 1000000, window = 20000;
    DrawArea *d = canvas(800, 300);
    std::vector<double> x(n), y(n), tx, ty;
    unsigned state = 7;
    double level = 150, sum = 0;
    for (int i = 0; i < n; ++i) {
        state = state * 1103515245u + 12345u;
        double noise = ((state >> 8) & 0xFFFF) / 65535.0 - 0.5;
        level += 2 * noise + 0.0002 * (150 - level);
        x[i] = 20 + 760.0 * i / (n - 1);
        y[i] = level + 70 * noise * (0.3 + 0.7 * std::fabs(std::sin(i * 3 * kPi / n)));
        sum += level;
        if ((i + 1) % window == 0) {
            tx.push_back(x[i - window / 2]);
            ty.push_back(sum / window);
            sum = 0;
        }
    }
    d->rawPolyline(DoubleArray(x.data(), n), DoubleArray(y.data(), n), 0x3366cc, 1);
    d->rawPolyline(DoubleArray(tx.data(), (int)tx.size()), DoubleArray(ty.data(), (int)ty.size()),
                   0xcc3333, 3);
    return save(d, path);
}

}  // namespace

VISTREL_GALLERY_SAMPLE("Raster", "Anti-aliased circle, ring, star, pie sectors and a line fan",
                       "raster_shapes.png", shapes);
VISTREL_GALLERY_SAMPLE("Raster", "Line widths, a translucent wide poly-line and dash patterns",
                       "raster_lines.png", lines);
VISTREL_GALLERY_SAMPLE("Raster",
                       "A noisy series of a million points in one poly-line, and its trend",
                       "raster_million_points.png", millionPoints);
VISTREL_GALLERY_SAMPLE("Raster",
                       "Dynamic colours: gradients, angle gradient, lighting, brushed and "
                       "radial lighting, gold",
                       "raster_brushes.png", brushes);
VISTREL_GALLERY_SAMPLE("Raster",
                       "Effect words: raised, sunken, soft rim, flat, glass, soft lighting, "
                       "cylinder, bar",
                       "raster_effects.png", effects);

namespace {

// A grid with a few coloured cells: bends and turns are easy to see on it.
DrawArea *gridScene() {
    DrawArea *d = canvas(200, 160);
    for (int i = 0; i <= 10; ++i) {
        d->line(i * 20, 0, i * 20, 160, 0x5577aa, 1);
        d->line(0, i * 16, 200, i * 16, 0x5577aa, 1);
    }
    d->rect(40, 32, 80, 64, kTransparent, 0xe4572e, 0);
    d->rect(120, 96, 160, 128, kTransparent, 0x76b041, 0);
    d->circle(100, 80, 30, 30, 0x1f3a5f, 0x80ffc914);
    return d;
}

bool sphere(const std::string &path) {
    DrawArea *d = gridScene();
    d->sphereTransform(0xffffff);
    return save(d, path);
}

bool wave(const std::string &path) {
    DrawArea *d = gridScene();
    d->waveTransform(80, 8, 0, 0xffffff);
    return save(d, path);
}

bool cylinder(const std::string &path) {
    DrawArea *d = gridScene();
    d->vCylinderTransform(0xffffff);
    return save(d, path);
}

bool triangle(const std::string &path) {
    DrawArea *d = gridScene();
    d->vTriangleTransform(0xffffff);
    return save(d, path);
}

bool rotated(const std::string &path) {
    DrawArea *d = gridScene();
    d->rotate(30, 0xffffff, 100, 80, 1, 1.0);
    return save(d, path);
}

}  // namespace

VISTREL_GALLERY_SAMPLE("Image operations", "Sphere warp", "image_sphere.png", sphere);
VISTREL_GALLERY_SAMPLE("Image operations", "Wave warp", "image_wave.png", wave);
VISTREL_GALLERY_SAMPLE("Image operations", "Vertical cylinder warp", "image_cylinder.png",
                       cylinder);
VISTREL_GALLERY_SAMPLE("Image operations", "Triangle warp", "image_triangle.png", triangle);
VISTREL_GALLERY_SAMPLE("Image operations", "Rotation by 30 degrees", "image_rotate.png", rotated);
