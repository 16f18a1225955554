#include "text/layout/Glyph.h"

#include "draw/pixel/ColorWords.h"
#include "text/font/FontFace.h"
#include "text/font/FontGlyph.h"

Glyph::Glyph()
    : ch(kSpacer),
      replacement(0),
      ligated(0),
      rightToLeft(false),
      face(nullptr),
      flags(0),
      glyph(nullptr),
      ascender(0),
      descender(0),
      lineSpacing(0),
      color(kDrawColor),
      bgColor(kTransparent),
      underline(0),
      spacerWidth(0),
      spacerHeight(0),
      advanceTo(-1),
      xOffset(0),
      yOffset(0),
      x(0),
      y(0),
      right(0),
      bottom(0) {}

Glyph::Glyph(const Glyph &other) : Glyph() {
    *this = other;
}

Glyph &Glyph::operator=(const Glyph &other) {
    if (this == &other) return *this;
    drop();
    ch = other.ch;
    replacement = other.replacement;
    ligated = other.ligated;
    rightToLeft = other.rightToLeft;
    face = other.face;
    flags = other.flags;
    glyph = other.glyph;
    ascender = other.ascender;
    descender = other.descender;
    lineSpacing = other.lineSpacing;
    color = other.color;
    bgColor = other.bgColor;
    underline = other.underline;
    spacerWidth = other.spacerWidth;
    spacerHeight = other.spacerHeight;
    advanceTo = other.advanceTo;
    xOffset = other.xOffset;
    yOffset = other.yOffset;
    x = other.x;
    y = other.y;
    right = other.right;
    bottom = other.bottom;
    acquire();
    return *this;
}

Glyph::~Glyph() {
    drop();
}

void Glyph::acquire() {
    if (face) face->addRef();
    if (glyph) glyph->addRef();
}

void Glyph::drop() {
    if (glyph) glyph->release();
    if (face) face->release();
    glyph = nullptr;
    face = nullptr;
}

void Glyph::setFace(FontFace *f, int glyphFlags) {
    if (f) f->addRef();
    if (face) face->release();
    face = f;
    flags = glyphFlags;
    ascender = f ? f->ascender : 0;
    descender = f ? f->descender : 0;
    lineSpacing = f ? f->lineHeight : 0;
}

void Glyph::makeGlyph(int c, bool useAsReplacement) {
    if (glyph) glyph->release();
    glyph = nullptr;
    if (useAsReplacement)
        replacement = c;
    else
        ch = c;
    if (c == kSpacer || !face) return;
    glyph = face->getGlyph(c, flags);
    if (!glyph) glyph = face->getMissingGlyph(c, flags);
}

void Glyph::makeSpacer(int width, int height) {
    if (glyph) glyph->release();
    glyph = nullptr;
    ch = kSpacer;
    spacerWidth = width;
    spacerHeight = height;
}

double Glyph::getAdvance() const {
    if (glyph) return glyph->advance;
    return spacerWidth;
}

bool Glyph::isBreak() const {
    return isBreakChar(ch);
}

void Glyph::setPos(int direction, double px, int py) {
    x = px;
    y = py;
    if (advanceTo >= 0) spacerWidth = advanceTo > px ? (int)(advanceTo - px) : 0;
    if (direction == 0) {
        right = px + getAdvance();
        bottom = py + (glyph || !isSpacer() ? lineSpacing : spacerHeight);
    } else {
        right = px + getAdvance();
        bottom = py + (isSpacer() ? spacerHeight : lineSpacing);
    }
}
