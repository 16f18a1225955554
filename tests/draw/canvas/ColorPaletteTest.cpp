#include <gtest/gtest.h>

#include "draw/canvas/Palettes.h"
#include "draw/pixel/ColorWords.h"

using namespace Chart;

TEST(ColorPalette, ConstantPalettes) {
    const int *palettes[] = {defaultPalette, whiteOnBlackPalette, transparentPalette};
    for (const int *p : palettes) {
        IntArray colors = paletteColors(p);
        EXPECT_EQ(colors.len, 40);
        EXPECT_EQ(p[40], kPaletteEnd);
        for (int i = 3; i < 8; ++i) EXPECT_EQ(p[i], 0x808080) << i;
    }
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
