#pragma once

#include <string>
#include <vector>

#include "text/font/FontFace.h"
#include "text/font/cache/GlyphCache.h"

class LibTTFFontDriver;

// A ";"-separated list of fonts: each character comes from the first font that
// has it.  Fonts are opened one at a time as characters ask for them; an item
// starting with "?" stands in only when the item before it failed.  The driver
// keeps lists under cacheKey, in the glyph cache: one that nothing holds may be
// dropped, and its faces with it.
class MultiFontFace : public FontFace, public GlyphCache::Item {
public:
    MultiFontFace(LibTTFFontDriver *driver, const std::string &cacheKey, const char *spec,
                  int style, double width, double height);
    ~MultiFontFace() override;
    MultiFontFace(const MultiFontFace &) = delete;
    MultiFontFace &operator=(const MultiFontFace &) = delete;

    // False when no item of the list gives a font.
    bool hasFont() const { return !loaded.empty(); }

    FontFace *scaled(double factor) override;
    FontGlyph *getGlyph(int ch, int flags) override;
    FontGlyph *getMissingGlyph(int ch, int flags) override;
    void addRef() override;
    void release() override;
    bool isItalic() override { return loaded[0]->isItalic(); }
    bool isBold() override { return loaded[0]->isBold(); }
    bool isSyntheticItalic() override { return loaded[0]->isSyntheticItalic(); }
    bool isSyntheticBold() override { return loaded[0]->isSyntheticBold(); }
    int getPixelSize() override { return loaded[0]->getPixelSize(); }
    const char *getFontName() override { return loaded[0]->getFontName(); }
    const char *getPostscriptName() override { return loaded[0]->getPostscriptName(); }
    const char *getFileName() override { return loaded[0]->getFileName(); }
    int getFaceIndex() override { return loaded[0]->getFaceIndex(); }
    double getWidthScale() override { return loaded[0]->getWidthScale(); }
    FontDriver *getDriver() override;

    // The face that gives ch (with a reference on its glyph), or null.
    FontFace *findFaceFor(int ch, int flags, FontGlyph **glyph);

    long long cacheBytes() const;
    bool evict() override;

private:
    // Opens the next item of the list; false when the list is used up.
    bool loadNext();

    LibTTFFontDriver *driver;
    std::string cacheKey;
    std::string rest;
    std::string spec;
    int style;
    double width;
    double height;
    // Each held with a reference.
    std::vector<FontFace *> loaded;
    bool lastFailed;
    int refCount;
};
