#include "draw/canvas/Palettes.h"

namespace Chart {

// Entries 0 to 7: background, line and text colours, then five greys.
#define VS_SYSTEM_COLORS(bg, fg) bg, fg, fg, 0x808080, 0x808080, 0x808080, 0x808080, 0x808080

const int defaultPalette[kStandardPaletteLength + 1] = {
    VS_SYSTEM_COLORS(0xFFFFFF, 0x000000),
    0xFF3333,
    0x33FF33,
    0x6666FF,
    0xFFFF00,
    0xFF66FF,
    0x99FFFF,
    0xFFCC33,
    0xCCCCCC,
    0xCC9999,
    0x339966,
    0x999900,
    0xCC3300,
    0x669999,
    0x993333,
    0x006600,
    0x990099,
    0xFF9966,
    0x99FF99,
    0x9999FF,
    0xCC6600,
    0x33CC33,
    0xCC99FF,
    0xFF6666,
    0x99CC66,
    0x009999,
    0xCC3333,
    0x9933FF,
    0xFF0000,
    0x0000FF,
    0x00FF00,
    0xFFCC99,
    0x999999,
    kPaletteEnd,
};

const int whiteOnBlackPalette[kStandardPaletteLength + 1] = {
    VS_SYSTEM_COLORS(0x000000, 0xFFFFFF),
    0xFF0000,
    0x00FF00,
    0x0000FF,
    0xFFFF00,
    0xFF00FF,
    0x66FFFF,
    0xFFCC33,
    0xCCCCCC,
    0x9966FF,
    0x339966,
    0x999900,
    0xCC3300,
    0x99CCCC,
    0x006600,
    0x660066,
    0xCC9999,
    0xFF9966,
    0x99FF99,
    0x9999FF,
    0xCC6600,
    0x33CC33,
    0xCC99FF,
    0xFF6666,
    0x99CC66,
    0x009999,
    0xCC3333,
    0x9933FF,
    0xFF0000,
    0x0000FF,
    0x00FF00,
    0xFFCC99,
    0x999999,
    kPaletteEnd,
};

const int transparentPalette[kStandardPaletteLength + 1] = {
    VS_SYSTEM_COLORS(0xFFFFFF, 0x000000),
    (int)0x80FF0000,
    (int)0x8000FF00,
    (int)0x800000FF,
    (int)0x80FFFF00,
    (int)0x80FF00FF,
    (int)0x8066FFFF,
    (int)0x80FFCC33,
    (int)0x80CCCCCC,
    (int)0x809966FF,
    (int)0x80339966,
    (int)0x80999900,
    (int)0x80CC3300,
    (int)0x8099CCCC,
    (int)0x80006600,
    (int)0x80660066,
    (int)0x80CC9999,
    (int)0x80FF9966,
    (int)0x8099FF99,
    (int)0x809999FF,
    (int)0x80CC6600,
    (int)0x8033CC33,
    (int)0x80CC99FF,
    (int)0x80FF6666,
    (int)0x8099CC66,
    (int)0x80009999,
    (int)0x80CC3333,
    (int)0x809933FF,
    (int)0x80FF0000,
    (int)0x800000FF,
    (int)0x8000FF00,
    (int)0x80FFCC99,
    (int)0x80999999,
    kPaletteEnd,
};

#undef VS_SYSTEM_COLORS

const int goldGradient[kMetalGradientLength] = {0,   0xFFE743, 96,  0xFFFFE0,
                                                176, 0xFFF0B0, 256, 0xFFE743};
const int silverGradient[kMetalGradientLength] = {0,   0xC8C8C8, 96,  0xF8F8F8,
                                                  176, 0xE0E0E0, 256, 0xC8C8C8};
const int redMetalGradient[kMetalGradientLength] = {0,   0xE09898, 96,  0xFFF0F0,
                                                    176, 0xF0D8D8, 256, 0xE09898};
const int blueMetalGradient[kMetalGradientLength] = {0,   0x9898E0, 96,  0xF0F0FF,
                                                     176, 0xD8D8F0, 256, 0x9898E0};
const int greenMetalGradient[kMetalGradientLength] = {0,   0x98E098, 96,  0xF0FFF0,
                                                      176, 0xD8F0D8, 256, 0x98E098};

IntArray paletteColors(const int *palette) {
    if (!palette) return IntArray();
    int n = 0;
    while (n < kMaxPaletteLength && palette[n] != kPaletteEnd) ++n;
    return IntArray(palette, n);
}

}  // namespace Chart
