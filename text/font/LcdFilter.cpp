#include "text/font/LcdFilter.h"

#include <cstddef>
#include <vector>

#include "text/font/GlyphBitmap.h"

int LcdFilter::filterSample(int b1, int b2, int b3, int b4, int b5) {
    int v = ((b3 * 86 + (b2 + b4) * 77 + (b1 + b5) * 8 + 4096) >> 8) & 0xFFE0;
    return v > 255 ? 255 : v;
}

void LcdFilter::apply(GlyphBitmap *bitmap) {
    int pitch = bitmap->pitch;
    int newPitch = pitch + 6;
    std::vector<unsigned char> out((size_t)newPitch * bitmap->rows);
    for (int y = 0; y < bitmap->rows; ++y) {
        const unsigned char *src = &bitmap->data[(size_t)y * pitch];
        auto in = [&](int i) { return i >= 0 && i < pitch ? (int)src[i] : 0; };
        unsigned char *dst = &out[(size_t)y * newPitch];
        for (int x = 0; x < newPitch; ++x)
            dst[x] =
                (unsigned char)filterSample(in(x - 5), in(x - 4), in(x - 3), in(x - 2), in(x - 1));
    }
    bitmap->data.swap(out);
    bitmap->pitch = newPitch;
    bitmap->left -= 1;
}
