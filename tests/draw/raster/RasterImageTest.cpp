#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "draw/pixel/ImageOps.h"
#include "draw/pixel/PixelBlend.h"
#include "tests/draw/raster/RasterTestSupport.h"

namespace {

const unsigned kWhite = 0x00FFFFFFu;

int *decodeStripes(const char *, int, int, int *w, int *h) {
    *w = 3, *h = 2;
    int *p = (int *)std::malloc(6 * sizeof(int));
    for (int i = 0; i < 6; ++i) p[i] = i % 2 ? 0x00FF0000 : 0x000000FF;
    return p;
}

PixelBuffer numbered(int w, int h) {
    PixelBuffer b(w, h, 0);
    for (int i = 0; i < w * h; ++i) b.pixels[i] = i * 3;
    return b;
}

}  // namespace

TEST(RasterImage, DynamicLayerRollback) {
    auto r = makeRaster(10, 10, kWhite);
    r->line(0, 0, 9, 0, 0, 1);
    EXPECT_FALSE(r->restoreSnapshot());
    r->initDynamicLayer();
    r->setClipRect(2, 2, 5, 5);
    r->roundedRect(0, 0, 9, 9, 0, 0x00FF0000, 0x00FF0000);
    EXPECT_EQ(pixelOf(*r, 3, 3), 0x00FF0000u);
    EXPECT_TRUE(r->restoreSnapshot());
    EXPECT_EQ(pixelOf(*r, 3, 3), kWhite);
    EXPECT_EQ(pixelOf(*r, 4, 0), 0u);
    EXPECT_FALSE(r->isSnapshotValid());
    EXPECT_FALSE(r->restoreSnapshot());
    // The clip is the whole image again.
    r->setPixel(9, 9, 0);
    EXPECT_EQ(pixelOf(*r, 9, 9), 0u);
    // A layer made before any size keeps an empty picture.
    auto e =
        std::unique_ptr<DrawBMPImpl>(static_cast<DrawBMPImpl *>(DrawBMP::create(nullptr, nullptr)));
    e->initDynamicLayer();
    e->setSize(4, 4, 0);
    EXPECT_TRUE(e->restoreSnapshot());
    EXPECT_EQ(e->getWidth(), 0);
}

TEST(RasterImage, SymbolsAndMerges) {
    auto r = makeRaster(20, 20, kWhite);
    r->beginSymbol(7);
    r->setSize(4, 2, 0x000000FF);
    r->setPixel(0, 0, 0x00FF0000);
    r->endSymbol(7);
    EXPECT_EQ(r->getWidth(), 20);
    EXPECT_EQ(r->symbolCount(), 1);
    r->mergeWithScaling(7, 1, 1, 4, 2, 0);
    EXPECT_EQ(pixelOf(*r, 1, 1), 0x00FF0000u);
    EXPECT_EQ(pixelOf(*r, 4, 2), 0x000000FFu);
    EXPECT_EQ(pixelOf(*r, 5, 2), kWhite);
    // Transparency 128 gives half of the symbol over white.
    r->mergeWithScaling(7, 10, 10, 4, 2, 128);
    EXPECT_EQ(pixelOf(*r, 11, 10), PixelBlend::blend(kWhite, 0x800000FFu));
    r->mergeWithScaling(7, 10, 14, 4, 2, 255);
    EXPECT_EQ(pixelOf(*r, 11, 14), kWhite);
    // Scaled to twice the size.
    r->mergeWithScaling(7, 0, 14, 8, 4, 0);
    EXPECT_EQ(pixelOf(*r, 7, 17), 0x000000FFu);
    r->mergeWithRotation(7, 15.5, 5, 90);
    EXPECT_EQ(pixelOf(*r, 15, 5), 0x000000FFu);
    EXPECT_EQ(pixelOf(*r, 17, 5), kWhite);
    r->removeSymbol(7);
    r->mergeWithScaling(7, 0, 0, 4, 2, 0);
    EXPECT_EQ(pixelOf(*r, 0, 0), kWhite);

    const int raw[6] = {1, 2, 3, 4, 5, 6};
    r->mergeBitMap(0, IntArray(raw, 6), 3, 18, 18);
    EXPECT_EQ(pixelOf(*r, 18, 18), 1u);
    EXPECT_EQ(pixelOf(*r, 19, 19), 5u);
    r->mergeBitMap(0, IntArray(raw, 6), 0, 0, 0);
    r->mergeBitMap(0, IntArray(nullptr, 6), 3, 0, 0);
    r->endSymbol(99);
}

TEST(RasterImage, LoadStreamAndGlyphs) {
    auto r = makeRaster(5, 5, kWhite);
    const char bytes[4] = {1, 2, 3, 4};
    DrawBMP::setDecodeHook(nullptr);
    r->loadStream(1, bytes, 4, 0, 6, 3);
    EXPECT_EQ(r->getWidth(), 6);
    EXPECT_EQ(pixelOf(*r, 5, 2), (unsigned)kTransparent);
    DrawBMP::setDecodeHook(decodeStripes);
    r->loadStream(1, bytes, 4, 0, 3, 2);
    DrawBMP::setDecodeHook(nullptr);
    EXPECT_EQ(r->getWidth(), 3);
    EXPECT_EQ(pixelOf(*r, 1, 0), 0x00FF0000u);
    EXPECT_EQ(pixelOf(*r, 2, 1), 0x00FF0000u);

    // A pattern read from a file goes through the same decoder.
    std::string path = std::string(VISTREL_BINARY_DIR) + "/raster_pattern_test.png";
    FILE *f = std::fopen(path.c_str(), "wb");
    ASSERT_NE(f, nullptr);
    const unsigned char png[8] = {137, 'P', 'N', 'G', 13, 10, 26, 10};
    std::fwrite(png, 1, 8, f);
    std::fclose(f);
    DrawBMP::setDecodeHook(decodeStripes);
    r->patternColor2(dyn(1), 0, 0, path.c_str());
    r->patternColor2(dyn(2), 0, 0, "/nonexistent/pattern.png");
    DrawBMP::setDecodeHook(nullptr);
    std::remove(path.c_str());
    EXPECT_EQ(r->resolveColor(dyn(1), 4, 0), 0x00FF0000);
    EXPECT_EQ(r->resolveColor(dyn(1), 3, 0), 0x000000FF);
    EXPECT_EQ(r->resolveColor(dyn(2), 3, 0), kTransparent);

    // Relative gradients take the raster's size.
    const int bw[4] = {0, 0x000000, 256, 0xFFFFFF};
    r->relativeLinearGradientColor(dyn(3), 0, 0, 1, 0, false, IntArray(bw, 4));
    EXPECT_EQ(r->resolveColor(dyn(3), 0, 0), 0);
    EXPECT_EQ(r->resolveColor(dyn(3), 3, 0), 0xFFFFFF);

    auto g = makeRaster(6, 6, kWhite);
    const unsigned char glyph[2 * 4] = {255, 128, 0, 9, 0, 64, 255, 9};
    g->fillGlyph(glyph, 3, 2, 4, 1, 1, 0);
    EXPECT_EQ(pixelOf(*g, 1, 1), 0u);
    EXPECT_EQ(pixelOf(*g, 2, 1), PixelBlend::blend(kWhite, 0x7F000000u));
    EXPECT_EQ(pixelOf(*g, 3, 1), kWhite);
    EXPECT_EQ(pixelOf(*g, 4, 1), kWhite);
    EXPECT_EQ(pixelOf(*g, 3, 2), 0u);
    g->setAntiAlias(true, 0);
    g->fillGlyph(glyph, 3, 2, 4, 1, 3, 0);
    EXPECT_EQ(pixelOf(*g, 2, 3), 0u);
    EXPECT_EQ(pixelOf(*g, 2, 4), kWhite);
}

TEST(RasterImage, RoundedClipAndShadow) {
    auto r = makeRaster(20, 10, 0);
    r->setBgRoundedClip(5, 0, 5, 0, kTransparent);
    EXPECT_EQ(pixelOf(*r, 0, 0), (unsigned)kTransparent);
    EXPECT_EQ(pixelOf(*r, 19, 0), 0u);
    EXPECT_EQ(pixelOf(*r, 19, 9), (unsigned)kTransparent);
    EXPECT_EQ(pixelOf(*r, 5, 5), 0u);
    unsigned edge = pixelOf(*r, 0, 2);
    EXPECT_GT(edge >> 24, 0u);
    EXPECT_LT(edge >> 24, 255u);
    EXPECT_TRUE(r->getImage().bgTransparent);

    auto s = makeRaster(10, 10, 0x000000FF);
    s->setBgDropShadow(5, 5, 5, 0, 0x00000000);
    // offset 5, blur 5: 10 pixels more on the right, none on the left.
    EXPECT_EQ(s->getWidth(), 20);
    EXPECT_EQ(s->getHeight(), 20);
    EXPECT_EQ(pixelOf(*s, 0, 0), 0x000000FFu);
    EXPECT_EQ(pixelOf(*s, 9, 9), 0x000000FFu);
    unsigned shadow = pixelOf(*s, 14, 14);
    EXPECT_EQ(shadow & 0xFFFFFF, 0u);
    EXPECT_LT(shadow >> 24, 255u);
    EXPECT_GT(pixelOf(*s, 19, 0) >> 24, 240u);
    EXPECT_GT(pixelOf(*s, 19, 0) >> 24, shadow >> 24);
}

TEST(RasterImage, FloodFill) {
    auto r = makeRaster(10, 10, kWhite);
    r->line(0, 5, 9, 5, 0, 1);
    r->floodFill(2, 2, 0x00FF0000, -1);
    EXPECT_EQ(pixelOf(*r, 9, 0), 0x00FF0000u);
    EXPECT_EQ(pixelOf(*r, 9, 9), kWhite);
    r->floodFill(2, 8, 0x0000FF00, 0);
    EXPECT_EQ(pixelOf(*r, 0, 9), 0x0000FF00u);
    EXPECT_EQ(pixelOf(*r, 0, 5), 0u);
    r->floodFill(-1, 3, 0, -1);
}

TEST(RasterImage, ResizeFilters) {
    PixelBuffer flat(7, 5, 0x00336699);
    for (int f = 0; f < ImageOps::kFilterCount; ++f) {
        for (auto size : {std::make_pair(3, 2), std::make_pair(20, 11)}) {
            PixelBuffer out = ImageOps::resize(flat, size.first, size.second, f, 1.0);
            ASSERT_EQ(out.width, size.first);
            for (int p : out.pixels) {
                unsigned u = (unsigned)p;
                EXPECT_LE(std::abs((int)(u & 255) - 0x99), 1) << f;
                EXPECT_LE(std::abs((int)((u >> 8) & 255) - 0x66), 1) << f;
            }
        }
        EXPECT_GT(ImageOps::filterSupport(f), 0);
        EXPECT_GT(ImageOps::filterWeight(f, 0), 0.5) << f;
        double beyond = ImageOps::filterWeight(f, ImageOps::filterSupport(f) + 0.01);
        EXPECT_TRUE(f == ImageOps::kGaussianFilter || beyond == 0) << f;
    }
    // Same size with a box filter is the identity; transparency doesn't bleed.
    PixelBuffer n = numbered(5, 4);
    EXPECT_EQ(ImageOps::resize(n, 5, 4, ImageOps::kBoxFilter, 1).pixels, n.pixels);
    PixelBuffer half(2, 1, 0);
    half.pixels[1] = kTransparent;
    PixelBuffer wide = ImageOps::resize(half, 8, 1, ImageOps::kLinearFilter, 1);
    for (int p : wide.pixels) EXPECT_EQ((unsigned)p & 0xFFFFFF, 0u);
    EXPECT_TRUE(ImageOps::resize(n, 0, 4, 1, 1).isEmpty());
}

TEST(RasterImage, Transforms) {
    PixelBuffer n = numbered(6, 4);
    PixelBuffer f = n;
    ImageOps::hFlip(f);
    EXPECT_EQ(f.at(0, 1), n.at(5, 1));
    ImageOps::vFlip(f);
    EXPECT_EQ(f.at(0, 0), n.at(5, 3));
    ImageOps::hFlip(f), ImageOps::vFlip(f);
    EXPECT_EQ(f.pixels, n.pixels);

    const double identity[6] = {1, 0, 0, 1, 0, 0};
    EXPECT_EQ(ImageOps::affineTransform(n, identity, kTransparent, 1, 1).pixels, n.pixels);
    PixelBuffer moved = ImageOps::move(n, 2, 1, 7, ImageOps::kBoxFilter);
    EXPECT_EQ(moved.at(2, 1), n.at(0, 0));
    EXPECT_EQ(moved.at(1, 1), 7);
    // Four quarter turns around the centre of a square come back.
    PixelBuffer sq = numbered(5, 5), t = sq;
    for (int i = 0; i < 4; ++i) t = ImageOps::rotate(t, 90, 2, 2, 0, ImageOps::kBoxFilter);
    EXPECT_EQ(t.pixels, sq.pixels);
    PixelBuffer q = ImageOps::rotate(sq, 90, 2, 2, 0, ImageOps::kBoxFilter);
    // Clockwise: the top-left corner goes to the top-right.
    EXPECT_EQ(q.at(4, 0), sq.at(0, 0));
    // The flip the canvas records: x' = -x + 5.
    const double flip[6] = {-1, 0, 0, 1, 5, 0};
    PixelBuffer flipped = n;
    ImageOps::hFlip(flipped);
    EXPECT_EQ(ImageOps::affineTransform(n, flip, 0, ImageOps::kBoxFilter, 1).pixels,
              flipped.pixels);
    EXPECT_EQ(ImageOps::affineTransform(n, flip, 0, ImageOps::kLinearFilter, 1).pixels,
              flipped.pixels);
    const double singular[6] = {0, 0, 0, 0, 0, 0};
    EXPECT_EQ(ImageOps::affineTransform(n, singular, 9, 1, 1).at(3, 3), 9);

    PixelBuffer sheared = ImageOps::shearTransform(sq, 0, 0, 0, ImageOps::kBoxFilter);
    EXPECT_EQ(sheared.pixels, sq.pixels);
    PixelBuffer flat(9, 9, 0x00808080);
    for (const PixelBuffer &w : {ImageOps::hCylinderTransform(flat, kTransparent),
                                 ImageOps::vCylinderTransform(flat, kTransparent),
                                 ImageOps::sphereTransform(flat, kTransparent),
                                 ImageOps::vTriangleTransform(flat, kTransparent),
                                 ImageOps::hTriangleTransform(flat, kTransparent),
                                 ImageOps::waveTransform(flat, 5, 0, 0, kTransparent)}) {
        EXPECT_EQ(w.width, 9);
        EXPECT_EQ(w.at(4, 4), 0x00808080);
    }
    EXPECT_EQ(ImageOps::sphereTransform(flat, 5).at(0, 0), 5);
    EXPECT_EQ(ImageOps::vTriangleTransform(flat, 5).at(0, 0), 5);
    EXPECT_EQ(ImageOps::vTriangleTransform(flat, 5).at(4, 0), 0x00808080);

    std::vector<int> v(25, 0);
    v[12] = 250;
    ImageOps::boxBlur(v, 5, 5, 1);
    EXPECT_EQ(v[12], 250 / 9 / 3 * 3 == v[12] ? v[12] : 27);
    EXPECT_EQ(v[0], 0);
    EXPECT_EQ(v[6], v[18]);
}
