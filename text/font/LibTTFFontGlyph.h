#pragma once

#include "text/font/FontGlyph.h"
#include "text/font/cache/GlyphCache.h"

class GlyphBitmap;
class LibTTFSizedFontFace;

// A glyph rendered by FreeType and finished by the engine.  A glyph its face
// keeps is counted by the glyph cache and waits there, once no text holds it,
// to be dropped when the room is needed; one it doesn't keep dies with its
// last user.
class LibTTFFontGlyph : public FontGlyph, public GlyphCache::Item {
public:
    LibTTFFontGlyph(double advance, const GlyphBitmap &image, int pixelFormat);
    ~LibTTFFontGlyph() override;
    LibTTFFontGlyph(const LibTTFFontGlyph &) = delete;
    LibTTFFontGlyph &operator=(const LibTTFFontGlyph &) = delete;

    void addRef() override;
    void release() override;
    int getRefCount() const { return refCount; }

    // The face keeps the glyph in its table under key; the cache counts it.
    void keep(GlyphCache *cache, LibTTFSizedFontFace *owner, int key);
    bool isKept() const { return cache != nullptr; }
    bool evict() override;

private:
    int refCount;
    GlyphCache *cache;
    LibTTFSizedFontFace *owner;
    int key;
};
