#include "text/font/GlyphBitmap.h"

#include <algorithm>

void GlyphBitmap::embolden() {
    int step = bytesPerPixel;
    int newPitch = pitch + step;
    std::vector<unsigned char> out((size_t)newPitch * rows, 0);
    for (int y = 0; y < rows; ++y) {
        const unsigned char *src = &data[(size_t)y * pitch];
        unsigned char *dst = &out[(size_t)y * newPitch];
        for (int x = 0; x < newPitch; ++x) {
            int a = x < pitch ? src[x] : 0;
            int b = x >= step ? src[x - step] : 0;
            dst[x] = (unsigned char)std::min(255, a + b);
        }
    }
    data.swap(out);
    pitch = newPitch;
}

void GlyphBitmap::shear(int slope) {
    if (rows <= 0) return;
    auto shiftOf = [&](int row) { return ((top - row) * slope + 128) >> 8; };
    int lowest = shiftOf(rows - 1);
    int highest = shiftOf(0);
    int newPitch = pitch + highest - lowest;
    std::vector<unsigned char> out((size_t)newPitch * rows, 0);
    for (int y = 0; y < rows; ++y) {
        int offset = shiftOf(y) - lowest;
        std::copy(data.begin() + (size_t)y * pitch, data.begin() + (size_t)(y + 1) * pitch,
                  out.begin() + (size_t)y * newPitch + offset);
    }
    data.swap(out);
    pitch = newPitch;
    left += lowest / bytesPerPixel;
}

void GlyphBitmap::boostSmallSize(int pixelSize) {
    int n = pixelSize - 11;
    if (n >= 8) return;
    int factor = n <= 0 ? 1184 : (8 - n) * 20 + 1024;
    for (unsigned char &v : data) v = (unsigned char)std::min(255, (v * factor) >> 10);
}
