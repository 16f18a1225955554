#include "text/layout/TTFTextImpl.h"

#include <algorithm>
#include <cmath>

#include "draw/canvas/DrawArea.h"
#include "draw/list/GlyphText.h"
#include "draw/list/MetaDraw.h"
#include "draw/pixel/ColorWords.h"
#include "foundation/ArrayViews.h"
#include "text/font/FontFace.h"
#include "text/font/FontGlyph.h"
#include "text/font/FontLock.h"
#include "text/layout/GlyphContainer.h"
#include "text/layout/LineBreaker.h"
#include "text/layout/TextTransform.h"

TTFTextImpl::TTFTextImpl(DrawArea *d, GlyphContainer *g, int b, int e, FontFace *f, bool v)
    : TTFTextImpl(d, g, b, e, f, v, Unmeasured()) {
    measure();
}

TTFTextImpl::TTFTextImpl(const TTFTextImpl &line, int b)
    : TTFTextImpl(line.canvas, line.glyphs, b, line.runEnd, line.face.get(), line.vertical,
                  Unmeasured()) {}

TTFTextImpl::TTFTextImpl(DrawArea *d, GlyphContainer *g, int b, int e, FontFace *f, bool v,
                         Unmeasured)
    : canvas(d),
      glyphs(g),
      begin(b),
      runEnd(e),
      end(e),
      face(f),
      vertical(v),
      next(nullptr),
      startX(0),
      width(0),
      ascent(0),
      descent(0),
      lineDistance(0),
      matrix{1, 0, 0, 1},
      underlineColor(0) {
    glyphs->addRef();
}

TTFTextImpl::~TTFTextImpl() {
    // Face and glyph references go back under the font mutex.
    FontLock lock;
    releaseChain(next);
    ellipsis.clear();
    face.reset(nullptr);
    glyphs->release();
}

void TTFTextImpl::releaseChain(TTFTextImpl *run) {
    while (run) {
        // A run that others still hold keeps the rest of its chain.
        TTFTextImpl *after = run->isLastReference() ? run->next : nullptr;
        if (after) run->next = nullptr;
        run->releaseText();
        run = after;
    }
}

int TTFTextImpl::getItemCount() const {
    return glyphs->size() + (int)ellipsis.size();
}

const Glyph &TTFTextImpl::itemAt(int i) const {
    return i < glyphs->size() ? glyphs->at(i) : ellipsis[i - glyphs->size()];
}

int TTFTextImpl::getItemColor(int i, int defaultColor) const {
    if (i < 0 || i >= getItemCount()) return defaultColor;
    int c = itemAt(i).color;
    return c == Glyph::kDrawColor ? defaultColor : c;
}

std::vector<int> TTFTextImpl::getCharacters() const {
    std::vector<int> out;
    for (int i = begin; i < end; ++i) {
        const Glyph &g = glyphs->at(i);
        out.push_back(g.replacement ? g.replacement : g.ch);
    }
    for (const Glyph &g : ellipsis) out.push_back(g.ch);
    return out;
}

void TTFTextImpl::measure() {
    ascent = face.get() ? face->ascender : 0;
    descent = face.get() ? face->descender : 0;
    lineDistance = face.get() ? face->lineHeight : 0;
    bool first = true;
    auto add = [&](const Glyph &g) {
        if (first) {
            ascent = descent = lineDistance = 0;
            first = false;
        }
        ascent = std::max(ascent, g.ascender + g.yOffset);
        descent = std::max(descent, g.descender - g.yOffset);
        lineDistance = std::max(lineDistance, g.lineSpacing);
    };
    for (int i = begin; i < end; ++i) add(glyphs->at(i));
    for (const Glyph &g : ellipsis) add(g);
    if (vertical) {
        double bottom = 0, widest = 0;
        for (int i = begin; i < end; ++i) {
            bottom = std::max(bottom, (double)glyphs->at(i).bottom);
            widest = std::max(widest, glyphs->at(i).getAdvance());
        }
        width = (int)std::ceil(widest);
        descent = std::max(descent, (int)bottom - ascent);
        return;
    }
    double right = startX;
    int last = LineBreaker::trimBreaks(glyphs, begin, end);
    if (!ellipsis.empty())
        right = ellipsis.back().right;
    else if (last > begin)
        right = glyphs->at(last - 1).right;
    width = std::max(0, (int)std::floor(right - startX + 0.5));
}

void TTFTextImpl::layoutVertical(int x) {
    double widest = 0;
    for (int i = begin; i < end; ++i) widest = std::max(widest, glyphs->at(i).getAdvance());
    int y = 0;
    for (int i = begin; i < end; ++i) {
        Glyph &g = glyphs->at(i);
        g.setPos(1, x + (widest - g.getAdvance()) / 2, y);
        y = g.bottom;
    }
}

bool TTFTextImpl::layout(int x, int maxWidth, int maxLines) {
    {
        FontLock lock;
        releaseChain(next);
        next = nullptr;
        ellipsis.clear();
    }
    startX = x;
    end = runEnd;
    bool fits = true;
    if (vertical) {
        layoutVertical(x);
    } else {
        bool betweenLetters = maxLines != 1 && x <= 0;
        LineBreaker::Line line =
            LineBreaker::breakLine(glyphs, begin, runEnd, x, maxWidth, betweenLetters);
        end = line.end;
        if (line.overflow && maxLines == 1) {
            truncate(maxWidth);
            fits = false;
        } else if (line.overflow && line.end < runEnd) {
            if (line.nextStart < runEnd) next = new TTFTextImpl(*this, line.nextStart);
        } else if (line.overflow) {
            fits = false;
        }
    }
    measure();
    return fits;
}

void TTFTextImpl::truncate(int maxWidth) {
    // The dots are new glyphs: the faces are asked for them.
    FontLock lock;
    double pen = startX;
    int cut = -1;
    for (int i = begin; i < runEnd; ++i) {
        Glyph &g = glyphs->at(i);
        g.setPos(0, pen, 0);
        pen = g.right;
        if (cut < 0 && g.right > maxWidth) cut = i;
    }
    if (cut < 0) cut = runEnd;
    const Glyph *source = cut > begin ? &glyphs->at(cut - 1) : nullptr;
    Glyph dot;
    dot.setFace(source && source->face ? source->face : face.get(), source ? source->flags : 0);
    if (source) dot.color = source->color;
    dot.makeGlyph('.', false);
    double dots = 3 * dot.getAdvance();
    while (cut > begin && glyphs->at(cut - 1).right + dots > maxWidth) --cut;
    end = cut;
    pen = cut > begin ? glyphs->at(cut - 1).right : startX;
    for (int k = 0; k < 3; ++k) {
        dot.setPos(0, pen, 0);
        ellipsis.push_back(dot);
        pen = dot.right;
    }
}

void TTFTextImpl::draw(int x, int y, int color, int alignment) {
    TextTransform t;
    drawAt(t, x - DrawArea::alignX(width, alignment), y - DrawArea::alignY(getHeight(), alignment),
           color);
}

void TTFTextImpl::fillQuad(const TextTransform &t, double x1, double y1, double x2, double y2,
                           int color) {
    double xs[4], ys[4];
    t.map(x1, y1, &xs[0], &ys[0]);
    t.map(x2, y1, &xs[1], &ys[1]);
    t.map(x2, y2, &xs[2], &ys[2]);
    t.map(x1, y2, &xs[3], &ys[3]);
    if (!t.isRotated()) {
        canvas->rawRect(std::floor(xs[0] + 0.5), std::floor(ys[0] + 0.5),
                        std::floor(xs[2] + 0.5) - 1, std::floor(ys[2] + 0.5) - 1, color);
        return;
    }
    canvas->polygon(DoubleArray(xs, 4), DoubleArray(ys, 4), color, color);
}

void TTFTextImpl::drawBackgrounds(const TextTransform &t, double left, double top) {
    for (int i = begin; i < end;) {
        int color = glyphs->at(i).bgColor;
        int j = i + 1;
        while (j < end && glyphs->at(j).bgColor == color) ++j;
        if (color != kTransparent)
            fillQuad(t, left + glyphs->at(i).x - startX, top,
                     left + glyphs->at(j - 1).right - startX, top + ascent + descent, color);
        i = j;
    }
}

void TTFTextImpl::drawUnderlines(const TextTransform &t, double left, double top) {
    int last = LineBreaker::trimBreaks(glyphs, begin, end);
    for (int i = begin; i < last;) {
        const Glyph &g = glyphs->at(i);
        int j = i + 1;
        while (j < last && glyphs->at(j).underline == g.underline && glyphs->at(j).color == g.color)
            ++j;
        if (g.underline > 0) {
            double y = top + ascent + std::max(1, g.descender / 3);
            int color = g.color == Glyph::kDrawColor ? underlineColor : g.color;
            fillQuad(t, left + g.x - startX, y, left + glyphs->at(j - 1).right - startX,
                     y + g.underline, color);
        }
        i = j;
    }
}

void TTFTextImpl::drawAt(const TextTransform &t, double left, double top, int color) {
    if (!canvas) return;
    underlineColor = color;
    drawBackgrounds(t, left, top);
    double x, y;
    t.map(left - startX, top + ascent, &x, &y);
    matrix[0] = t.a;
    matrix[1] = t.b;
    matrix[2] = t.c;
    matrix[3] = t.d;
    MetaDraw *list = canvas->getMetaDraw();
    int ox = (int)std::floor(x + 0.5), oy = (int)std::floor(y + 0.5);
    if (end > begin) list->drawText(this, begin, end, ox, oy, color);
    if (!ellipsis.empty()) list->drawText(this, glyphs->size(), getItemCount(), ox, oy, color);
    drawUnderlines(t, left, top);
}

namespace {

GlyphFont fontOf(FontFace *face) {
    GlyphFont f{"", 0, "", nullptr, false, false, false, false, 0, 1};
    if (!face) return f;
    f.filePath = face->getFileName();
    f.faceIndex = face->getFaceIndex();
    f.familyName = face->getFontName();
    f.postscriptName = face->getPostscriptName();
    f.bold = face->isBold();
    f.italic = face->isItalic();
    f.syntheticBold = face->isSyntheticBold();
    f.syntheticItalic = face->isSyntheticItalic();
    f.pixelSize = face->getPixelSize();
    f.widthScale = face->getWidthScale();
    return f;
}

GlyphImage imageOf(const FontGlyph *glyph) {
    bool lcd = glyph->pixelFormat != FontGlyph::kGrey;
    return GlyphImage{glyph->bitmap,     glyph->getPixelWidth(), glyph->rows, glyph->pitch,
                      glyph->bitmapLeft, glyph->bitmapTop,       lcd ? 3 : 1};
}

}  // namespace

// A glyph joins the last run when it comes from the same face and has its
// colour and direction.
void TTFTextImpl::addToRuns(const Glyph &g, int color, FontFace *&runFace, GlyphText &out) const {
    FontFace *face = g.glyph->face;
    const GlyphRun *last = out.runs.empty() ? nullptr : &out.runs.back();
    if (!last || face != runFace || last->color != color || last->rightToLeft != g.rightToLeft) {
        out.runs.push_back(GlyphRun{fontOf(face), color, g.rightToLeft, (int)out.glyphs.size(), 0});
        runFace = face;
    }
    PlacedGlyph placed{g.glyph->glyphId,
                       (int)out.chars.size(),
                       1,
                       g.x + g.xOffset,
                       (double)(g.y - g.yOffset),
                       g.glyph->advance,
                       imageOf(g.glyph),
                       g.replacement ? g.replacement : g.ch};
    out.chars.push_back(g.ch);
    if (g.ligated) {
        out.chars.push_back(g.ligated);
        placed.charCount = 2;
    }
    out.glyphs.push_back(placed);
    ++out.runs.back().glyphCount;
}

void TTFTextImpl::getGlyphRuns(int first, int last, int x, int y, int color, GlyphText &out) const {
    out.reset(x, y, matrix);
    FontFace *runFace = nullptr;
    first = std::max(first, 0);
    last = std::min(last, getItemCount());
    for (int i = first; i < last; ++i) {
        const Glyph &g = itemAt(i);
        if (g.glyph) addToRuns(g, g.color == Glyph::kDrawColor ? color : g.color, runFace, out);
    }
}
