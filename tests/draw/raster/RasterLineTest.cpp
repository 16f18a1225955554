#include <gtest/gtest.h>

#include <map>
#include <random>

#include "draw/pixel/PixelBlend.h"
#include "draw/raster/CoverageGrid.h"
#include "draw/raster/PlotCollector.h"
#include "draw/raster/scan/LineRasterizer.h"
#include "tests/draw/BoundedRun.h"
#include "tests/draw/raster/RasterTestSupport.h"

namespace {

const unsigned kWhite = 0x00FFFFFFu;

// Remembers each plot with its step.
class RecordingSink : public LineSink {
public:
    int stepColor(int x, int y) override {
        steps.push_back({x, y});
        return 0;
    }
    void plot(int x, int y, int level, int) override { plots.push_back({x, y, level}); }
    struct P {
        int x, y, level;
    };
    std::vector<std::pair<int, int>> steps;
    std::vector<P> plots;
};

// The darkest channel of the image: a second coat of grey shows as a lower value.
unsigned darkest(const DrawBMPImpl &r) {
    unsigned m = 255;
    for (int y = 0; y < r.getHeight(); ++y)
        for (int x = 0; x < r.getWidth(); ++x) m = std::min(m, pixelOf(r, x, y) & 255);
    return m;
}

int paintedCount(const DrawBMPImpl &r) {
    int n = 0;
    for (int y = 0; y < r.getHeight(); ++y)
        for (int x = 0; x < r.getWidth(); ++x) n += pixelOf(r, x, y) != kWhite;
    return n;
}

}  // namespace

TEST(RasterLine, AntiAliasedStepsSumToSixteen) {
    std::mt19937 rng(3);
    std::uniform_real_distribution<double> c(2, 98);
    for (int i = 0; i < 300; ++i) {
        double x1 = c(rng), y1 = c(rng), x2 = c(rng), y2 = c(rng);
        RecordingSink sink;
        LineRasterizer(0, 0, 99, 99, true).draw(x1, y1, x2, y2, &sink);
        bool xMajor = std::fabs(x2 - x1) >= std::fabs(y2 - y1);
        std::map<int, int> sum;
        for (auto &p : sink.plots) {
            ASSERT_GE(p.level, 1);
            ASSERT_LE(p.level, 16);
            sum[xMajor ? p.x : p.y] += p.level;
        }
        for (auto &s : sum) ASSERT_EQ(s.second, 16) << i;
        // One colour per step, in walking order.
        ASSERT_EQ(sink.steps.size(), sum.size());
        for (size_t k = 1; k < sink.steps.size(); ++k) {
            int a = xMajor ? sink.steps[k - 1].first : sink.steps[k - 1].second;
            int b = xMajor ? sink.steps[k].first : sink.steps[k].second;
            ASSERT_EQ(std::abs(a - b), 1);
        }
    }
}

TEST(RasterLine, ExactLinesHaveNoFringe) {
    EXPECT_TRUE(LineRasterizer::isExact(0, 0, 10, 0));
    EXPECT_TRUE(LineRasterizer::isExact(3, 3, -4, -4));
    EXPECT_TRUE(LineRasterizer::isExact(3, 3, 3, 30));
    EXPECT_FALSE(LineRasterizer::isExact(0, 0, 10, 1));
    EXPECT_FALSE(LineRasterizer::isExact(0.5, 0, 10.5, 0));
    auto r = makeRaster(30, 30, kWhite);
    r->line(2, 3, 20, 3, 0, 1);
    r->line(5, 5, 5, 25, 0, 1);
    r->line(8, 8, 20, 20, 0, 1);
    r->line(28, 1, 1, 28, 0, 1);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 30; ++x) {
            unsigned p = pixelOf(*r, x, y);
            EXPECT_TRUE(p == 0 || p == kWhite) << x << "," << y;
        }
    EXPECT_EQ(pixelOf(*r, 2, 3), 0u);
    EXPECT_EQ(pixelOf(*r, 20, 3), 0u);
    EXPECT_EQ(pixelOf(*r, 21, 3), kWhite);
    EXPECT_EQ(pixelOf(*r, 14, 14), 0u);

    // Anti-aliasing off: a slanted line is full pixels, one per step.
    auto n = makeRaster(30, 30, kWhite);
    n->setAntiAlias(false, 0);
    n->line(1.2, 2.7, 27.9, 11.3, 0, 1);
    EXPECT_EQ(paintedCount(*n), 28);
    EXPECT_EQ(darkest(*n), 0u);
}

TEST(RasterLine, ClippedAndDegenerateLines) {
    double x1 = -50, y1 = 5, x2 = 150, y2 = 5;
    ASSERT_TRUE(LineRasterizer::clip(x1, y1, x2, y2, 0, 0, 99, 99));
    EXPECT_EQ(x1, 0);
    EXPECT_EQ(x2, 99);
    double a = -5, b = -5, c = -1, d = -9;
    EXPECT_FALSE(LineRasterizer::clip(a, b, c, d, 0, 0, 99, 99));

    auto r = makeRaster(40, 40, kWhite);
    r->setClipRect(10, 10, 29, 29);
    r->line(-1e7, -1e7 + 3.5, 1e7, 1e7 + 3.5, 0, 1);
    r->line(0.5, 20.5, 39.5, 20.5, 0, 1);
    r->line(15.3, 15.3, 15.3, 15.3, 0, 1);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x) {
            bool outside = x < 10 || x > 29 || y < 10 || y > 29;
            EXPECT_TRUE(!outside || pixelOf(*r, x, y) == kWhite) << x << "," << y;
        }
    EXPECT_GT(paintedCount(*r), 20);
    r->line(1, 1, 5, 5, 0, 0);
    r->line(1, 1, 5, 5, kTransparent, 1);
}

TEST(RasterLine, PolylineJointsArePaintedOnce) {
    const int grey = (int)0x80000000u;
    // One coat of 50% black over white is 0x80 in every channel.
    auto exact = makeRaster(30, 30, kWhite);
    const double corner[6] = {2, 2, 20, 2, 20, 20};
    exact->polyLine(grey, 1, DoubleArray(corner, 6));
    EXPECT_EQ(darkest(*exact), 0x80u);
    EXPECT_EQ(pixelOf(*exact, 20, 2), 0x00808080u);
    EXPECT_EQ(paintedCount(*exact), 37);

    std::mt19937 rng(11);
    std::uniform_real_distribution<double> c(3, 57);
    for (int round = 0; round < 20; ++round) {
        std::vector<double> xy;
        for (int i = 0; i < 8; ++i) xy.push_back(c(rng)), xy.push_back(c(rng));
        auto thin = makeRaster(60, 60, kWhite);
        thin->polyLine(grey, 1, DoubleArray(xy.data(), 8));
        EXPECT_GE(darkest(*thin), 0x80u) << round;
        // Wide lines: pieces and round joints overlap in the mask, not on the pixels.
        auto wide = makeRaster(60, 60, kWhite);
        wide->polyLine(grey, 1 + round % 7 + 1, DoubleArray(xy.data(), 16));
        EXPECT_GE(darkest(*wide), 0x80u) << round;
    }

    // No gap at a sharp turn of a wide line: the joint pixel is covered.
    auto turn = makeRaster(60, 60, kWhite);
    const double vee[6] = {5, 5, 30, 50, 55, 5};
    turn->polyLine(0, 9, DoubleArray(vee, 6));
    EXPECT_EQ(pixelOf(*turn, 30, 50), 0u);
    EXPECT_EQ(pixelOf(*turn, 30, 53), 0u);
}

TEST(RasterLine, WideLinesAsQuads) {
    auto r = makeRaster(40, 20, kWhite);
    r->line(5, 10, 35, 10, 0, 5);
    // Rows 8 to 12 are covered from end to end.
    for (int y = 0; y < 20; ++y)
        EXPECT_EQ(pixelOf(*r, 20, y), y >= 8 && y <= 12 ? 0u : kWhite) << y;
    EXPECT_EQ(pixelOf(*r, 5, 10), 0u);
    EXPECT_EQ(pixelOf(*r, 35, 10), 0u);
    EXPECT_EQ(pixelOf(*r, 36, 10), kWhite);
    auto d = makeRaster(60, 20, kWhite);
    d->dashLineColor(dyn(1), 0, 0x0404);
    d->line(2, 10, 58, 10, dyn(1), 4);
    std::string seen;
    for (int x = 0; x < 20; ++x) seen += pixelOf(*d, x, 10) == 0 ? '#' : '.';
    EXPECT_EQ(seen, "..####....####....##");
    auto m = makeRaster(40, 40, kWhite);
    const MetaLineEntry items[5] = {{true, 0x0000FF, 1, 0, 0},
                                    {false, 0, 0, 2, 2},
                                    {false, 0, 0, 30, 2},
                                    {true, 0x00FF00, 3, 0, 0},
                                    {false, 0, 0, 30, 30}};
    m->multiLine(items, 5);
    EXPECT_EQ(pixelOf(*m, 15, 2), 0x0000FFu);
    EXPECT_EQ(pixelOf(*m, 30, 20), 0x00FF00u);
    EXPECT_EQ(pixelOf(*m, 31, 20), 0x00FF00u);
}

namespace {

// A noisy series of n points across the raster, in a colour that shows a
// second coat.
std::vector<double> noisyPolyline(std::mt19937 &rng, int n, int w, int h) {
    std::uniform_real_distribution<double> y(-3, h + 3);
    std::vector<double> xy;
    for (int i = 0; i < n; ++i) {
        xy.push_back(-2 + (w + 4.0) * i / (n - 1));
        xy.push_back(y(rng));
    }
    return xy;
}

// The reference: every plot listed, sorted, and painted once.
void paintThroughList(DrawBMPImpl &r, const std::vector<double> &xy, int color) {
    int l, t, rt, b;
    r.getClip(&l, &t, &rt, &b);
    LineRasterizer walker(l, t, rt, b, r.isAntiAlias());
    PlotCollector list(&r, color);
    for (size_t i = 0; i + 3 < xy.size(); i += 2)
        walker.drawJoined(xy[i], xy[i + 1], xy[i + 2], xy[i + 3], &list, i > 0);
    list.flush(&r);
}

bool paintThroughGrid(DrawBMPImpl &r, const std::vector<double> &xy, int color, bool plain) {
    int l, t, rt, b;
    r.getClip(&l, &t, &rt, &b);
    CoverageGrid grid(&r, color, l, t, rt, b);
    grid.addPolyline(xy.data(), (int)xy.size() / 2, r.isAntiAlias(), plain);
    bool wasGrid = grid.isGrid();
    grid.flush(&r);
    return wasGrid;
}

int differingPixels(const DrawBMPImpl &a, const DrawBMPImpl &b) {
    int n = 0;
    for (int y = 0; y < a.getHeight(); ++y)
        for (int x = 0; x < a.getWidth(); ++x) n += pixelOf(a, x, y) != pixelOf(b, x, y);
    return n;
}

}  // namespace

TEST(RasterLine, CoverageGridPaintsAsTheListedPlots) {
    // Same pixels, exactly, whether the plots stay listed or fill the grid, and
    // whether the walk asks each step for its colour or knows it is plain.
    std::mt19937 rng(29);
    int grids = 0;
    for (int round = 0; round < 24; ++round) {
        int w = 30 + round * 7, h = 20 + round * 3;
        int n = round % 3 == 0 ? 5 : 40 + round * 30;
        std::vector<double> xy = noisyPolyline(rng, n, w, h);
        bool dashed = round % 4 == 1, antiAlias = round % 5 != 2;
        int color = dashed ? dyn(1) : (int)0x80203040u;
        auto setUp = [&](DrawBMPImpl &r) {
            r.setAntiAlias(antiAlias, 0);
            if (dashed) r.dashLineColor(dyn(1), 0x40000000, 0x0305);
            if (round % 2) r.setClipRect(3, 2, w - 5, h - 4);
        };
        auto reference = makeRaster(w, h, kWhite), general = makeRaster(w, h, kWhite),
             plain = makeRaster(w, h, kWhite);
        setUp(*reference), setUp(*general), setUp(*plain);
        paintThroughList(*reference, xy, color);
        grids += paintThroughGrid(*general, xy, color, false);
        EXPECT_EQ(differingPixels(*reference, *general), 0) << round;
        if (dashed) continue;
        paintThroughGrid(*plain, xy, color, true);
        EXPECT_EQ(differingPixels(*reference, *plain), 0) << round;
        // The raster's own polyline takes the same road.
        auto drawn = makeRaster(w, h, kWhite);
        setUp(*drawn);
        drawn->polyLine(color, 1, DoubleArray(xy.data(), (int)xy.size()));
        EXPECT_EQ(differingPixels(*reference, *drawn), 0) << round;
    }
    EXPECT_GE(grids, 10);
}

TEST(RasterLine, LongNoisyPolylineInBoundedMemory) {
    // 300,000 points that each cross most of a 1000 by 600 canvas: the pixels
    // walked are about 10^8, the canvas 6 * 10^5.
    long grownMiB = boundedRunMiB(
        []() {
            std::mt19937 rng(5);
            std::vector<double> xy = noisyPolyline(rng, 300000, 1000, 600);
            auto r = makeRaster(1000, 600, kWhite);
            r->polyLine(0x3366CC, 1, DoubleArray(xy.data(), (int)xy.size()));
            return pixelOf(*r, 500, 300) != kWhite;
        },
        300, 1536);
    EXPECT_GE(grownMiB, 0) << "failed, ran out of memory or of time";
    EXPECT_LT(grownMiB, bounded_run::residentLimitMiB(400));
}
