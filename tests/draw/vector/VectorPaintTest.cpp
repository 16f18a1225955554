#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "draw/list/DrawBackEnd.h"
#include "draw/pixel/PixelBlend.h"
#include "draw/vector/BrushSampler.h"
#include "draw/vector/ColorRamp.h"
#include "draw/vector/PaintResolver.h"

namespace {

int handle(int n) {
    return kDynamicColorBase + n;
}

int channel(int c, int shift) {
    return ((unsigned)c >> shift) & 255;
}

const VectorBox kArea(0, 0, 100, 100);

}  // namespace

TEST(VectorPaint, StopsReproduceTheRampWithinTheirTolerance) {
    std::mt19937 rng(3);
    for (int round = 0; round < 200; ++round) {
        std::vector<int> pairs;
        int pos = 0;
        while (pos < 256) {
            pairs.push_back(pos);
            pairs.push_back((int)(rng() & 0x7FFFFFFF) | (round % 3 ? 0 : 0x40000000));
            pos += 1 + rng() % 120;
        }
        pairs.push_back(256);
        pairs.push_back((int)(rng() & 0xFFFFFF));
        ColorRamp ramp = ColorRamp::ofGradient(pairs.data(), (int)pairs.size());
        bool periodic = round % 2;
        std::vector<GradientStop> stops = ramp.stops(periodic, 2);
        ASSERT_GE(stops.size(), 2u);
        EXPECT_EQ(0, stops.front().offset);
        EXPECT_EQ(1, stops.back().offset);
        // Every entry lies near the straight mix of the stops around it.
        const std::vector<int> &e = ramp.entries();
        double span = periodic ? e.size() : e.size() - 1;
        size_t k = 0;
        for (size_t i = 0; i < e.size(); ++i) {
            if (PixelBlend::isInvisible((unsigned)e[i])) continue;
            double t = i / span;
            while (k + 2 < stops.size() && stops[k + 1].offset <= t) ++k;
            const GradientStop &a = stops[k], &b = stops[k + 1];
            double w = b.offset > a.offset ? (t - a.offset) / (b.offset - a.offset) : 0;
            for (int shift = 0; shift < 32; shift += 8) {
                double mix = channel(a.color, shift) * (1 - w) + channel(b.color, shift) * w;
                ASSERT_LE(std::abs(mix - channel(e[i], shift)), 2.01) << round << " at " << i;
            }
        }
    }
}

TEST(VectorPaint, RampsFadeThroughTheirColourAndLightingFollowsTheRaster) {
    const int fade[4] = {0, 0x336699, 256, kTransparent};
    std::vector<GradientStop> stops = ColorRamp::ofGradient(fade, 4).stops(false, 2);
    ASSERT_EQ(2u, stops.size());
    EXPECT_EQ(0x336699, stops[0].color);
    // The invisible end keeps the colour: the fade doesn't darken on the way.
    EXPECT_EQ((int)0xFF336699u, stops[1].color);

    const int light[4] = {0, 512, 256, 2048};
    ColorRamp lit = ColorRamp::ofLighting(0x808080, light, 4);
    EXPECT_EQ(0x404040, lit.entries().front());
    EXPECT_EQ(0xC0C0C0, lit.entries().back());
    EXPECT_FALSE(lit.hasAlpha());
    EXPECT_EQ(0x202020, lit.brightened(512).entries().front());
    EXPECT_DOUBLE_EQ(256.0 / 255, lit.period());
    EXPECT_EQ(257u, lit.samples(true).size());
}

TEST(VectorPaint, CompositeColoursBecomeCoatsAndFoldedPaints) {
    BrushSampler sampler;
    PaintResolver r(&sampler);
    const int pairs[4] = {0, 0xff0000, 256, 0x0000ff};
    r.defineLinear(handle(1), 10, 10, 10, 50, false, ColorRamp::ofGradient(pairs, 4));
    ColorPlan g = r.resolve(handle(1), kArea);
    ASSERT_TRUE(g.isSimple());
    // Points of the list are pixel centres: half a pixel on in canvas space.
    EXPECT_EQ(10.5, g.simplePaint()->x1);
    EXPECT_EQ(50.5, g.simplePaint()->y2);

    r.defineZone(handle(2), true, 40, 0x00ff00, handle(1));
    ColorPlan zone = r.resolve(handle(2), kArea);
    ASSERT_EQ(2u, zone.layers.size());
    EXPECT_EQ(40, zone.layers[0].clip.bottom);
    EXPECT_EQ(40, zone.layers[1].clip.top);
    EXPECT_EQ(VectorPaint::kSolid, zone.layers[0].paint->kind);
    EXPECT_EQ(g.simplePaint(), zone.layers[1].paint);

    r.defineBrightness(handle(3), handle(2), 0.5);
    ColorPlan dark = r.resolve(handle(3), kArea);
    ASSERT_EQ(2u, dark.layers.size());
    EXPECT_EQ(0x007f00, dark.layers[0].paint->color);
    EXPECT_EQ(0x7f0000, dark.layers[1].paint->ramp.entries().front());

    r.defineRect(handle(4), 2.5, 3, 7, 9, 0x123456);
    ColorPlan rect = r.resolve(handle(4), kArea);
    ASSERT_EQ(1u, rect.layers.size());
    EXPECT_EQ(VectorBox(3, 3, 8, 10), rect.layers[0].clip);

    const int layers[3] = {0x111111, handle(1), kTransparent};
    r.defineLayers(handle(5), layers, 3);
    ColorPlan coats = r.resolve(handle(5), kArea);
    ASSERT_EQ(2u, coats.layers.size());
    EXPECT_EQ(0x111111, coats.layers[0].paint->color);

    r.defineDash(handle(6), handle(1), kDotDashLine);
    EXPECT_EQ(std::vector<double>({5, 5, 2, 5}), r.resolve(handle(6), kArea).dash);
    r.defineDash(handle(7), 0x0, 0);
    EXPECT_TRUE(r.resolve(handle(7), kArea).isEmpty());

    // A transform folds into the gradient: a half turn around (10, 10).
    const double turn[6] = {-1, 0, 0, -1, 20, 20};
    r.defineTransform(handle(8), handle(1), turn);
    const VectorPaint *moved = r.resolve(handle(8), kArea).simplePaint();
    ASSERT_NE(nullptr, moved);
    double x, y;
    moved->transform.apply(10.5, 10.5, &x, &y);
    EXPECT_DOUBLE_EQ(10.5, x);
    EXPECT_DOUBLE_EQ(10.5, y);
    moved->transform.apply(10.5, 50.5, &x, &y);
    EXPECT_DOUBLE_EQ(-29.5, y);
}

TEST(VectorPaint, WhatOnlyTheRasterPaintsIsSampledAndRedefinitionsAreFollowed) {
    BrushSampler sampler;
    PaintResolver r(&sampler);
    const int pairs[4] = {0, 0xff0000, 256, 0x0000ff};
    sampler.colorRecords()->angleGradientColor(handle(1), 50, 50, 0, 360, 0, 40,
                                               IntArray(pairs, 4));
    r.defineSampled(handle(1));
    ColorPlan plan = r.resolve(handle(1), VectorBox(30.2, 20, 70, 60.5));
    const VectorPaint *p = plan.simplePaint();
    ASSERT_NE(nullptr, p);
    EXPECT_EQ(VectorPaint::kImage, p->kind);
    EXPECT_EQ(30, p->x1);
    EXPECT_EQ(40, p->tileWidth);
    EXPECT_EQ(41, p->tileHeight);
    PixelBuffer direct = sampler.sample(handle(1), 30, 20, 40, 41);
    EXPECT_EQ(direct.pixels, p->pixels);

    // A zone turned by a transform can't be clipped by boxes: it is sampled.
    sampler.colorRecords()->zoneColor(handle(2), false, 50, 0xff0000, 0x00ff00);
    r.defineZone(handle(2), false, 50, 0xff0000, 0x00ff00);
    const double shear[6] = {1, 0.5, 0, 1, 0, 0};
    sampler.colorRecords()->transformedColor(handle(3), handle(2), shear);
    r.defineTransform(handle(3), handle(2), shear);
    EXPECT_EQ(VectorPaint::kImage, r.resolve(handle(3), kArea).simplePaint()->kind);

    r.defineBrightness(handle(4), 0x808080, 2.0);
    int before = r.resolve(handle(4), kArea).simplePaint()->color;
    r.defineBrightness(handle(4), 0x808080, 0.5);
    EXPECT_NE(before, r.resolve(handle(4), kArea).simplePaint()->color);
    EXPECT_EQ(0x404040, r.resolve(handle(4), kArea).simplePaint()->color);

    // Colours that name each other end at the depth limit, with nothing to paint.
    r.defineBrightness(handle(5), handle(6), 0.9);
    r.defineBrightness(handle(6), handle(5), 0.9);
    EXPECT_TRUE(r.resolve(handle(5), kArea).isEmpty());
    EXPECT_TRUE(r.resolve(handle(99), kArea).isEmpty());
}
