#include <gtest/gtest.h>

#include "draw/pixel/PixelBlend.h"
#include "draw/raster/SuperPixels.h"
#include "tests/draw/raster/RasterTestSupport.h"

namespace {

// The blend written out channel by channel, as a reference for the packed code.
unsigned referenceBlend(unsigned d, unsigned s) {
    unsigned as = s >> 24, ad = d >> 24;
    if (as == 0 || ad == 255) return s;
    if (as == 255) return d;
    unsigned out = 0;
    if (ad != 0) {
        unsigned w1 = (255 - ad) * as, w2 = (255 - as) * 255, div = 65025 - ad * as;
        for (int sh = 0; sh < 24; sh += 8)
            out |= ((w2 * ((s >> sh) & 255) + w1 * ((d >> sh) & 255)) / div) << sh;
        return out | ((ad * as + 127) / 255) << 24;
    }
    unsigned t = as + (as > 127);
    for (int sh = 0; sh < 24; sh += 8)
        out |= ((((d >> sh) & 255) * t + ((s >> sh) & 255) * (256 - t) + 128) >> 8) << sh;
    return out;
}

}  // namespace

TEST(RasterBlend, ExactValuesOfTheSteps) {
    using PixelBlend::blend;
    // Opaque source and transparent destination give the source.
    EXPECT_EQ(blend(0x00123456u, 0x00ABCDEFu), 0x00ABCDEFu);
    EXPECT_EQ(blend(0xFF000000u, 0x80ABCDEFu), 0x80ABCDEFu);
    // An invisible source keeps the destination.
    EXPECT_EQ(blend(0x00123456u, 0xFF00FF00u), 0x00123456u);
    // Over an opaque pixel: t = 128 + 1 for half transparency.
    EXPECT_EQ(blend(0x00FFFFFFu, 0x80000000u), 0x00808080u);
    EXPECT_EQ(blend(0x00000000u, 0x80FF0000u), 0x007F0000u);
    // Two half-transparent colours: weights 127*128 and 127*255, alpha 64.
    unsigned r = blend(0x80FF0000u, 0x800000FFu);
    EXPECT_EQ(r >> 24, 64u);
    EXPECT_EQ((r >> 16) & 255, (127u * 128 * 255) / (65025 - 128 * 128));
    EXPECT_EQ(r & 255, (127u * 255 * 255) / (65025 - 128 * 128));

    unsigned seed = 12345;
    for (int i = 0; i < 20000; ++i) {
        seed = seed * 1664525u + 1013904223u;
        unsigned d = seed;
        seed = seed * 1664525u + 1013904223u;
        unsigned s = seed;
        if (i % 4 == 0) d &= 0x00FFFFFFu;
        ASSERT_EQ(blend(d, s), referenceBlend(d, s)) << std::hex << d << " " << s;
    }
}

TEST(RasterBlend, TransparentPixelTakesHalfColour) {
    auto r = makeRaster(4, 4, kTransparent);
    r->setPixel(1, 1, (int)0x80FF8000u);
    EXPECT_EQ(pixelOf(*r, 1, 1), 0x80FF8000u);
    EXPECT_EQ(pixelOf(*r, 0, 0), (unsigned)kTransparent);
    // A second coat: alpha 128 * 128 / 255 rounded.
    r->setPixel(1, 1, (int)0x80FF8000u);
    EXPECT_EQ(pixelOf(*r, 1, 1) >> 24, 64u);
    EXPECT_EQ(pixelOf(*r, 1, 1) & 0xFFFFFF, 0xFF8000u);
}

TEST(RasterBlend, CoverageAndBrightness) {
    using PixelBlend::adjustBrightness;
    using PixelBlend::atCoverage;
    EXPECT_EQ(atCoverage(0x00102030u, 16), 0x00102030u);
    EXPECT_EQ(atCoverage(0x00102030u, 8) >> 24, 128u);
    EXPECT_EQ(atCoverage(0x00102030u, 0) >> 24, 255u);
    // Level 8 of a half-transparent colour: 255 - 8 * 127 / 16 = 192.
    EXPECT_EQ(atCoverage(0x80102030u, 8) >> 24, 192u);
    for (int level = 0; level <= 16; ++level)
        EXPECT_EQ(atCoverage(0x00FFFFFFu, level) >> 24, 255u - (unsigned)level * 255 / 16);

    EXPECT_EQ(adjustBrightness(0x00808080u, 1024), 0x00808080u);
    EXPECT_EQ(adjustBrightness(0x00808080u, 512), 0x00404040u);
    EXPECT_EQ(adjustBrightness(0x40808080u, -5), 0x40000000u);
    EXPECT_EQ(adjustBrightness(0xFF000000u, 512), 0xFF000000u);
    // Above 1024 fades to white without wrapping: m = (1024 + 262144) / 2048 = 128.
    EXPECT_EQ(adjustBrightness(0x00000000u, 2048), 0x00808080u);
    EXPECT_EQ(adjustBrightness(0x00FFFFFFu, 1 << 20), 0x00FFFFFFu);
    EXPECT_EQ(adjustBrightness(0x00000000u, 1 << 20), 0x00FFFFFFu);
}

TEST(RasterBlend, SuperPixelSamples) {
    SuperPixels sp;
    sp.begin();
    unsigned p = sp.write(0x00FFFFFFu, 0x00FF0000u, 6);
    EXPECT_TRUE(SuperPixels::isSuper(p));
    p = sp.write(p, 0x000000FFu, 10);
    // 6 red and 10 blue sub-samples: nothing of the white base is left.
    unsigned avg = sp.average(p);
    EXPECT_EQ(avg, (0u << 24) | ((6u * 255 + 8) / 16 << 16) | ((10u * 255 + 8) / 16));
    // An opaque colour over the whole pixel frees the sample.
    p = sp.writeFull(p, 0x00123456u);
    EXPECT_EQ(p, 0x00123456u);
    EXPECT_EQ(sp.sampleCount(), 0);
    // The same colour from both sides of an edge makes a solid pixel.
    p = sp.write(0x00FFFFFFu, 0x00FF0000u, 7);
    p = sp.write(p, 0x00FF0000u, 9);
    EXPECT_EQ(sp.average(p), 0x00FF0000u);
}
