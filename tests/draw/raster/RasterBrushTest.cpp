#include <gtest/gtest.h>

#include <cmath>

#include "draw/pixel/PixelBlend.h"
#include "draw/raster/brush/GradientBrushes.h"
#include "draw/raster/brush/LightingBrushes.h"
#include "draw/raster/brush/PatternBrushes.h"
#include "draw/raster/brush/SimpleBrushes.h"
#include "tests/draw/raster/RasterTestSupport.h"

namespace {

// The grey of table entry i of a black-to-white table of `entries` entries.
unsigned greyEntry(int i, int entries) {
    int n = entries - 1;
    unsigned w = (unsigned)((i * 256 + n / 2) / n);
    unsigned v = (255 * w + 0x80) >> 8;
    return (v << 16) | (v << 8) | v;
}

const int kBlackWhite[4] = {0, 0x000000, 256, 0xFFFFFF};

}  // namespace

TEST(RasterBrush, LinearGradientFixedPoint) {
    GradientBrush h(0, 0, 255, 0, false, kBlackWhite, 4);
    // dx = 4096 exactly, so the index is x.
    for (int x : {0, 1, 77, 128, 200, 255}) EXPECT_EQ((unsigned)h.colorAt(x, 9), greyEntry(x, 256));
    EXPECT_EQ((unsigned)h.colorAt(128, 0), 0x808080u);
    EXPECT_EQ(h.colorAt(-40, 0), 0x000000);
    EXPECT_EQ(h.colorAt(900, 0), 0xFFFFFF);
    GradientBrush periodic(0, 0, 255, 0, true, kBlackWhite, 4);
    EXPECT_EQ(periodic.colorAt(256 + 10, 0), periodic.colorAt(10, 0));
    EXPECT_EQ(periodic.colorAt(-1, 0), periodic.colorAt(255, 0));

    // Vertical: dy = floor(4096 * 255 * 100 / 10000 + 0.5) = 10445.
    GradientBrush v(0, 0, 0, 100, false, kBlackWhite, 4);
    EXPECT_EQ((unsigned)v.colorAt(3, 50), greyEntry((50 * 10445) >> 12, 256));
    EXPECT_EQ((unsigned)v.colorAt(3, 100), 0xFFFFFFu);

    // A table whose last position is above 256 is the long table.
    const int longPairs[4] = {0, 0x000000, 512, 0xFFFFFF};
    ColorBrush *b = createLinearGradient(0, 0, 1000, 0, false, longPairs, 4);
    ASSERT_NE(dynamic_cast<PreciseGradientBrush *>(b), nullptr);
    EXPECT_EQ(static_cast<PreciseGradientBrush *>(b)->getTable().size(), 1001u);
    EXPECT_EQ((unsigned)b->colorAt(500, 0), greyEntry(500, 1001));
    EXPECT_EQ((unsigned)b->colorAt(-5, 0), 0u);
    delete b;
    b = createLinearGradient(0, 0, 1000, 0, false, kBlackWhite, 4);
    EXPECT_NE(dynamic_cast<GradientBrush *>(b), nullptr);
    delete b;
}

TEST(RasterBrush, GradientTables) {
    std::vector<int> t;
    // A transparent end fades the alpha and keeps the colour.
    const int fade[4] = {0, 0x00FF0000, 256, kTransparent};
    BaseGradientBrush::buildTable(fade, 4, 256, t);
    EXPECT_EQ((unsigned)t[0], 0x00FF0000u);
    EXPECT_EQ((unsigned)t[128], 0x80FF0000u);
    EXPECT_EQ(t[255], kTransparent);
    for (int i = 0; i < 255; ++i) EXPECT_EQ((unsigned)t[i] & 0xFFFFFF, 0xFF0000u) << i;

    // Three pairs, one colour before the first position and after the last.
    const int three[6] = {64, 0x000000, 128, 0x0000FF, 256, 0x00FF00};
    BaseGradientBrush::buildTable(three, 6, 256, t);
    EXPECT_EQ(t[0], 0);
    EXPECT_EQ(t[64], 0);
    EXPECT_EQ(t[128], 0x0000FF);
    EXPECT_EQ(t[255], 0x00FF00);
    // Entry 96 lies halfway between 64 and 128 (positions 64 and 128 of 256 land
    // on entries 64 and 128 of 255).
    EXPECT_EQ((unsigned)t[96] & 0xFF, (255u * ((32 * 256 + 32) / 64) + 0x80) >> 8);

    // Bad pair arrays give a transparent table.
    BaseGradientBrush::buildTable(nullptr, 6, 256, t);
    EXPECT_EQ(t[3], kTransparent);
    BaseGradientBrush::buildTable(three, -2, 16, t);
    EXPECT_EQ(t.size(), 16u);
}

TEST(RasterBrush, RadialAndAngleGradients) {
    RadialGradientBrush r(50, 50, 100, 100, false, kBlackWhite, 4);
    EXPECT_EQ(r.colorAt(50, 50), 0);
    // kx = floor(4096 * 255 / 100 + 0.5) = 10445; x - cx = 50 gives 127.
    EXPECT_EQ((unsigned)r.colorAt(100, 50), greyEntry(127, 256));
    EXPECT_EQ((unsigned)r.colorAt(50, 100), greyEntry(127, 256));
    EXPECT_EQ(r.colorAt(300, 50), 0xFFFFFF);
    RadialGradientBrush rp(50, 50, 100, 100, true, kBlackWhite, 4);
    // Radius 637 in table units wraps to entry 637 & 255.
    EXPECT_EQ((unsigned)rp.colorAt(300, 50), greyEntry(((250 * 10445) >> 12) & 255, 256));
    ColorBrush *big = createRadialGradient(0, 0, 1000, 1000, false, kBlackWhite, 4);
    EXPECT_NE(dynamic_cast<PreciseRadialGradientBrush *>(big), nullptr);
    EXPECT_EQ((unsigned)big->colorAt(500, 0), greyEntry(500, 1001));
    delete big;

    AngleGradientBrush a(0, 0, 0, 360, 0, 0, kBlackWhite, 4);
    // 3 o'clock is 90000 thousandths; k = floor(65536 * 999 / 360000 + 0.5) = 182.
    EXPECT_EQ((unsigned)a.colorAt(10, 0), greyEntry((90000 * 182) >> 16, 1000));
    EXPECT_EQ(a.colorAt(0, -10), 0);
    AngleGradientBrush ring(0, 0, 0, 90, 5, 20, kBlackWhite, 4);
    EXPECT_EQ(ring.colorAt(1, 0), kTransparent);
    EXPECT_EQ(ring.colorAt(30, 0), kTransparent);
    EXPECT_EQ(ring.colorAt(10, 0), 0xFFFFFF);
    // Outside the sweep: the nearer end.
    EXPECT_EQ(ring.colorAt(-7, 7), 0xFFFFFF);
    EXPECT_EQ(ring.colorAt(-7, -7), 0);
}

TEST(RasterBrush, LightingTables) {
    const int bright[4] = {0, 2048, 256, 2048};
    LightingTable t(bright, 4);
    // offset 255 - 261120 / 2048 = 128, factor 1048576 / 2048 = 512.
    EXPECT_EQ(t.offsetAt(100), 128);
    EXPECT_EQ(t.factorAt(100), 512);
    EXPECT_EQ((unsigned)t.apply(0x40204060, 0),
              0x40000000u | (144u << 16) | (160u << 8) | (128 + ((0x60 * 512) >> 10)));
    EXPECT_EQ((unsigned)t.apply(0x00FFFFFF, 5), 0x00FFFFFFu);
    EXPECT_EQ(t.apply(kTransparent, 5), kTransparent);

    const int ramp[4] = {0, 512, 256, 1536};
    LightingTable r(ramp, 4);
    EXPECT_EQ(r.factorAt(0), 512);
    EXPECT_EQ(r.offsetAt(0), 0);
    EXPECT_EQ(r.factorAt(127), 512 + 1024 * 127 / 255);
    EXPECT_EQ(r.offsetAt(255), 255 - 261120 / 1536);
    EXPECT_EQ(r.factorAt(255), 1048576 / 1536);

    auto raster = makeRaster(4, 4, 0);
    LightingBrush lb(raster.get(), 0x00808080, 0, 0, 255, 0, false, ramp, 4);
    EXPECT_EQ((unsigned)lb.colorAt(0, 0), 0x00404040u);
    EXPECT_EQ(lb.colorAt(-3, 0), lb.colorAt(0, 0));
    RadialLightingBrush rl(raster.get(), 0x00808080, 0, 0, 255, 255, ramp, 4);
    EXPECT_EQ((unsigned)rl.colorAt(0, 0), 0x00404040u);
    EXPECT_EQ(rl.colorAt(1000, 0), r.apply(0x00808080, 255));

    MetalTextureBrush metal(raster.get(), 0x00808080, 2);
    for (int x = 0; x < 300; x += 7) {
        unsigned c = (unsigned)metal.colorAt(x, x / 3);
        int k = 1024 + (MetalTextureBrush::stripeAt(x, x / 3) - 128) * 36 / 32;
        EXPECT_EQ(c, PixelBlend::adjustBrightness(0x00808080u, k));
        EXPECT_LT(std::abs((int)(c & 255) - 128), 40);
    }
}

TEST(RasterBrush, PatternsAndTransforms) {
    const int px[4] = {0x000000, 0x0000F0, 0x00F000, 0x00F0F0};
    PatternBrush p(1, 1, 2, 2, px, 4);
    EXPECT_EQ(p.colorAt(1, 1), px[0]);
    EXPECT_EQ(p.colorAt(2, 1), px[1]);
    EXPECT_EQ(p.colorAt(0, 0), px[3]);
    EXPECT_EQ(p.colorAt(-7, 2), px[2]);
    // Bilinear in sixteenths: halfway between columns.
    EXPECT_EQ(p.colorAtF(1.5, 1), 0x000078);
    EXPECT_EQ(p.colorAtF(1.5, 1.5), 0x007878);
    EXPECT_EQ(p.colorAtF(1.0, 1.0), px[0]);
    PatternBrush bad(0, 0, 0, 5, px, 4), shortData(0, 0, 3, 3, px, 4);
    EXPECT_EQ(bad.colorAt(3, 3), kTransparent);
    EXPECT_EQ(shortData.colorAt(0, 0), kTransparent);
    const int seeThrough[2] = {kTransparent, kTransparent};
    PatternBrush clear(0, 0, 2, 1, seeThrough, 2);
    EXPECT_EQ(clear.colorAtF(0.5, 0), kTransparent);

    auto raster = makeRaster(4, 4, 0);
    raster->patternColor(dyn(1), 0, 0, 2, 2, IntArray(px, 4));
    const double shift[6] = {1, 0, 0, 1, 1, 0};
    raster->transformedColor(dyn(2), dyn(1), shift);
    ColorBrush *t = raster->getBrush(dyn(2));
    ASSERT_NE(t, nullptr);
    EXPECT_EQ(raster->resolveColor(dyn(2), 0, 0), px[1]);
    EXPECT_EQ(raster->resolveColor(dyn(2), 1, 1), px[2]);
    const double half[6] = {1, 0, 0, 1, 0.5, 0};
    raster->preciseTransformColor(dyn(3), dyn(1), half);
    EXPECT_EQ(raster->resolveColor(dyn(3), 0, 0), 0x000078);
}

TEST(RasterBrush, SimpleBrushes) {
    ZoneBrush z(true, 10, 0x111111, 0x222222);
    EXPECT_EQ(z.colorAt(50, 9), 0x111111);
    EXPECT_EQ(z.colorAt(-50, 10), 0x222222);
    ZoneBrush zx(false, 10, 0x111111, 0x222222);
    EXPECT_EQ(zx.colorAt(9, 50), 0x111111);

    RectBrush rect(2, 2, 5, 4, 0x00FF00);
    EXPECT_EQ(rect.colorAt(2, 2), 0x00FF00);
    EXPECT_EQ(rect.colorAt(6, 3), kTransparent);

    auto raster = makeRaster(10, 10, 0x00FFFFFF);
    const int layers[2] = {0x00FF0000, (int)0x800000FF};
    raster->multiLayerColor(dyn(4), IntArray(layers, 2));
    EXPECT_EQ((unsigned)raster->resolveColor(dyn(4), 0, 0),
              PixelBlend::blend(0x00FF0000u, 0x800000FFu));
    const int onlyTop[1] = {(int)0x800000FF};
    raster->multiLayerColor(dyn(5), IntArray(onlyTop, 1));
    EXPECT_EQ((unsigned)raster->resolveColor(dyn(5), 0, 0), 0x800000FFu);
    const int opaqueTop[2] = {0x00FF0000, 0x000000FF};
    raster->multiLayerColor(dyn(6), IntArray(opaqueTop, 2));
    EXPECT_EQ(raster->resolveColor(dyn(6), 0, 0), 0x0000FF);

    raster->adjustBrightness(dyn(7), 0x808080, 0.5);
    EXPECT_EQ(raster->resolveColor(dyn(7), 0, 0), 0x404040);
    raster->adjustBrightness(dyn(8), dyn(4), 1.0);
    EXPECT_EQ(raster->resolveColor(dyn(8), 0, 0), raster->resolveColor(dyn(4), 0, 0));
    // An unknown handle is transparent.
    EXPECT_EQ(raster->resolveColor(dyn(999), 0, 0), kTransparent);

    // Spans through a rectangle brush touch only its pixels.
    raster->rectColor(dyn(9), 2, 0, 4, 9, 0x00FF00);
    raster->solidSpan(0, 9, 1, dyn(9));
    for (int x = 0; x < 10; ++x)
        EXPECT_EQ(pixelOf(*raster, x, 1), x >= 2 && x <= 4 ? 0x00FF00u : 0xFFFFFFu) << x;
}

TEST(RasterBrush, NestingStopsAtTwentyLevels) {
    for (int depth : {5, 19, 20, 25}) {
        auto r = makeRaster(3, 3, 0x00FFFFFF);
        // Each zone brush hands on to the next handle; the last gives red.
        for (int k = 1; k < depth; ++k) r->zoneColor(dyn(k), false, -1000, 0, dyn(k + 1));
        r->zoneColor(dyn(depth), false, -1000, 0, 0x00FF0000);
        r->setPixel(1, 1, dyn(1));
        if (depth <= 20)
            EXPECT_EQ(pixelOf(*r, 1, 1), 0x00FF0000u) << depth;
        else
            EXPECT_EQ(pixelOf(*r, 1, 1), 0x00FFFFFFu) << depth;
        if (depth > 20) {
            EXPECT_EQ(r->resolveColor(dyn(1), 0, 0), dyn(21));
        }
    }
}

TEST(RasterBrush, DashRuns) {
    DashLineBrush dash(0x00FF0000, 0x0505);
    std::string seen;
    for (int x = 0; x < 22; ++x) seen += dash.colorAt(x, 3) == kTransparent ? '.' : '#';
    EXPECT_EQ(seen, "#####.....#####.....##");
    // Calling twice at one point doesn't advance; a jump restarts.
    EXPECT_EQ(dash.colorAt(21, 3), 0x00FF0000);
    EXPECT_EQ(dash.colorAt(40, 3), 0x00FF0000);
    EXPECT_EQ(dash.getRuns().size(), 10u);

    DashLineBrush dotDash(1, 0x05050205);
    std::string runs;
    for (bool on : dotDash.getRuns()) runs += on ? '#' : '.';
    EXPECT_EQ(runs, "#####.....##.....");
    DashLineBrush none(1, 0);
    EXPECT_EQ(none.getRuns(), std::vector<bool>(16, false));

    auto r = makeRaster(30, 3, 0x00FFFFFF);
    r->dashLineColor(dyn(1), 0x000000FF, 0x0303);
    r->line(0, 1, 29, 1, dyn(1), 1);
    std::string line;
    for (int x = 0; x < 30; ++x) line += pixelOf(*r, x, 1) == 0xFFu ? '#' : '.';
    EXPECT_EQ(line, "###...###...###...###...###...");
}

TEST(RasterBrush, BackgroundAndGouraud) {
    auto r = makeRaster(8, 4, 0x00FFFFFF);
    EXPECT_FALSE(r->getImage().bgTransparent);
    const int fade[4] = {0, 0x00000000, 256, kTransparent};
    r->linearGradientColor(dyn(1), 0, 0, 7, 0, false, IntArray(fade, 4));
    r->setBgColor(dyn(1));
    EXPECT_EQ(pixelOf(*r, 0, 2), 0u);
    // The last pixel lands on entry 254: the 12-bit step truncates.
    EXPECT_EQ(pixelOf(*r, 7, 2), 0xFE000000u);
    EXPECT_TRUE(r->getImage().bgTransparent);
    r->setBgColor((int)0xFF123456);
    EXPECT_EQ(pixelOf(*r, 3, 3), (unsigned)kTransparent);

    auto g = makeRaster(20, 20, 0x00FFFFFF);
    const double full[9] = {0, 0, 1, 19, 0, 1, 0, 19, 1};
    const double other[9] = {19, 0, 1, 19, 19, 1, 0, 19, 1};
    g->gouraudTriangle(full, (int)0x80000000);
    g->gouraudTriangle(other, (int)0x80000000);
    // Two triangles on one edge paint every pixel once.
    for (int y = 0; y < 19; ++y)
        for (int x = 0; x < 19; ++x) EXPECT_EQ(pixelOf(*g, x, y), 0x00808080u) << x << "," << y;
    const double dim[9] = {0, 0, 0.5, 19, 0, 0.5, 0, 19, 0.5};
    auto d = makeRaster(20, 20, 0x00FFFFFF);
    d->gouraudTriangle(dim, 0x00FF8040);
    EXPECT_EQ(pixelOf(*d, 2, 2), PixelBlend::adjustBrightness(0x00FF8040u, 512));
}
