#include "text/font/MultiFontFace.h"

#include "text/font/FontName.h"
#include "text/font/LibTTFFontDriver.h"
#include "text/font/LibTTFSizedFontFace.h"

MultiFontFace::MultiFontFace(LibTTFFontDriver *d, const std::string &key, const char *s, int st,
                             double w, double h)
    : driver(d),
      cacheKey(key),
      rest(s ? s : ""),
      spec(rest),
      style(st),
      width(w),
      height(h),
      lastFailed(false),
      refCount(0) {
    while (loaded.empty() && loadNext()) {
    }
    if (!loaded.empty()) {
        ascender = loaded[0]->ascender;
        descender = loaded[0]->descender;
        lineHeight = loaded[0]->lineHeight;
    }
}

MultiFontFace::~MultiFontFace() {
    driver->getGlyphCache().remove(this);
    for (FontFace *face : loaded) face->release();
}

void MultiFontFace::addRef() {
    if (refCount++ == 0) driver->getGlyphCache().busy(this);
}

void MultiFontFace::release() {
    if (--refCount == 0) driver->getGlyphCache().idle(this);
}

long long MultiFontFace::cacheBytes() const {
    return (long long)sizeof(MultiFontFace) + 2 * (long long)spec.size() + 64;
}

bool MultiFontFace::evict() {
    driver->forgetMultiFace(cacheKey);
    delete this;
    return true;
}

bool MultiFontFace::loadNext() {
    while (!rest.empty()) {
        size_t end = rest.find(';');
        std::string item = rest.substr(0, end);
        rest = end == std::string::npos ? std::string() : rest.substr(end + 1);
        size_t start = item.find_first_not_of(" \t");
        item = start == std::string::npos ? std::string() : item.substr(start);
        if (item.empty()) continue;
        if (item[0] == '?') {
            if (!loaded.empty() && !lastFailed) continue;
            item.erase(0, 1);
        }
        FontFace *face = driver->openOne(FontName::parse(item.c_str()), style, width, height);
        lastFailed = face == nullptr;
        if (face) {
            face->addRef();
            loaded.push_back(face);
            return true;
        }
    }
    return false;
}

FontFace *MultiFontFace::findFaceFor(int ch, int flags, FontGlyph **glyph) {
    // Held while it looks: making room for a new glyph may drop idle lists.
    addRef();
    FontFace *found = nullptr;
    *glyph = nullptr;
    for (size_t i = 0; !found; ++i) {
        if (i == loaded.size() && !loadNext()) break;
        *glyph = loaded[i]->getGlyph(ch, flags);
        if (*glyph) found = loaded[i];
    }
    release();
    return found;
}

FontGlyph *MultiFontFace::getGlyph(int ch, int flags) {
    FontGlyph *glyph = nullptr;
    findFaceFor(ch, flags, &glyph);
    return glyph;
}

FontGlyph *MultiFontFace::getMissingGlyph(int ch, int flags) {
    return loaded[0]->getMissingGlyph(ch, flags);
}

FontFace *MultiFontFace::scaled(double factor) {
    return driver->openFace(spec.c_str(), style, LibTTFSizedFontFace::scaledPoints(width, factor),
                            LibTTFSizedFontFace::scaledPoints(height, factor));
}

FontDriver *MultiFontFace::getDriver() {
    return driver;
}
