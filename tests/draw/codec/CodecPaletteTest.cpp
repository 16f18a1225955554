#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <vector>

#include "draw/pixel/Dither.h"
#include "draw/pixel/ImagePalette.h"
#include "draw/pixel/Octree.h"
#include "draw/pixel/OctreeQuantizer.h"
#include "tests/draw/codec/CodecTestSupport.h"

using namespace codectest;

namespace {

int distance2(int a, int b) {
    int dr = PixelImage::redOf(a) - PixelImage::redOf(b);
    int dg = PixelImage::greenOf(a) - PixelImage::greenOf(b);
    int db = PixelImage::blueOf(a) - PixelImage::blueOf(b);
    return dr * dr + dg * dg + db * db;
}

}  // namespace

TEST(CodecPalette, OctreeKeepsLeafLimitAndMapsNearest) {
    std::mt19937 rng(11);
    for (int limit : {1, 2, 7, 16, 255, 256, 1000}) {
        Octree tree(limit);
        std::vector<int> colors;
        for (int i = 0; i < 3000; ++i) {
            colors.push_back((int)(rng() & 0xffffff));
            tree.AddColor(colors.back());
            ASSERT_LE(tree.getLeafCount(), limit > 256 ? 256 : limit);
        }
        int palette[256];
        int count = tree.GetPalette(palette);
        EXPECT_EQ(count, tree.getLeafCount());
        // Every added colour maps to an entry.
        for (int i = 0; i < 200; ++i) {
            int index = tree.MapColor(colors[i]);
            ASSERT_GE(index, 0);
            ASSERT_LT(index, count);
        }
    }

    // A colour the tree doesn't hold goes to the nearest entry.
    Octree sparse(256);
    std::vector<int> held;
    for (int i = 0; i < 40; ++i) {
        held.push_back((int)(rng() & 0xffffff));
        sparse.AddColor(held.back());
    }
    int entries[256];
    int count = sparse.GetPalette(entries);
    ASSERT_EQ(count, 40);
    for (int i = 0; i < 500; ++i) {
        int probe = (int)(rng() & 0xffffff);
        int best = 0;
        for (int j = 1; j < count; ++j)
            if (distance2(entries[j], probe) < distance2(entries[best], probe)) best = j;
        EXPECT_EQ(distance2(entries[sparse.MapColor(probe)], probe),
                  distance2(entries[best], probe));
    }

    // Up to the limit each colour is its own exact entry.
    Octree exact(256);
    for (int i = 0; i < 256; ++i) exact.AddColor(i * 0x010203 & 0xffffff);
    int palette[256];
    ASSERT_EQ(exact.GetPalette(palette), 256);
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(palette[exact.MapColor(i * 0x010203 & 0xffffff)], i * 0x010203 & 0xffffff);
}

TEST(CodecPalette, ExactPaletteAgainstNaiveTable) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        int n = 1 + (int)(seed * 13 % 256);
        std::vector<int> pixels = randomPalettePixels(23, 19, n, seed, seed % 3 ? 0 : 4);
        PixelImage image(pixels.data(), 23, 19);
        if (seed % 5 == 0) image.transparentColor = 0xabcdef;
        int palette[256];
        unsigned char alpha[256];
        std::vector<unsigned char> indexes(pixels.size());
        int count = ImagePalette::toPalette(image, palette, indexes.data(), alpha, false);
        std::set<int> distinct(pixels.begin(), pixels.end());
        if (image.hasTransparentColor()) distinct.insert(0xabcdef);
        ASSERT_EQ(count, (int)distinct.size()) << seed;
        if (image.hasTransparentColor()) {
            EXPECT_EQ(palette[0], 0xabcdef);
            EXPECT_EQ(alpha[0], 0);
        }
        for (size_t i = 0; i < pixels.size(); ++i) {
            ASSERT_EQ(palette[indexes[i]], pixels[i]);
            if (palette[indexes[i]] != image.transparentColor) {
                ASSERT_EQ(alpha[indexes[i]], 255 - PixelImage::alphaOf(pixels[i]));
            }
        }
    }

    // All fully transparent pixels are one entry.
    int pixels[] = {(int)0xff112233, (int)0xff445566, kTransparent, 0x10};
    int palette[256];
    unsigned char alpha[256], indexes[4];
    EXPECT_EQ(ImagePalette::toPalette(PixelImage(pixels, 2, 2), palette, indexes, alpha, false), 2);
}

TEST(CodecPalette, QuantizingByEachMethod) {
    std::vector<int> pixels = randomPalettePixels(64, 64, 2000, 5);
    pixels[0] = kTransparent;
    for (int method : {kQuantize, kOrderedDither, kErrorDiffusion}) {
        PixelImage image(pixels.data(), 64, 64);
        image.ditherMethod = method;
        int palette[256];
        unsigned char alpha[256];
        std::vector<unsigned char> indexes(pixels.size());
        EXPECT_EQ(ImagePalette::toPalette(image, palette, indexes.data(), alpha, false), 0);
        int count = ImagePalette::toPalette(image, palette, indexes.data(), alpha, true);
        ASSERT_GT(count, 200);
        ASSERT_LE(count, 256);
        EXPECT_EQ(alpha[0], 0);  // reserved for the transparent pixel
        EXPECT_EQ(indexes[0], 0);
        long error = 0;
        for (size_t i = 1; i < pixels.size(); ++i) {
            ASSERT_GE(indexes[i], 1);
            ASSERT_LT(indexes[i], count);
            error += distance2(palette[indexes[i]], pixels[i]);
        }
        // Plain mapping is closest per pixel; the dithers trade a little for texture.
        EXPECT_LT(error / (long)pixels.size(), method == kQuantize ? 1200 : 3000) << method;
    }
}

TEST(CodecPalette, DitherMethodsOnFlatGray) {
    // Middle gray: the ordered table gives half the pixels of each 4 by 4 tile,
    // the threshold gives all one way, diffusion about half.
    std::vector<int> gray(16 * 16, 0x808080);
    unsigned char bits[2 * 16];
    auto whites = [&](int method, int color) {
        std::fill(gray.begin(), gray.end(), color);
        PixelImage image(gray.data(), 16, 16);
        Dither::toBits(image, method, bits, 2);
        int n = 0;
        for (unsigned char b : bits) n += __builtin_popcount(b);
        return n;
    };
    EXPECT_EQ(whites(kQuantize, 0x808080), 256);
    EXPECT_EQ(whites(kQuantize, 0x7f7f7f), 0);
    EXPECT_EQ(whites(kOrderedDither, 0x7f7f7f), 128);
    EXPECT_NEAR(whites(kErrorDiffusion, 0x808080), 128, 8);
    EXPECT_NEAR(whites(kErrorDiffusion, 0x404040), 64, 8);
    for (int method : {kQuantize, kOrderedDither, kErrorDiffusion}) {
        EXPECT_EQ(whites(method, 0xffffff), 256) << method;
        EXPECT_EQ(whites(method, 0x000000), 0) << method;
        EXPECT_EQ(whites(method, kTransparent), 256) << method;  // seen over white
    }
}

TEST(CodecPalette, ReduceColors) {
    std::vector<int> pixels = chartPixels(80, 60);
    for (size_t i = 0; i < pixels.size(); i += 7) pixels[i] = (int)(i * 2654435761u & 0xffffff);
    pixels[3] = 0x40ff0000;
    std::vector<int> copy = pixels;
    int count = ImagePalette::reduceColors(copy.data(), 80, 60, 8, false, kQuantize);
    EXPECT_GE(count, 2);
    EXPECT_LE(count, 8);
    std::set<int> rgb;
    for (int c : copy) rgb.insert(c & 0xffffff);
    EXPECT_LE((int)rgb.size(), count);
    EXPECT_EQ(PixelImage::alphaOf(copy[3]), 0x40);

    copy = pixels;
    count = ImagePalette::reduceColors(copy.data(), 80, 60, 4, true, kErrorDiffusion);
    EXPECT_LE(count, 4);
    for (int c : copy)
        ASSERT_TRUE(PixelImage::redOf(c) == PixelImage::greenOf(c) &&
                    PixelImage::greenOf(c) == PixelImage::blueOf(c));

    EXPECT_EQ(ImagePalette::reduceColors(copy.data(), 80, 60, 0, false, kQuantize), 0);
    EXPECT_EQ(ImagePalette::reduceColors(nullptr, 80, 60, 8, false, kQuantize), 0);
}
