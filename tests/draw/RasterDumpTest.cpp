#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>

#include "draw/DrawArea.h"
#include "tests/draw/RasterTestSupport.h"

// Pictures to look at by eye: run with --gtest_also_run_disabled_tests and set
// RASTER_DUMP_DIR to a folder; each scene is written there as a PAM file.
TEST(RasterDump, DISABLED_Scenes) {
    const char *dir = std::getenv("RASTER_DUMP_DIR");
    if (!dir) GTEST_SKIP();
    auto r = makeRaster(400, 300, 0x00FFFFFF);
    // Circle, ellipse and a ring.
    auto s = r->createShape();
    s->addArc(0x00000000, 70, 70, 50, 50, 70, 120, 70, 20);
    s->addArc(0x00000000, 70, 70, 50, 50, 70, 20, 70, 120);
    s->paint(0x003366CC, false, false);
    delete s;
    s = r->createShape();
    for (double rad : {60.0, 35.0}) {
        s->addArc(kTransparent, 200, 75, rad, rad * 0.6, 200, 75 + rad * 0.6, 200, 75 - rad * 0.6);
        s->addArc(kTransparent, 200, 75, rad, rad * 0.6, 200, 75 - rad * 0.6, 200, 75 + rad * 0.6);
    }
    s->paint(0x8000AA00, false, true);
    delete s;
    // A star polygon with an edge.
    double x[10], y[10];
    for (int i = 0; i < 10; ++i) {
        double a = i * 3.14159265358979 / 5, rr = i % 2 ? 20 : 50;
        x[i] = 330 + rr * std::sin(a), y[i] = 75 - rr * std::cos(a);
    }
    r->polygon(0x00000000, 0x00FFCC00, x, y, 10);
    // Thick lines and a thick polyline with joints.
    for (int w = 1; w <= 9; w += 2) r->line(20, 150 + w * 6, 180, 140 + w * 9, 0x00AA0000, w);
    const double zig[10] = {200, 250, 240, 160, 280, 240, 320, 170, 380, 260};
    r->polyLine((int)0x80000080u, 12, zig, 5);
    // Gradients and a dashed line.
    const int pairs[6] = {0, 0x00FF0000, 128, (int)0x0000FF00u, 256, kTransparent};
    r->linearGradientColor(dyn(1), 20, 0, 180, 0, false, pairs, 6);
    r->roundedRect(20, 230, 180, 290, 12, kTransparent, dyn(1));
    r->radialGradientColor(dyn(2), 330, 270, 40, 40, false, pairs, 6);
    r->roundedRect(290, 262, 370, 298, 0, 0x00000000, dyn(2));
    r->dashLineColor(dyn(3), 0x00000000, 0x0603);
    r->line(200, 290, 280, 200, dyn(3), 1);
    dumpPAM(*r, std::string(dir) + "/scene.pam");
}

TEST(RasterDump, DISABLED_CanvasAndBrushes) {
    const char *dir = std::getenv("RASTER_DUMP_DIR");
    if (!dir) GTEST_SKIP();
    DrawBMP::installCanvasHooks();
    DrawArea *d = DrawArea::create();
    d->setSize(400, 300, 0xFFFFFF);
    // A pie of sectors with edges.
    const int colors[5] = {0xCC3333, 0x33CC33, 0x3333CC, 0xCCCC33, 0x33CCCC};
    double a = 0;
    for (int i = 0; i < 5; ++i) {
        double b = a + 30 + i * 25;
        d->sector(80, 80, 70, 70, a, b, 0xFFFFFF, colors[i]);
        a = b;
    }
    // A fan of thin lines.
    for (int i = 0; i < 24; ++i) {
        double t = i * 3.14159265358979 / 24;
        d->line(250, 80, 250 + 70 * std::cos(t), 80 - 70 * std::sin(t), 0x000000, 1);
    }
    const int radius[4] = {10, 10, 10, 10};
    const int edges[4] = {0x000000, 0x000000, 0x000000, 0x000000};
    d->roundedRect(300, 120, 390, 170, radius, edges, 0xEEEEFF);
    auto *raster = static_cast<DrawBMPImpl *>(d->getRaster());
    // Brushes drawn straight on the raster.
    const int pairs[6] = {0, 0x00FF0000, 128, 0x000000FF, 256, 0x00FF0000};
    raster->angleGradientColor(dyn(100), 60, 230, 0, 360, 20, 55, pairs, 6);
    raster->roundedRect(0, 170, 120, 299, 0, kTransparent, dyn(100));
    const int glass[6] = {0, 2048, 128, 1024, 256, 600};
    raster->lightingColor(dyn(101), 0x3366CC, 0, 180, 0, 290, false, glass, 6);
    raster->roundedRect(140, 180, 220, 290, 8, kTransparent, dyn(101));
    raster->brushedTextureColor(dyn(102), 0x909090, 3);
    raster->roundedRect(240, 190, 390, 290, 0, 0x000000, dyn(102));
    raster->radialLightingColor(dyn(103), 0xCC6633, 330, 40, 50, 50, glass, 6);
    auto s = raster->createShape();
    s->addArc(kTransparent, 330, 40, 30, 30, 330, 70, 330, 10);
    s->addArc(kTransparent, 330, 40, 30, 30, 330, 10, 330, 70);
    s->paint(dyn(103), false, true);
    delete s;
    dumpPAM(*raster, std::string(dir) + "/canvas.pam");
    d->destroy();
}
