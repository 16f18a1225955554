#include <gtest/gtest.h>

#include "draw/ColorWords.h"
#include "draw/Palettes.h"

using namespace Chart;

TEST(ColorPalette, ConstantPalettes) {
    const int *palettes[] = {defaultPalette, whiteOnBlackPalette, transparentPalette};
    for (const int *p : palettes) {
        IntArray colors = paletteColors(p);
        EXPECT_EQ(colors.len, 40);
        EXPECT_EQ(p[40], kPaletteEnd);
        for (int i = 3; i < 8; ++i) EXPECT_EQ(p[i], 0x808080) << i;
    }
    EXPECT_EQ(defaultPalette[0], 0xFFFFFF);
    EXPECT_EQ(defaultPalette[1], 0x000000);
    EXPECT_EQ(defaultPalette[8], 0xFF3333);
    EXPECT_EQ(defaultPalette[39], 0x999999);
    EXPECT_EQ(whiteOnBlackPalette[0], 0x000000);
    EXPECT_EQ(whiteOnBlackPalette[2], 0xFFFFFF);
    EXPECT_EQ(whiteOnBlackPalette[13], 0x66FFFF);
    EXPECT_EQ(whiteOnBlackPalette[20], 0x99CCCC);
    // The transparent palette has the white-on-black data colours, half clear.
    EXPECT_EQ(transparentPalette[0], 0xFFFFFF);
    for (int i = 8; i < 40; ++i)
        EXPECT_EQ(transparentPalette[i], (int)(0x80000000u | (unsigned)whiteOnBlackPalette[i]))
            << i;
    // No data colour of the default palette is its background.
    for (int i = 8; i < 40; ++i) EXPECT_NE(defaultPalette[i], defaultPalette[0]);

    EXPECT_EQ(paletteColors(nullptr).len, 0);
    const int shortPalette[] = {1, 2, kPaletteEnd, 4};
    EXPECT_EQ(paletteColors(shortPalette).len, 2);
}

TEST(ColorPalette, MetalGradients) {
    const int *gradients[] = {goldGradient, silverGradient, redMetalGradient, blueMetalGradient,
                              greenMetalGradient};
    for (const int *g : gradients) {
        EXPECT_EQ(g[0], 0);
        EXPECT_EQ(g[2], 96);
        EXPECT_EQ(g[4], 176);
        EXPECT_EQ(g[6], 256);
        // The gradient ends where it starts, so it can repeat.
        EXPECT_EQ(g[1], g[7]);
    }
    EXPECT_EQ(goldGradient[1], 0xFFE743);
    EXPECT_EQ(silverGradient[3], 0xF8F8F8);
    EXPECT_EQ(redMetalGradient[5], 0xF0D8D8);
    EXPECT_EQ(blueMetalGradient[3], 0xF0F0FF);
    EXPECT_EQ(greenMetalGradient[1], 0x98E098);
    EXPECT_EQ(gradientPairs(goldGradient).len, 8);
}
