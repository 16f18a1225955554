#include "text/font/MultiFontFace.h"

#include "text/font/FontName.h"
#include "text/font/LibTTFFontDriver.h"
#include "text/font/LibTTFSizedFontFace.h"

MultiFontFace::MultiFontFace(LibTTFFontDriver *d, const char *s, int st, double w, double h)
    : driver(d),
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
    for (FontFace *face : loaded) face->release();
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
    for (size_t i = 0;; ++i) {
        if (i == loaded.size() && !loadNext()) break;
        *glyph = loaded[i]->getGlyph(ch, flags);
        if (*glyph) return loaded[i];
    }
    *glyph = nullptr;
    return nullptr;
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
