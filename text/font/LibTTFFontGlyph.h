#pragma once

#include "text/font/FontGlyph.h"

class GlyphBitmap;

// A glyph rendered by FreeType and finished by the engine.
class LibTTFFontGlyph : public FontGlyph {
public:
    LibTTFFontGlyph(double advance, const GlyphBitmap &image, int pixelFormat);
    ~LibTTFFontGlyph() override;
    LibTTFFontGlyph(const LibTTFFontGlyph &) = delete;
    LibTTFFontGlyph &operator=(const LibTTFFontGlyph &) = delete;

    void addRef() override { ++refCount; }
    void release() override { --refCount; }
    int getRefCount() const { return refCount; }

private:
    int refCount;
};
