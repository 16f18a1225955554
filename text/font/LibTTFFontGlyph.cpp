#include "text/font/LibTTFFontGlyph.h"

#include <cstring>

#include "text/font/GlyphBitmap.h"
#include "text/font/LibTTFSizedFontFace.h"

namespace {

// What a kept glyph costs beside its bitmap: the object and its table entry.
const long long kGlyphOverhead = sizeof(LibTTFFontGlyph) + 64;

}  // namespace

LibTTFFontGlyph::LibTTFFontGlyph(double advanceWidth, const GlyphBitmap &image, int format)
    : refCount(0), cache(nullptr), owner(nullptr), key(0) {
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
    if (cache) cache->remove(this);
    delete[] bitmap;
}

void LibTTFFontGlyph::keep(GlyphCache *c, LibTTFSizedFontFace *face, int k) {
    owner = face;
    key = k;
    cache = c;
    cache->add(this, kGlyphOverhead + (long long)pitch * rows);
}

void LibTTFFontGlyph::addRef() {
    if (refCount++ == 0 && cache) cache->busy(this);
}

void LibTTFFontGlyph::release() {
    if (--refCount > 0) return;
    if (cache)
        cache->idle(this);
    else
        delete this;
}

bool LibTTFFontGlyph::evict() {
    owner->forgetGlyph(key);
    delete this;
    return true;
}
