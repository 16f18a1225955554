#pragma once

#include <map>

#include "text/font/FontFace.h"
#include "text/font/cache/GlyphCache.h"

class FontFileEntry;
class GlyphBitmap;
class LibTTFFontGlyph;

// One FreeType face at one size, with its rendered glyphs.  Bold and italic that
// the file lacks are made up: a double strike and a shear.  The glyph cache
// counts the face and the glyphs it keeps; once nothing holds the face it may
// be dropped with them.
class LibTTFSizedFontFace : public FontFace, public GlyphCache::Item {
public:
    // requestedStyle is what the caller asked for, style what must be
    // synthesised; the entry keeps the face under sizeKey.
    LibTTFSizedFontFace(FontFileEntry *entry, unsigned long long sizeKey, int requestedStyle,
                        int style, double width, double height);
    ~LibTTFSizedFontFace() override;
    LibTTFSizedFontFace(const LibTTFSizedFontFace &) = delete;
    LibTTFSizedFontFace &operator=(const LibTTFSizedFontFace &) = delete;

    FontFace *scaled(double factor) override;
    FontGlyph *getGlyph(int ch, int flags) override;
    FontGlyph *getMissingGlyph(int ch, int flags) override;
    void addRef() override;
    void release() override;
    bool isItalic() override;
    bool isBold() override;
    bool isSyntheticItalic() override { return (style & kItalic) != 0; }
    bool isSyntheticBold() override { return (style & kBold) != 0; }
    int getPixelSize() override { return pixelHeight; }
    const char *getFontName() override;
    const char *getPostscriptName() override;
    const char *getFileName() override;
    int getFaceIndex() override;
    double getWidthScale() override;
    FontDriver *getDriver() override;

    // Drops the table entry of an evicted glyph.
    void forgetGlyph(int key) { glyphs.erase(key); }
    bool evict() override;

    static int glyphKey(int ch, int flags);
    // Whole pixels where a scaled size nearly lands, back in points.
    static double scaledPoints(double points, double factor);

private:
    LibTTFFontGlyph *renderGlyph(int ch, int flags);

    GlyphCache *getCache();

    FontFileEntry *entry;
    unsigned long long sizeKey;
    int requestedStyle;
    int style;
    double width;
    double height;
    int pixelWidth;
    int pixelHeight;
    int refCount;
    std::map<int, LibTTFFontGlyph *> glyphs;
};
