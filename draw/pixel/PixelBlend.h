#pragma once

#include "draw/pixel/ColorWords.h"

// Pixel arithmetic of the raster on colour words (transparency in the top byte,
// 0 opaque, 255 transparent).  Words are handled as unsigned to keep shifts
// well defined.
namespace PixelBlend {

inline unsigned alphaOf(unsigned c) {
    return c >> 24;
}
// Any word with the top byte 255 paints nothing.
inline bool isInvisible(unsigned c) {
    return (c >> 24) == 255u;
}
inline unsigned withAlpha(unsigned c, unsigned a) {
    return (c & 0xFFFFFFu) | (a << 24);
}

// s over d for plain words.
inline unsigned blend(unsigned d, unsigned s) {
    unsigned as = s >> 24;
    unsigned ad = d >> 24;
    if (as == 0 || ad == 255) return s;
    if (as == 255) return d;
    if (ad != 0) {
        unsigned w1 = (255 - ad) * as;
        unsigned w2 = (255 - as) * 255;
        unsigned div = 65025 - ad * as;
        unsigned r = (w2 * ((s >> 16) & 255) + w1 * ((d >> 16) & 255)) / div;
        unsigned g = (w2 * ((s >> 8) & 255) + w1 * ((d >> 8) & 255)) / div;
        unsigned b = (w2 * (s & 255) + w1 * (d & 255)) / div;
        unsigned a = (ad * as + 127) / 255;
        return (a << 24) | (r << 16) | (g << 8) | b;
    }
    unsigned t = as + (as > 127 ? 1 : 0);
    unsigned rb =
        (((d & 0xFF00FFu) * t + (s & 0xFF00FFu) * (256 - t) + 0x800080u) >> 8) & 0xFF00FFu;
    unsigned g = (((d & 0xFF00u) * t + (s & 0xFF00u) * (256 - t) + 0x8000u) >> 8) & 0xFF00u;
    return rb | g;
}

// s over the pixel word d, as stored: a result that shows nothing is kTransparent.
inline unsigned blendStored(unsigned d, unsigned s) {
    if ((s >> 24) == 0) return s;
    unsigned r = blend(d, s);
    return isInvisible(r) ? (unsigned)kTransparent : r;
}

// The colour c at a coverage of level / 16; 255 transparency means nothing to paint.
inline unsigned atCoverage(unsigned c, int level) {
    unsigned a = 255 - ((unsigned)level * (255 - (c >> 24))) / 16;
    return withAlpha(c, a);
}

// Channel-wise mix of two words: c1 weighted w of 256, c0 the rest.
inline unsigned mix256(unsigned c0, unsigned c1, unsigned w) {
    unsigned rb =
        (((c1 & 0xFF00FFu) * w + (c0 & 0xFF00FFu) * (256 - w) + 0x800080u) >> 8) & 0xFF00FFu;
    unsigned ag =
        ((((c1 >> 8) & 0xFF00FFu) * w + ((c0 >> 8) & 0xFF00FFu) * (256 - w) + 0x800080u) >> 8) &
        0xFF00FFu;
    return rb | (ag << 8);
}

// Brightness k in 1/1024 units: below 1024 darkens, above fades to white.
inline unsigned adjustBrightness(unsigned c, int k) {
    if ((c >> 24) == 255) return c;
    if (k < 0) return c & 0xFF000000u;
    if (k <= 1024) {
        unsigned r = ((((c >> 16) & 255) * (unsigned)k) >> 10);
        unsigned g = ((((c >> 8) & 255) * (unsigned)k) >> 10);
        unsigned b = (((c & 255) * (unsigned)k) >> 10);
        return (c & 0xFF000000u) | (r << 16) | (g << 8) | b;
    }
    unsigned m = (unsigned)((k / 2 + 262144) / k);
    unsigned inv = ~c;
    unsigned rb = 0xFF00FFu - ((((inv & 0xFF00FFu) * m) >> 8) & 0xFF00FFu);
    unsigned g = 0xFF00u - ((((inv & 0xFF00u) * m) >> 8) & 0xFF00u);
    return (c & 0xFF000000u) | rb | g;
}

}  // namespace PixelBlend
