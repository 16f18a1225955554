#pragma once

#include "foundation/ArrayViews.h"

// The constant palettes and gradients.  A palette ends with kPaletteEnd; a
// gradient is pairs of (position 0 to 256, colour).
namespace Chart {

constexpr int kPaletteEnd = (int)0xFFFFFFFFu;
constexpr int kMaxPaletteLength = 65535;
constexpr int kStandardPaletteLength = 40;
constexpr int kMetalGradientLength = 8;

extern const int defaultPalette[kStandardPaletteLength + 1];
extern const int whiteOnBlackPalette[kStandardPaletteLength + 1];
extern const int transparentPalette[kStandardPaletteLength + 1];

extern const int goldGradient[kMetalGradientLength];
extern const int silverGradient[kMetalGradientLength];
extern const int redMetalGradient[kMetalGradientLength];
extern const int blueMetalGradient[kMetalGradientLength];
extern const int greenMetalGradient[kMetalGradientLength];

// The entries before the end mark, at most kMaxPaletteLength; null is empty.
IntArray paletteColors(const int *palette);
inline IntArray gradientPairs(const int (&gradient)[kMetalGradientLength]) {
    return IntArray(gradient, kMetalGradientLength);
}

}  // namespace Chart
