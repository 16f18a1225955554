#include "text/font/LibTTFSizedFontFace.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <cmath>

#include "text/font/cache/CanvasGlyphLimit.h"
#include "text/font/FontFileEntry.h"
#include "text/font/FontGlyph.h"
#include "text/font/GlyphBitmap.h"
#include "text/font/LcdFilter.h"
#include "text/font/LibTTFFontDriver.h"
#include "text/font/LibTTFFontGlyph.h"

namespace {

struct LoadMode {
    FT_Int32 flags;
    bool linearAdvance;
};

LoadMode loadModeFor(int flags) {
    int mode = flags & 63;
    switch ((flags >> 16) & 15) {
        case 2:
            return {0, false};
        case 3:
            return {FT_LOAD_TARGET_LIGHT, true};
        case 4:
            return {FT_LOAD_NO_HINTING, false};
        case 5:
            return {FT_LOAD_TARGET_LCD, true};
        case 6:
            return {FT_LOAD_TARGET_MONO, false};
        default:
            break;
    }
    if (mode == 0) return {FT_LOAD_TARGET_MONO, false};
    if (mode == 4 || mode == 5) return {FT_LOAD_TARGET_LCD, true};
    return {0, false};
}

FT_Render_Mode renderModeFor(int mode) {
    if (mode == 0) return FT_RENDER_MODE_MONO;
    if (mode == 4 || mode == 5) return FT_RENDER_MODE_LCD;
    return FT_RENDER_MODE_NORMAL;
}

// The slot's bitmap as one byte a sample (three for LCD), top row first.
void copyBitmap(FT_GlyphSlot slot, GlyphBitmap *image) {
    const FT_Bitmap &b = slot->bitmap;
    int bytesPerPixel = b.pixel_mode == FT_PIXEL_MODE_LCD ? 3 : 1;
    int samples = b.width;
    if (b.pixel_mode != FT_PIXEL_MODE_MONO && b.pixel_mode != FT_PIXEL_MODE_GRAY &&
        b.pixel_mode != FT_PIXEL_MODE_LCD)
        samples = 0;
    image->bytesPerPixel = bytesPerPixel;
    image->pitch = samples;
    image->rows = samples > 0 ? (int)b.rows : 0;
    image->left = slot->bitmap_left;
    image->top = slot->bitmap_top;
    image->data.assign((size_t)image->pitch * image->rows, 0);
    for (int y = 0; y < image->rows; ++y) {
        const unsigned char *src =
            b.pitch >= 0 ? b.buffer + (size_t)y * b.pitch
                         : b.buffer + (size_t)(image->rows - 1 - y) * (size_t)(-b.pitch);
        unsigned char *dst = &image->data[(size_t)y * image->pitch];
        for (int x = 0; x < samples; ++x)
            dst[x] = b.pixel_mode == FT_PIXEL_MODE_MONO
                         ? ((src[x >> 3] & (0x80 >> (x & 7))) ? 255 : 0)
                         : src[x];
    }
}

}  // namespace

LibTTFSizedFontFace::LibTTFSizedFontFace(FontFileEntry *e, unsigned long long key, int requested,
                                         int synthetic, double w, double h)
    : entry(e),
      sizeKey(key),
      requestedStyle(requested),
      style(synthetic),
      width(w),
      height(h),
      pixelWidth(pointsToPixels(w)),
      pixelHeight(pointsToPixels(h)),
      refCount(0) {
    FT_Face face = entry->getFace();
    if (entry->setPixelSize(pixelWidth, pixelHeight)) {
        ascender = (int)(face->size->metrics.ascender >> 6);
        lineHeight = (int)(face->size->metrics.height >> 6);
        descender = (int)std::abs(face->size->metrics.descender >> 6);
    }
}

LibTTFSizedFontFace::~LibTTFSizedFontFace() {
    for (auto &g : glyphs) delete g.second;
    getCache()->remove(this);
}

GlyphCache *LibTTFSizedFontFace::getCache() {
    return &entry->getDriver()->getGlyphCache();
}

void LibTTFSizedFontFace::addRef() {
    if (refCount++ == 0) getCache()->busy(this);
}

void LibTTFSizedFontFace::release() {
    if (--refCount == 0) getCache()->idle(this);
}

bool LibTTFSizedFontFace::evict() {
    // A glyph still held keeps its face: the glyph points at it.
    for (auto &g : glyphs)
        if (g.second && g.second->getRefCount() > 0) return false;
    entry->forgetFace(sizeKey);
    delete this;
    return true;
}

int LibTTFSizedFontFace::glyphKey(int ch, int flags) {
    return ((flags & 63) << 18) | (ch & 0xFFFF) | (((flags >> 16) & 15) << 26);
}

double LibTTFSizedFontFace::scaledPoints(double points, double factor) {
    double x = pointsToPixels(points) * factor - 1e-7;
    double v = std::floor(x);
    if (x - v > 0.1) v = std::ceil(x) - x <= 0.1 ? std::ceil(x) : x;
    return v * 72 / 96;
}

FontFace *LibTTFSizedFontFace::scaled(double factor) {
    return entry->getSizedFace(requestedStyle, scaledPoints(width, factor),
                               scaledPoints(height, factor));
}

bool LibTTFSizedFontFace::isItalic() {
    return (style & kItalic) || (entry->getNativeStyle() & kItalic);
}

bool LibTTFSizedFontFace::isBold() {
    return (style & kBold) || (entry->getNativeStyle() & kBold);
}

const char *LibTTFSizedFontFace::getFontName() {
    if (entry->getFamilyName()) return entry->getFamilyName();
    const char *family = entry->getFace()->family_name;
    return family ? family : "";
}

const char *LibTTFSizedFontFace::getPostscriptName() {
    if (entry->getFamilyName()) return nullptr;
    return entry->getPostscriptName();
}

const char *LibTTFSizedFontFace::getFileName() {
    return entry->getPath().c_str();
}

int LibTTFSizedFontFace::getFaceIndex() {
    return entry->getCollectionIndex();
}

double LibTTFSizedFontFace::getWidthScale() {
    return pixelHeight > 0 ? (double)pixelWidth / pixelHeight : 1;
}

FontDriver *LibTTFSizedFontFace::getDriver() {
    return entry->getDriver();
}

FontGlyph *LibTTFSizedFontFace::getMissingGlyph(int, int flags) {
    return getGlyph(0, flags);
}

FontGlyph *LibTTFSizedFontFace::getGlyph(int ch, int flags) {
    int key = glyphKey(ch, flags);
    auto it = glyphs.find(key);
    if (it != glyphs.end()) {
        if (it->second) it->second->addRef();
        return it->second;
    }
    LibTTFFontGlyph *glyph = renderGlyph(ch, flags);
    if (!glyph) {
        glyphs[key] = nullptr;
        return nullptr;
    }
    // The caller's reference first, so that the room made for the glyph is
    // not made by dropping it.
    glyph->addRef();
    if (CanvasGlyphLimit::allowsKeeping(glyph->getPixelWidth(), glyph->rows)) {
        glyphs[key] = glyph;
        glyph->keep(getCache(), this, key);
    }
    return glyph;
}

LibTTFFontGlyph *LibTTFSizedFontFace::renderGlyph(int ch, int flags) {
    FT_Face face = entry->getFace();
    FT_UInt index = FT_Get_Char_Index(face, (FT_ULong)ch);
    if (index == 0 && ch != 0) return nullptr;
    int mode = flags & 63;
    LoadMode load = loadModeFor(flags);
    FT_Int32 loadFlags = FT_LOAD_IGNORE_GLOBAL_ADVANCE_WIDTH | load.flags;
    if (((flags >> 20) & 15) == 1) loadFlags |= FT_LOAD_FORCE_AUTOHINT;
    if (!entry->setPixelSize(pixelWidth, pixelHeight)) return nullptr;
    if (FT_Load_Glyph(face, index, loadFlags) != 0) return nullptr;
    FT_GlyphSlot slot = face->glyph;
    double advance =
        load.linearAdvance ? slot->linearHoriAdvance / 65536.0 : slot->advance.x / 64.0;
    int glyphStyle = style;
    if (mode != 0 && (glyphStyle & kItalic) && slot->format == FT_GLYPH_FORMAT_OUTLINE) {
        FT_Matrix shear = {0x10000, 0x4000, 0, 0x10000};
        FT_Outline_Transform(&slot->outline, &shear);
        glyphStyle &= ~kItalic;
    }
    if (FT_Render_Glyph(slot, renderModeFor(mode)) != 0) return nullptr;
    GlyphBitmap image;
    copyBitmap(slot, &image);
    bool lcd = image.bytesPerPixel == 3;
    if (glyphStyle & kBold) image.embolden();
    if (glyphStyle & kItalic) image.shear(lcd ? 192 : 64);
    if (slot->bitmap.pixel_mode != FT_PIXEL_MODE_MONO) image.boostSmallSize(pixelHeight);
    int format = FontGlyph::kGrey;
    if (lcd) {
        format = mode == 5 ? FontGlyph::kLcdFiltered : FontGlyph::kLcd;
        if (mode == 5) LcdFilter::apply(&image);
    }
    LibTTFFontGlyph *glyph = new LibTTFFontGlyph(advance, image, format);
    glyph->glyphId = index;
    glyph->face = this;
    return glyph;
}
