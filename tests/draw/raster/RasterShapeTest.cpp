#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "draw/raster/AAShape.h"
#include "draw/raster/scan/AALineEdge.h"
#include "draw/raster/scan/SpanPainter.h"
#include "tests/draw/raster/RasterTestSupport.h"

namespace {

const unsigned kWhite = 0x00FFFFFFu;
const int kRed = 0x00FF0000;

// Counts pixels that are neither the background nor the full colour.
int fringeCount(const DrawBMPImpl &r, unsigned bg, unsigned color) {
    int n = 0;
    for (int y = 0; y < r.getHeight(); ++y)
        for (int x = 0; x < r.getWidth(); ++x) {
            unsigned p = pixelOf(r, x, y);
            n += p != bg && p != color;
        }
    return n;
}

bool samePixels(const DrawBMPImpl &a, const DrawBMPImpl &b) {
    for (int y = 0; y < a.getHeight(); ++y)
        for (int x = 0; x < a.getWidth(); ++x)
            if (a.getPixel(x, y) != b.getPixel(x, y)) return false;
    return true;
}

}  // namespace

TEST(RasterShape, WholeNumberRectanglesHaveNoFringe) {
    for (bool aa : {true, false}) {
        auto r = makeRaster(40, 30, kWhite);
        r->setAntiAlias(aa, 1);
        const double x[4] = {3, 20, 20, 3}, y[4] = {4, 4, 17, 17};
        r->polygon(kRed, kRed, DoubleArray(x, 4), DoubleArray(y, 4));
        EXPECT_EQ(fringeCount(*r, kWhite, kRed), 0);
        // Inclusive corners: 18 by 14 pixels.
        int painted = 0;
        for (int py = 0; py < 30; ++py)
            for (int px = 0; px < 40; ++px) painted += pixelOf(*r, px, py) == (unsigned)kRed;
        EXPECT_EQ(painted, 18 * 14);
        EXPECT_EQ(pixelOf(*r, 3, 4), (unsigned)kRed);
        EXPECT_EQ(pixelOf(*r, 20, 17), (unsigned)kRed);
        EXPECT_EQ(pixelOf(*r, 21, 17), kWhite);

        // A rectangle record with and without an edge covers the same pixels.
        for (int edge : {kRed, (int)kTransparent, 0x000000FF}) {
            auto q = makeRaster(40, 30, kWhite);
            q->setAntiAlias(aa, 1);
            q->roundedRect(5, 6, 25, 20, 0, edge, kRed);
            int inside = 0;
            for (int py = 0; py < 30; ++py)
                for (int px = 0; px < 40; ++px) {
                    unsigned p = pixelOf(*q, px, py);
                    bool in = px >= 5 && px <= 25 && py >= 6 && py <= 20;
                    bool border = in && (px == 5 || px == 25 || py == 6 || py == 20);
                    unsigned want = !in ? kWhite
                                        : (border && edge != (int)kTransparent ? (unsigned)edge
                                                                               : (unsigned)kRed);
                    inside += p == want;
                }
            EXPECT_EQ(inside, 40 * 30) << std::hex << edge;
        }
    }
}

TEST(RasterShape, AntiAliasOffPaintsOrLeaves) {
    auto r = makeRaster(60, 60, kWhite);
    r->setAntiAlias(false, 0);
    const double x[5] = {3.3, 55.7, 41.2, 20.9, 7.1}, y[5] = {10.4, 2.2, 50.6, 57.9, 33.3};
    r->polygon(kTransparent, kRed, DoubleArray(x, 5), DoubleArray(y, 5));
    auto shapeWithCircle = r->createShape();
    shapeWithCircle->addArc(kTransparent, 30, 30, 12.3, 9.7, 30, 39.7, 30, 20.3);
    shapeWithCircle->addArc(kTransparent, 30, 30, 12.3, 9.7, 30, 20.3, 30, 39.7);
    shapeWithCircle->paint(0x000000FF, false, true);
    delete shapeWithCircle;
    for (int py = 0; py < 60; ++py)
        for (int px = 0; px < 60; ++px) {
            unsigned p = pixelOf(*r, px, py);
            EXPECT_TRUE(p == kWhite || p == (unsigned)kRed || p == 0x0000FFu) << px << "," << py;
        }
    // With anti-aliasing on the same picture has fringes.
    auto a = makeRaster(60, 60, kWhite);
    a->polygon(kTransparent, kRed, DoubleArray(x, 5), DoubleArray(y, 5));
    EXPECT_GT(fringeCount(*a, kWhite, kRed), 50);
}

TEST(RasterShape, EdgeFactorsAndCoverage) {
    AALineEdge diagonal(0, 0, 0, 10, 10, false);
    EXPECT_DOUBLE_EQ(diagonal.getFactor(), 1 / std::sqrt(2.0));
    AALineEdge vertical(0, 5, 0, 5, 10, false);
    EXPECT_DOUBLE_EQ(vertical.getFactor(), 1.0);
    AALineEdge flat(0, 0, 3, 10, 3, false);
    EXPECT_EQ(flat.getFactor(), 0);
    // Snapping: within 0.001 of a whole number.
    // Snapping: within 0.001 of a whole number, then the two x made equal.
    AALineEdge snapped(0, 2.0004, 0, 2.0009, 10, false);
    EXPECT_EQ(snapped.spanAt(5).x, 2.0);
    EXPECT_EQ(snapped.getFactor(), 1.0);
    AALineEdge exact(0, 2.0004, 0, 2.0009, 10, true);
    EXPECT_NE(exact.spanAt(5).x, 2.0);
    AASpan s = diagonal.spanAt(4);
    EXPECT_DOUBLE_EQ(s.x, 4);
    EXPECT_DOUBLE_EQ(s.minX, 3.5);
    EXPECT_DOUBLE_EQ(s.maxX, 4.5);

    // Coverage is the distance of the centre from the edge along its normal, plus 0.5.
    double f = 1 / std::sqrt(2.0);
    EXPECT_DOUBLE_EQ(SpanPainter::leftCoverage(4, 4, f, 100, 1, 0), 0.5);
    EXPECT_NEAR(SpanPainter::leftCoverage(4.5, 4, f, 100, 1, 0), 0.5 + 0.5 * f, 1e-12);
    EXPECT_DOUBLE_EQ(SpanPainter::leftCoverage(5, 5, 1, 5.5, 1, 0), 0.5 - 0.0);
    EXPECT_DOUBLE_EQ(SpanPainter::rightCoverage(5, 0, 1, 5, 1, 0), 0.5);
    EXPECT_DOUBLE_EQ(SpanPainter::rightCoverage(5, 0, 1, 5, 1, 0.5), 0);
    // A pair narrower than a pixel loses what lies beyond the other edge.
    EXPECT_NEAR(SpanPainter::leftCoverage(5, 4.8, 1, 5.2, 1, 0), 0.4, 1e-12);
    EXPECT_EQ(SpanPainter::levelOf(0.5), 8);
    EXPECT_EQ(SpanPainter::levelOf(1 / 32.0), 1);
    EXPECT_EQ(SpanPainter::levelOf(0.99), 16);
    EXPECT_EQ(SpanPainter::levelOf(-1), 0);

    // The pixels left of a 45-degree edge: the centre on the edge gets level 8.
    auto r = makeRaster(20, 20, kTransparent);
    const double x[3] = {0, 19, 0}, y[3] = {0, 19, 19};
    r->polygon(kTransparent, 0x00000000, DoubleArray(x, 3), DoubleArray(y, 3));
    EXPECT_EQ(pixelOf(*r, 10, 10) >> 24, 255u - 8 * 255 / 16);
    EXPECT_EQ(pixelOf(*r, 9, 10) >> 24, 0u);
    EXPECT_EQ(pixelOf(*r, 11, 10), (unsigned)kTransparent);
}

TEST(RasterShape, DirectAndActiveEdgeFillersAgree) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<double> coord(-5, 85);
    for (int round = 0; round < 60; ++round) {
        int n = 3 + round % 30;
        AAShape s(nullptr);
        std::vector<double> x(n), y(n);
        for (int i = 0; i < n; ++i) x[i] = coord(rng), y[i] = coord(rng);
        if (round % 5 == 0)
            for (int i = 0; i < n; ++i) x[i] = std::floor(x[i]), y[i] = std::floor(y[i]);
        for (int i = 0; i < n; ++i)
            s.addLine(kTransparent, false, x[i], y[i], x[(i + 1) % n], y[(i + 1) % n]);
        if (round % 3 == 0) {
            double cx = coord(rng), cy = coord(rng), rx = 3 + round % 17, ry = 2 + round % 11;
            s.addArc(kTransparent, cx, cy, rx, ry, cx, cy + ry, cx, cy - ry);
            s.addArc(kTransparent, cx, cy, rx, ry, cx, cy - ry, cx, cy + ry);
        }
        auto direct = makeRaster(80, 80, kWhite), general = makeRaster(80, 80, kWhite);
        direct->setClipRect(2, 3, 77, 76), general->setClipRect(2, 3, 77, 76);
        s.fillDirect(direct.get(), 0x40336699, round % 2 == 0);
        s.fillGeneral(general.get(), 0x40336699, round % 2 == 0);
        ASSERT_TRUE(samePixels(*direct, *general)) << "round " << round;
    }
}

// A ring sector whose arc ends a hair below a row, where the joining line's
// end snaps onto the row: both edges must agree, or the row fills across the gap.
TEST(RasterShape, ArcsAndLinesAgreeOnASnappedVertex) {
    const double ex = 206.69872981077793384, ey = 155.00000000000022737;
    const double ix = 228.34936490538896692, iy = 167.50000000000011369;
    const double jx = 267.67766952966366034, jy = 162.32233047033628281;
    const double kx = 285.35533905932732068, ky = 144.64466094067259405;
    for (bool direct : {true, false}) {
        AAShape s(nullptr);
        s.addArc(kTransparent, 250, 180, 50, 50, kx, ky, 250, 230);
        s.addArc(kTransparent, 250, 180, 50, 50, 250, 230, ex, ey);
        s.addLine(kTransparent, false, ex, ey, ix, iy);
        s.addArc(kTransparent, 250, 180, 25, 25, ix, iy, 250, 205);
        s.addArc(kTransparent, 250, 180, 25, 25, 250, 205, jx, jy);
        s.addLine(kTransparent, false, jx, jy, kx, ky);
        auto r = makeRaster(320, 240, kWhite);
        if (direct)
            s.fillDirect(r.get(), kRed, false);
        else
            s.fillGeneral(r.get(), kRed, false);
        for (int x = 212; x <= 270; ++x) ASSERT_EQ(pixelOf(*r, x, 155), kWhite) << x;
        EXPECT_EQ(pixelOf(*r, 290, 155), (unsigned)kRed);
        EXPECT_EQ(pixelOf(*r, 210, 160), (unsigned)kRed);
    }
}

TEST(RasterShape, TwentyOneEdgesMatchTwenty) {
    // The same 20-gon, once with one side cut in two: the filler changes, not the pixels.
    std::vector<double> x, y;
    for (int i = 0; i < 20; ++i) {
        double a = i * 2 * 3.14159265358979 / 20;
        x.push_back(40 + 30 * std::sin(a)), y.push_back(40 - 25 * std::cos(a));
    }
    auto twenty = makeRaster(80, 80, kWhite), twentyOne = makeRaster(80, 80, kWhite);
    twenty->polygon(kTransparent, kRed, DoubleArray(x.data(), 20), DoubleArray(y.data(), 20));
    x.insert(x.begin() + 1, x[0]), y.insert(y.begin() + 1, y[0]);
    twentyOne->polygon(kTransparent, kRed, DoubleArray(x.data(), 21), DoubleArray(y.data(), 21));
    EXPECT_TRUE(samePixels(*twenty, *twentyOne));
    EXPECT_GT(fringeCount(*twenty, kWhite, kRed), 0);
}

TEST(RasterShape, EvenOddRuleAndInset) {
    auto r = makeRaster(40, 40, kWhite);
    auto s = r->createShape();
    // Two nested squares: the inner one is a hole.
    const double o[4][2] = {{5, 5}, {35, 5}, {35, 35}, {5, 35}};
    const double in[4][2] = {{15, 15}, {25, 15}, {25, 25}, {15, 25}};
    for (int i = 0; i < 4; ++i) {
        s->addLine(kTransparent, false, o[i][0], o[i][1], o[(i + 1) % 4][0], o[(i + 1) % 4][1]);
        s->addLine(kTransparent, false, in[i][0], in[i][1], in[(i + 1) % 4][0], in[(i + 1) % 4][1]);
    }
    s->paint(kRed, false, true);
    delete s;
    EXPECT_EQ(pixelOf(*r, 10, 10), (unsigned)kRed);
    EXPECT_EQ(pixelOf(*r, 20, 20), kWhite);
    EXPECT_EQ(pixelOf(*r, 2, 2), kWhite);

    // Inset keeps the fill half a pixel inside: a whole-number square fills only
    // the pixels strictly inside.
    auto q = makeRaster(20, 20, kWhite);
    auto t = q->createShape();
    const double sq[4][2] = {{2, 2}, {12, 2}, {12, 12}, {2, 12}};
    for (int i = 0; i < 4; ++i)
        t->addLine(kTransparent, false, sq[i][0], sq[i][1], sq[(i + 1) % 4][0], sq[(i + 1) % 4][1]);
    t->paint(kRed, true, true);
    delete t;
    EXPECT_EQ(fringeCount(*q, kWhite, kRed), 0);
    EXPECT_EQ(pixelOf(*q, 3, 3), (unsigned)kRed);
    EXPECT_EQ(pixelOf(*q, 11, 11), (unsigned)kRed);
    EXPECT_EQ(pixelOf(*q, 2, 5), kWhite);
    EXPECT_EQ(pixelOf(*q, 12, 5), kWhite);
    EXPECT_EQ(pixelOf(*q, 5, 2), kWhite);
    EXPECT_EQ(pixelOf(*q, 5, 12), kWhite);
}

TEST(RasterShape, CircleIsRoundAndSymmetric) {
    auto r = makeRaster(41, 41, kWhite);
    auto s = r->createShape();
    s->addArc(kTransparent, 20, 20, 15, 15, 20, 35, 20, 5);
    s->addArc(kTransparent, 20, 20, 15, 15, 20, 5, 20, 35);
    s->paint(0, false, true);
    delete s;
    double area = 0;
    for (int y = 0; y < 41; ++y)
        for (int x = 0; x < 41; ++x) {
            unsigned p = pixelOf(*r, x, y);
            area += (255 - (p & 255)) / 255.0;
            // Mirror images across both axes.
            EXPECT_EQ(p, pixelOf(*r, 40 - x, y)) << x << "," << y;
        }
    EXPECT_NEAR(area, 3.14159265358979 * 15 * 15, 15);
    EXPECT_EQ(pixelOf(*r, 20, 20), 0u);
    EXPECT_EQ(pixelOf(*r, 20, 2), kWhite);
}

TEST(RasterShape, SuperPixelsHideTheSeam) {
    for (bool super : {false, true}) {
        auto r = makeRaster(30, 30, kWhite);
        if (super) r->beginSuperPixelMode();
        const double ax[3] = {0.5, 29.3, 0.5}, ay[3] = {0.5, 0.5, 29.7};
        const double bx[3] = {29.3, 29.3, 0.5}, by[3] = {0.5, 29.7, 29.7};
        r->polygon(kTransparent, kRed, DoubleArray(ax, 3), DoubleArray(ay, 3));
        r->polygon(kTransparent, kRed, DoubleArray(bx, 3), DoubleArray(by, 3));
        r->commitSuperPixels();
        int seam = 0;
        for (int i = 3; i < 26; ++i) {
            int y = (int)(0.5 + (29.7 - 0.5) * (29.3 - i) / 28.8);
            for (int dy = -1; dy <= 1; ++dy) seam += pixelOf(*r, i, y + dy) != (unsigned)kRed;
        }
        if (super)
            EXPECT_EQ(seam, 0);
        else
            EXPECT_GT(seam, 5);
    }
}

TEST(RasterShape, ExactPolygonsTileWithoutOverlap) {
    auto r = makeRaster(30, 30, kWhite);
    const double ax[4] = {0.5, 20.25, 27.5, 3.1}, ay[4] = {0.5, 2.7, 22.4, 28.9};
    const double bx[3] = {20.25, 29.5, 27.5}, by[3] = {2.7, 1.1, 22.4};
    r->exactPolygon((int)0x80000000u, DoubleArray(ax, 4), DoubleArray(ay, 4));
    r->exactPolygon((int)0x80000000u, DoubleArray(bx, 3), DoubleArray(by, 3));
    int painted = 0;
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 30; ++x) {
            unsigned p = pixelOf(*r, x, y);
            ASSERT_TRUE(p == kWhite || p == 0x00808080u) << x << "," << y;
            painted += p != kWhite;
        }
    EXPECT_GT(painted, 500);
}

TEST(RasterShape, BadInputDrawsNothing) {
    auto r = makeRaster(10, 10, kWhite);
    const double nan = std::nan("");
    const double x[3] = {1, nan, 5}, y[3] = {1, 2, 8};
    r->polygon(kRed, kRed, DoubleArray(x, 3), DoubleArray(y, 3));
    r->polygon(kRed, kRed, DoubleArray(nullptr, 3), DoubleArray(y, 3));
    r->polygon(kRed, kRed, DoubleArray(x, -4), DoubleArray(y, -4));
    r->exactPolygon(kRed, DoubleArray(x, 3), DoubleArray(y, 3));
    const double big[3] = {-1e300, 1e300, 0};
    r->polygon(kRed, kRed, DoubleArray(big, 3), DoubleArray(y, 3));
    r->line(nan, 0, 5, 5, kRed, 1);
    r->line(-1e300, 0, 1e300, 5, kRed, 3);
    r->roundedRect(nan, 0, 3, 3, 2, kRed, kRed);
    const double tri[9] = {0, 0, 1, nan, 0, 1, 0, 9, 1};
    r->gouraudTriangle(tri, kRed);
    MetaPathItem item = {7, {0}, kRed, false};
    r->shape(kRed, false, false, &item, 1);
    r->shape(kRed, false, false, nullptr, 3);
    r->setClipRect(8, 8, 2, 2);
    const double ok[3] = {0, 9, 0}, oky[3] = {0, 0, 9};
    r->polygon(kRed, kRed, DoubleArray(ok, 3), DoubleArray(oky, 3));
    // Whatever got through stays inside the image; the empty clip drew nothing.
    EXPECT_EQ(r->getWidth(), 10);
    EXPECT_EQ(pixelOf(*r, 9, 9), kWhite);
}
