#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "draw/canvas/DrawArea.h"
#include "draw/list/MetaDraw.h"
#include "draw/raster/DrawBMP.h"
#include "tests/draw/raster/RasterTestSupport.h"

namespace {

const unsigned kWhite = 0x00FFFFFFu;

struct Canvas {
    DrawArea *d;
    Canvas(int w, int h, int bg) : d(DrawArea::create()) { d->setSize(w, h, bg); }
    ~Canvas() { d->destroy(); }
    unsigned at(int x, int y) { return (unsigned)d->getPixel(x, y); }
};

}  // namespace

TEST(RasterPlay, CanvasDrawsThroughTheList) {
    Canvas c(60, 40, (int)kWhite);
    c.d->rect(5, 5, 20, 15, 0x000000, 0xFF0000, 0);
    c.d->line(30, 2, 30, 30, 0x0000FF, 1);
    c.d->circle(45, 25, 8, 8, kTransparent, 0x00FF00);
    EXPECT_EQ(c.at(5, 5), 0u);
    EXPECT_EQ(c.at(12, 10), 0xFF0000u);
    EXPECT_EQ(c.at(21, 10), kWhite);
    EXPECT_EQ(c.at(30, 20), 0x0000FFu);
    EXPECT_EQ(c.at(45, 25), 0x00FF00u);
    EXPECT_EQ(c.at(45, 39), kWhite);

    // A dynamic layer goes away again.
    c.d->initDynamicLayer();
    c.d->rect(0, 0, 59, 39, 0x123456, 0x123456, 0);
    EXPECT_EQ(c.at(1, 1), 0x123456u);
    c.d->removeDynamicLayer();
    EXPECT_EQ(c.at(1, 1), kWhite);
    EXPECT_EQ(c.at(12, 10), 0xFF0000u);
}

TEST(RasterPlay, MergedCanvasAndColours) {
    Canvas c(40, 40, (int)kWhite);
    DrawArea *sub = DrawArea::create();
    sub->setSize(10, 10, 0x0000FF);
    c.d->merge(sub, 20, 20, 7, 0);
    EXPECT_EQ(c.at(25, 25), 0x0000FFu);
    EXPECT_EQ(c.at(19, 25), kWhite);
    sub->destroy();

    int dash = c.d->dashLineColor(0x000000, 0x0202);
    c.d->line(0, 2, 9, 2, dash, 1);
    EXPECT_EQ(c.at(0, 2), 0u);
    EXPECT_EQ(c.at(2, 2), kWhite);
    EXPECT_EQ(c.at(4, 2), 0u);
}

TEST(RasterPlay, CanvasImageOperations) {
    Canvas c(9, 5, (int)kWhite);
    c.d->pixel(0, 0, 0x112233);
    c.d->rect(1, 3, 2, 4, 0x0000FF, 0x0000FF, 0);
    c.d->hFlip();
    EXPECT_EQ(c.at(8, 0), 0x112233u);
    EXPECT_EQ(c.at(7, 4), 0x0000FFu);
    EXPECT_EQ(c.at(1, 4), kWhite);
    c.d->vFlip();
    EXPECT_EQ(c.at(7, 0), 0x0000FFu);
    c.d->move(-7, 0, 0x00FF00, 0, 1.0);
    EXPECT_EQ(c.at(0, 0), 0x0000FFu);
    EXPECT_EQ(c.at(8, 2), 0x00FF00u);
    c.d->resize(18, 10, 1, 1.0);
    EXPECT_EQ(c.d->getRaster() ? static_cast<DrawBMP *>(c.d->getRaster())->getWidth() : 0, 18);
    EXPECT_EQ(c.at(17, 5), 0x00FF00u);
}

class RasterHostile : public ::testing::TestWithParam<int> {};

TEST_P(RasterHostile, ArgumentsNeverCrash) {
    std::mt19937 rng(GetParam());
    const double specials[] = {0, -1, 1e300, -1e300, std::nan(""), HUGE_VAL, 0.5, 3, 1e9, -7.25};
    const int ints[] = {0, -1, 1, 5, 100000, -100000, 0x7FFFFFFF, (int)0x80000000, 33, 255};
    auto d = [&]() {
        return rng() % 3 ? std::uniform_real_distribution<double>(-20, 60)(rng)
                         : specials[rng() % 10];
    };
    auto i = [&]() { return rng() % 3 ? (int)(rng() % 50) : ints[rng() % 10]; };
    auto color = [&]() { return rng() % 4 ? (int)(rng() % 0x1000000) : dyn((int)(rng() % 6)); };
    auto r = makeRaster(40, 40, 0x00FFFFFF);
    for (int round = 0; round < 3000; ++round) {
        double v[12];
        for (double &x : v) x = d();
        int p[8];
        for (int &x : p) x = i();
        const int pairs[6] = {p[0], color(), p[1], color(), p[2], color()};
        switch (rng() % 24) {
            case 0:
                r->line(v[0], v[1], v[2], v[3], color(), p[0] % 20);
                break;
            case 1:
                r->polyLine(color(), p[0] % 12, DoubleArray(v, 12));
                break;
            case 2:
                r->polygon(color(), color(), DoubleArray(v, 6), DoubleArray(v + 6, 6));
                break;
            case 3: {
                const int radius[4] = {p[0], p[1], p[2], p[3]}, edge[4] = {p[4], p[5], p[6], p[7]};
                r->multiRoundedRect(v[0], v[1], v[2], v[3], radius, edge, color());
                break;
            }
            case 4: {
                const double t[9] = {v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8]};
                r->gouraudTriangle(t, color());
                break;
            }
            case 5: {
                MetaPathItem items[2] = {
                    {(unsigned)(p[0] % 3),
                     {v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], v[9]},
                     color(),
                     false},
                    {2,
                     {v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], v[9], v[0]},
                     color(),
                     true}};
                r->shape(color(), p[1] % 2, p[2] % 2, items, 2);
                break;
            }
            case 6:
                r->linearGradientColor(dyn(1), v[0], v[1], v[2], v[3], p[3] % 2,
                                       IntArray(pairs, p[4] % 8));
                break;
            case 7:
                r->radialGradientColor(dyn(2), p[0], p[1], p[2], p[3], p[4] % 2,
                                       IntArray(pairs, 6));
                break;
            case 8:
                r->angleGradientColor(dyn(3), v[0], v[1], v[2], v[3], v[4], v[5],
                                      IntArray(pairs, 6));
                break;
            case 9:
                r->patternColor(dyn(4), p[0], p[1], p[2], p[3], IntArray(pairs, 6));
                break;
            case 10: {
                const double m[6] = {v[0], v[1], v[2], v[3], v[4], v[5]};
                r->transformedColor(dyn(5), dyn(4), m);
                break;
            }
            case 11:
                r->setClipRect(p[0], p[1], p[2], p[3]);
                break;
            case 12:
                r->mergeWithRotation(0, v[0], v[1], v[2]);
                break;
            case 13:
                r->setBgRoundedClip(p[0], p[1], p[2], p[3], color());
                break;
            case 14:
                r->lightingColor(dyn(0), color(), v[0], v[1], v[2], v[3], true,
                                 IntArray(pairs, p[5] % 8));
                break;
            case 15:
                r->beginSuperPixelMode();
                break;
            case 16:
                r->commitSuperPixels();
                break;
            case 17:
                r->setBgColor(color());
                break;
            case 18:
                r->affineTransform(v[0], v[1], v[2], v[3], v[4], v[5], color(), p[0], v[6]);
                break;
            case 19:
                r->resize(p[0] % 60, p[1] % 60);
                break;
            case 20: {
                const MetaLineEntry items[3] = {{true, color(), p[0] % 9, 0, 0},
                                                {false, 0, 0, v[0], v[1]},
                                                {false, 0, 0, v[2], v[3]}};
                r->multiLine(items, 3);
                break;
            }
            case 21: {
                const unsigned char glyph[6] = {255, 1, 2, 3, 4, 5};
                r->fillGlyph(glyph, 3, 2, 3, p[0], p[1], color());
                break;
            }
            case 22:
                r->initDynamicLayer();
                break;
            default:
                if (rng() % 2)
                    r->restoreSnapshot();
                else
                    r->dashLineColor(dyn(rng() % 6), color(), p[0]);
                break;
        }
        ASSERT_GE(r->getWidth(), 0);
        r->getPixel(r->getWidth() - 1, r->getHeight() - 1);
    }
    r->setSize(0x7FFFFFFF, 0x7FFFFFFF, 0);
    EXPECT_EQ(r->getWidth(), 1);
    r->setBgDropShadow(300, -5, 200, 0, 0);
    EXPECT_GE(r->getWidth(), 1);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RasterHostile, ::testing::Values(99, 7, 2024, 31337, 5));
