#include "text/font/LibTTFFontGlyph.h"

#include <cstring>

#include "text/font/GlyphBitmap.h"

LibTTFFontGlyph::LibTTFFontGlyph(double advanceWidth, const GlyphBitmap &image, int format)
    : refCount(0) {
    advance = advanceWidth;
    bitmapLeft = image.left;
    bitmapTop = image.top;
    leftBearing = -image.top;
    pitch = image.pitch;
    rows = image.rows;
    pixelFormat = format;
    size_t n = (size_t)image.pitch * image.rows;
    if (n > 0) {
        bitmap = new unsigned char[n];
        memcpy(bitmap, image.data.data(), n);
    }
}

LibTTFFontGlyph::~LibTTFFontGlyph() {
    delete[] bitmap;
}
