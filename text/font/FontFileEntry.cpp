#include "text/font/FontFileEntry.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <cstdlib>

#include "text/font/FontFace.h"
#include "text/font/FontName.h"
#include "text/font/LibTTFFontDriver.h"
#include "text/font/LibTTFSizedFontFace.h"

namespace {
const int kNoSize = (int)0x80000001;
// What a sized face costs the glyph cache: the object and its table entry.
const long long kFaceBytes = sizeof(LibTTFSizedFontFace) + 64;
}  // namespace

FontFileEntry::FontFileEntry(LibTTFFontDriver *d, const std::string &p, int index, FT_Face f,
                             long long t)
    : path(p),
      collectionIndex(index),
      driver(d),
      face(f),
      failTime(t),
      currentWidth(kNoSize),
      currentHeight(kNoSize),
      familyName(FontName::portableFamilyFor(p)),
      familyStyle(FontName::portableStyleFor(p)) {
    const char *name = face ? FT_Get_Postscript_Name(face) : nullptr;
    if (name) postscriptName = name;
}

FontFileEntry::~FontFileEntry() {
    for (auto &s : sizes) delete s.second;
    if (face) FT_Done_Face(face);
}

int FontFileEntry::getNativeStyle() const {
    int style = familyStyle;
    if (face && (face->style_flags & FT_STYLE_FLAG_BOLD)) style |= FontFace::kBold;
    if (face && (face->style_flags & FT_STYLE_FLAG_ITALIC)) style |= FontFace::kItalic;
    return style;
}

unsigned long long FontFileEntry::sizeKey(int style, double width, double height) {
    unsigned long long h = (unsigned long long)(long long)(height * 20) & 0xFFFF;
    unsigned long long w = (unsigned long long)(long long)(width * 20) & 0xFFFFFF;
    return (h << 24) | w | ((unsigned long long)(style & 0xFFFF) << 48);
}

LibTTFSizedFontFace *FontFileEntry::getSizedFace(int style, double width, double height) {
    if (!face) return nullptr;
    if (width <= 0) width = height;
    int requested = style;
    style &= ~getNativeStyle();
    unsigned long long key = sizeKey(style, width, height);
    auto it = sizes.find(key);
    if (it != sizes.end()) return it->second;
    LibTTFSizedFontFace *sized =
        new LibTTFSizedFontFace(this, key, requested, style, width, height);
    sizes[key] = sized;
    driver->getGlyphCache().add(sized, kFaceBytes);
    return sized;
}

bool FontFileEntry::setPixelSize(int width, int height) {
    if (width == currentWidth && height == currentHeight) return true;
    if (FT_Set_Pixel_Sizes(face, width, height) != 0) {
        if (face->num_fixed_sizes <= 0) return false;
        int best = 0;
        for (int i = 1; i < face->num_fixed_sizes; ++i)
            if (abs(face->available_sizes[i].height - height) <
                abs(face->available_sizes[best].height - height))
                best = i;
        if (FT_Set_Pixel_Sizes(face, face->available_sizes[best].width,
                               face->available_sizes[best].height) != 0)
            return false;
    }
    currentWidth = width;
    currentHeight = height;
    return true;
}
